// Draws the edges of controls, the ring around the one that has the focus, the mark on the selected tab, and arrows.
// Edges are filled rectangles, since a pen loses a side where a pixel of the window is not a whole number of the
// screen's.
#pragma once

#include <QRect>
#include <Qt>

class QColor;
class QPainter;
class QPalette;
class QStyleOption;
class QStyleOptionTab;
class QStyleOptionTitleBar;

namespace desktop {

// Logical pixels.
inline constexpr int focusRingWidth = 2;

// Sets the colour of edges, which is QPalette::Dark, in each group of the palette: controls that are switched off have
// a fainter one.
void setEdgeColours(QPalette &palette);
// The colour of the selection, made stronger until it stands out from the ground.
QColor focusColour(const QPalette &palette, const QColor &ground);
// The same for a ring that may lie on a window, on a box or on a button.
QColor focusColour(const QPalette &palette);

// Inside of the place; the width in logical pixels.
void drawFrame(QPainter &painter, const QRect &place, const QColor &colour, int width = 1);
// The frame of a control, or the ring in its place where it has the focus.
void drawEdge(QPainter &painter, const QStyleOption &option, bool focused);
// The edge of an option button.
void drawRoundEdge(QPainter &painter, const QStyleOption &option);
// The edge of a list, tree or text of several lines, for which two pixels are kept free.
void drawViewEdge(QPainter &painter, const QStyleOption &option);
// The ring within a control: around a line of a list, a caption, a tab.
void drawInnerFocus(QPainter &painter, const QStyleOption &option);
void drawSelectedTab(QPainter &painter, const QStyleOptionTab &tab);
// The style's own arrows and dash have the same few pixels at every size. Fills most of the place.
void drawArrow(QPainter &painter, const QRect &place, Qt::ArrowType direction, const QColor &colour);
void drawMinimizeDash(QPainter &painter, const QRect &button, const QStyleOptionTitleBar &bar);

} // namespace desktop
