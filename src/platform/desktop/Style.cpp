#include "platform/desktop/Style.h"

#include "platform/desktop/Twips.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QPainter>
#include <QStyleOption>

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

bool isDark(const QColor &colour)
{
    return contrast(colour, Qt::white) > contrast(colour, Qt::black);
}

struct Pair
{
    QPalette::ColorRole text;
    QPalette::ColorRole ground;
};

constexpr QColor lineColour(128, 128, 128);

constexpr Pair pairs[] = {
    {QPalette::WindowText, QPalette::Window},
    {QPalette::Text, QPalette::Base},
    {QPalette::WindowText, QPalette::Button},
    {QPalette::ButtonText, QPalette::Button},
    {QPalette::ToolTipText, QPalette::ToolTipBase},
    {QPalette::PlaceholderText, QPalette::Base},
    {QPalette::Link, QPalette::Base},
    {QPalette::LinkVisited, QPalette::Base},
    {QPalette::Text, QPalette::AlternateBase},
};

// On a dark window a button is told from its ground by being lighter.
void raiseButton(QPalette &palette, QPalette::ColorGroup group)
{
    const QColor window = palette.color(group, QPalette::Window);
    if (isDark(window) && contrast(window, palette.color(group, QPalette::Button)) < 1.3)
        palette.setColor(group, QPalette::Button, window.lighter(150));
}

// The selection keeps its text, which is white nearly everywhere, and its ground gives way.
void makeReadable(QPalette &palette, QPalette::ColorGroup group)
{
    const auto colour = [&](QPalette::ColorRole role) { return palette.color(group, role); };
    const QColor selected = colour(QPalette::HighlightedText);
    palette.setColor(group, QPalette::Highlight,
                     readable(colour(QPalette::Highlight), isDark(selected) ? Qt::white : Qt::black, selected));
    for (const Pair &pair : pairs) {
        const QColor ground = colour(pair.ground);
        palette.setColor(group, pair.text, readable(colour(pair.text), isDark(ground) ? Qt::white : Qt::black, ground));
    }
}

// The style draws the title bar of a window that is not active with black buttons, whatever the palette. On a dark one
// it is drawn like an active one, with white buttons, in the colour of the window.
void showOnDark(QStyleOptionTitleBar &bar)
{
    const bool active = bar.titleBarState & QStyle::State_Active;
    const QColor window = bar.palette.color(QPalette::Window);
    if (!active && !isDark(window))
        return;
    bar.palette.setColor(QPalette::Text, Qt::black); // the shadow of the white title
    if (active)
        return;
    bar.titleBarState |= QStyle::State_Active;
    bar.state |= QStyle::State_Active;
    bar.palette.setColor(QPalette::Highlight, window);
}

void drawFocusAround(const QRect &place, const QPalette &palette, QPainter &painter)
{
    painter.save();
    painter.setPen(palette.color(QPalette::Highlight));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(place.adjusted(0, 0, -1, -1));
    painter.restore();
}

} // namespace

double contrast(const QColor &one, const QColor &other)
{
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor readable(const QColor &colour, const QColor &stronger, const QColor &ground)
{
    QColor mixed = on(ground, colour);
    for (int percent = 0; percent < 100 && contrast(mixed, ground) < readableContrast; percent += 2) {
        QColor part = stronger;
        part.setAlphaF(float(percent) / 100);
        mixed = on(on(ground, colour), part);
    }
    return contrast(mixed, ground) < readableContrast ? stronger : mixed;
}

QPalette darkPalette()
{
    const QColor window(0x32, 0x32, 0x32);
    const QColor base(0x24, 0x24, 0x24);
    const QColor greyed(0x80, 0x80, 0x80);
    QPalette dark(Qt::white, window, window.lighter(120), base.darker(150), window.darker(130), Qt::white, Qt::white,
                  base, window);
    dark.setColor(QPalette::AlternateBase, base.lighter(120));
    dark.setColor(QPalette::Highlight, QColor(0x30, 0x8c, 0xc6));
    dark.setColor(QPalette::HighlightedText, Qt::white);
    dark.setColor(QPalette::ToolTipBase, base);
    dark.setColor(QPalette::ToolTipText, Qt::white);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        dark.setColor(QPalette::Disabled, role, greyed);
    QApplication::style()->polish(dark);
    return dark;
}

void Style::install()
{
    QApplication::setStyle(new Style);
}

void Style::polish(QPalette &palette)
{
    QProxyStyle::polish(palette);
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        raiseButton(palette, group);
        makeReadable(palette, group);
    }
}

int Style::pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const
{
    const int usual = QProxyStyle::pixelMetric(metric, option, widget);
    switch (metric) {
    case PM_SmallIconSize:
    case PM_ToolBarIconSize:
    case PM_ListViewIconSize:
    case PM_TitleBarHeight:
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
    case PM_ScrollBarExtent:
        return int(std::lround(usual * letterScale()));
    default:
        return usual;
    }
}

// The style draws the box for a tick with a line that nearly has the colour of a dark window.
void Style::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                          const QWidget *widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (!isDark(option->palette.color(QPalette::Window)))
        return;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(lineColour);
    const QRectF place = QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5);
    if (element == PE_IndicatorCheckBox)
        painter->drawRect(place);
    else if (element == PE_IndicatorRadioButton)
        painter->drawEllipse(place);
    painter->restore();
}

void Style::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                        const QWidget *widget) const
{
    QProxyStyle::drawControl(element, option, painter, widget);
    if (element == CE_ShapedFrame && option->state & State_HasFocus && qobject_cast<const QAbstractItemView *>(widget))
        drawFocusAround(option->rect, option->palette, *painter);
}

void Style::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                               const QWidget *widget) const
{
    const auto *bar = qstyleoption_cast<const QStyleOptionTitleBar *>(option);
    if (control == CC_TitleBar && bar && baseStyle()->inherits("QFusionStyle")) {
        QStyleOptionTitleBar shown = *bar;
        showOnDark(shown);
        return QProxyStyle::drawComplexControl(control, &shown, painter, widget);
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control == CC_ComboBox && option->state & State_HasFocus)
        drawFocusAround(option->rect, option->palette, *painter);
}

} // namespace desktop
