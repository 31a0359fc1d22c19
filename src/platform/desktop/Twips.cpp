#include "platform/desktop/Twips.h"

#include <QApplication>
#include <QFontMetricsF>

#include <cmath>

namespace desktop {

namespace {

constexpr double twipsPerPixel = 15.0;
constexpr double usualLineHeight = 17.0; // logical pixels; what a box of 375 twips has room for

} // namespace

double letterScale()
{
    return qMax(1.0, QFontMetricsF(QApplication::font()).height() / usualLineHeight);
}

int pixels(double twips)
{
    return int(std::lround(twips * letterScale() / twipsPerPixel));
}

double twips(double pixels)
{
    return pixels * twipsPerPixel / letterScale();
}

} // namespace desktop
