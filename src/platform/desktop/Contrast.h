// How far colours stand apart: the contrast ratio of the Web Content Accessibility Guidelines (WCAG 2).
#pragma once

#include <QColor>

namespace desktop {

// The contrast ratio of two colours: 1 to 21.
double contrast(const QColor &one, const QColor &other);
// What a text needs to be read (success criterion 1.4.3), and what a line or a picture needs to be seen (1.4.11).
inline constexpr double readableContrast = 4.5;
inline constexpr double visibleContrast = 3;
bool isDark(const QColor &colour);
// The colour itself, or mixed with as much of the stronger one as it takes to have that contrast to the ground.
QColor standingOut(const QColor &colour, const QColor &stronger, const QColor &ground, double ratio);
// The same for a text.
QColor readable(const QColor &colour, const QColor &stronger, const QColor &ground);

} // namespace desktop
