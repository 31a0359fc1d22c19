#include "platform/desktop/Contrast.h"

#include <algorithm>
#include <cmath>

namespace desktop {

namespace {

double linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &colour)
{
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

// As it looks on the ground, where it is partly transparent.
QColor on(const QColor &ground, const QColor &colour)
{
    const auto mixed = [part = colour.alphaF()](float over, float under) { return over * part + under * (1 - part); };
    return QColor::fromRgbF(mixed(colour.redF(), ground.redF()), mixed(colour.greenF(), ground.greenF()),
                            mixed(colour.blueF(), ground.blueF()));
}

} // namespace

double contrast(const QColor &one, const QColor &other)
{
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

bool isDark(const QColor &colour)
{
    return contrast(colour, Qt::white) > contrast(colour, Qt::black);
}

QColor standingOut(const QColor &colour, const QColor &stronger, const QColor &ground, double ratio)
{
    QColor mixed = on(ground, colour);
    for (int percent = 0; percent < 100 && contrast(mixed, ground) < ratio; percent += 2) {
        QColor part = stronger;
        part.setAlphaF(float(percent) / 100);
        mixed = on(on(ground, colour), part);
    }
    return contrast(mixed, ground) < ratio ? stronger : mixed;
}

QColor readable(const QColor &colour, const QColor &stronger, const QColor &ground)
{
    return standingOut(colour, stronger, ground, readableContrast);
}

} // namespace desktop
