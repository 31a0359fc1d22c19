#include "platform/desktop/Twips.h"

#include <QApplication>
#include <QFontMetricsF>

#include <cmath>

namespace desktop {

namespace {

constexpr double twipsPerPixel = 15.0;
constexpr double usualLineHeight = 17.0; // logical pixels; what a box of 375 twips has room for

} // namespace

// Measured once for each font, for places are asked for by the thousand.
double letterScale()
{
    static QFont measured;
    static double scale = 0;
    if (const QFont font = QApplication::font(); scale == 0 || !font.isCopyOf(measured)) {
        measured = font;
        scale = qMax(1.0, QFontMetricsF(font).height() / usualLineHeight);
    }
    return scale;
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
