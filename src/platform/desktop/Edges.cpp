#include "platform/desktop/Edges.h"

#include "platform/desktop/Contrast.h"

#include <QPainter>
#include <QStyleOption>

namespace desktop {

namespace {

constexpr double fainterContrast = 1.6;
constexpr int tabMarkWidth = 3; // logical pixels

constexpr QPalette::ColorRole grounds[] = {QPalette::Window, QPalette::Base, QPalette::Button};

QColor strongest(const QColor &ground)
{
    return isDark(ground) ? Qt::white : Qt::black;
}

} // namespace

void setEdgeColours(QPalette &palette)
{
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        const double ratio = group == QPalette::Disabled ? fainterContrast : visibleContrast;
        QColor edge = palette.color(group, QPalette::Window);
        for (const auto role : grounds) {
            const QColor ground = palette.color(group, role);
            edge = standingOut(edge, strongest(ground), ground, ratio);
        }
        palette.setColor(group, QPalette::Dark, edge);
    }
}

QColor focusColour(const QPalette &palette, const QColor &ground)
{
    return standingOut(palette.color(QPalette::Highlight), strongest(ground), ground, visibleContrast);
}

QColor focusColour(const QPalette &palette)
{
    QColor colour = palette.color(QPalette::Highlight);
    for (const auto role : grounds) {
        const QColor ground = palette.color(role);
        colour = standingOut(colour, strongest(ground), ground, visibleContrast);
    }
    return colour;
}

void drawFrame(QPainter &painter, const QRect &place, const QColor &colour, int width)
{
    const QRect within = place.adjusted(width, width, -width, -width);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillRect(QRect(place.topLeft(), QSize(place.width(), width)), colour);
    painter.fillRect(QRect(place.left(), within.bottom() + 1, place.width(), width), colour);
    painter.fillRect(QRect(place.left(), within.top(), width, within.height()), colour);
    painter.fillRect(QRect(within.right() + 1, within.top(), width, within.height()), colour);
    painter.restore();
}

void drawEdge(QPainter &painter, const QStyleOption &option, bool focused)
{
    if (focused)
        drawFrame(painter, option.rect, focusColour(option.palette), focusRingWidth);
    else
        drawFrame(painter, option.rect, option.palette.color(QPalette::Dark));
}

void drawRoundEdge(QPainter &painter, const QStyleOption &option)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(option.palette.color(QPalette::Dark));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5));
    painter.restore();
}

void drawViewEdge(QPainter &painter, const QStyleOption &option)
{
    drawFrame(painter, option.rect, option.palette.color(QPalette::Base), focusRingWidth);
    drawEdge(painter, option, option.state & QStyle::State_HasFocus);
}

void drawInnerFocus(QPainter &painter, const QStyleOption &option)
{
    const auto *ring = qstyleoption_cast<const QStyleOptionFocusRect *>(&option);
    if (!(option.state & QStyle::State_KeyboardFocusChange))
        return;
    const bool onKnownGround = ring && ring->backgroundColor.isValid();
    drawFrame(painter, option.rect,
              onKnownGround ? focusColour(option.palette, ring->backgroundColor) : focusColour(option.palette));
}

void drawSelectedTab(QPainter &painter, const QStyleOptionTab &tab)
{
    const QColor edge = tab.palette.color(QPalette::Dark);
    const QRect &place = tab.rect;
    painter.fillRect(QRect(place.left(), place.top(), 1, place.height()), edge);
    painter.fillRect(QRect(place.right(), place.top(), 1, place.height()), edge);
    painter.fillRect(QRect(place.left(), place.top(), place.width(), tabMarkWidth), focusColour(tab.palette));
}

void drawArrow(QPainter &painter, const QRect &place, Qt::ArrowType direction, const QColor &colour)
{
    const double half = 0.3 * qMin(place.width(), place.height());
    const int quarters = direction == Qt::RightArrow  ? 0
                         : direction == Qt::DownArrow ? 1
                         : direction == Qt::LeftArrow ? 2
                                                      : 3;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(QRectF(place).center());
    painter.rotate(90 * quarters);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawPolygon(QPolygonF({{-half / 2, -half}, {half / 2, 0}, {-half / 2, half}}));
    painter.restore();
}

void drawMinimizeDash(QPainter &painter, const QRect &button, const QStyleOptionTitleBar &bar)
{
    const int inset = qMax(4, button.width() / 4);
    const int thickness = qMax(2, button.height() / 9);
    const QRect dash(button.left() + inset, button.bottom() - inset - thickness + 1, button.width() - 2 * inset,
                     thickness);
    painter.fillRect(dash, bar.titleBarState & QStyle::State_Active ? Qt::white : Qt::black);
}

} // namespace desktop
