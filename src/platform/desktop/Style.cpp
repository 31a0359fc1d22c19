#include "platform/desktop/Style.h"

#include "platform/desktop/Contrast.h"
#include "platform/desktop/Edges.h"
#include "platform/desktop/Twips.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QPainter>
#include <QPixmapCache>
#include <QStyleOption>
#include <QToolButton>

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace desktop {

namespace {

struct Pair
{
    QPalette::ColorRole text;
    QPalette::ColorRole ground;
};

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

// On a dark window a button is told from its ground by being lighter, and a box that is switched off by having the
// window's colour, as it has on a light one.
void setOffFromDark(QPalette &palette, QPalette::ColorGroup group)
{
    const QColor window = palette.color(group, QPalette::Window);
    if (isDark(window) && group == QPalette::Disabled)
        palette.setColor(group, QPalette::Base, window);
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

Qt::ArrowType arrowOf(QStyle::PrimitiveElement element)
{
    if (element == QStyle::PE_IndicatorArrowDown)
        return Qt::DownArrow;
    return element == QStyle::PE_IndicatorArrowLeft ? Qt::LeftArrow : Qt::RightArrow;
}

QPixmap coloured(QPixmap picture, const QColor &colour)
{
    const QString key = u"coloured %1 %2"_s.arg(picture.cacheKey()).arg(colour.rgba());
    if (QPixmapCache::find(key, &picture))
        return picture;
    QPainter painter(&picture);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(picture.rect(), colour);
    painter.end();
    QPixmapCache::insert(key, picture);
    return picture;
}

// The picture of a selected line in the colour of its text: its own colours are not seen on every selection.
QIcon onSelection(const QStyleOptionViewItem &line, qreal pixelRatio)
{
    const QIcon::State state = line.state & QStyle::State_Open ? QIcon::On : QIcon::Off;
    const QPixmap picture = coloured(line.icon.pixmap(line.decorationSize, pixelRatio, QIcon::Selected, state),
                                     line.palette.color(QPalette::HighlightedText));
    QIcon icon;
    icon.addPixmap(picture, QIcon::Selected, state);
    return icon;
}

} // namespace

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
        setOffFromDark(palette, group);
        makeReadable(palette, group);
    }
    setEdgeColours(palette);
}

int Style::pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const
{
    const int usual = QProxyStyle::pixelMetric(metric, option, widget);
    switch (metric) {
    case PM_DefaultFrameWidth:
        return isFusion() && qobject_cast<const QAbstractScrollArea *>(widget) ? focusRingWidth : usual;
    case PM_SmallIconSize:
    case PM_ButtonIconSize:
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

int Style::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                     QStyleHintReturn *returned) const
{
    return hint == SH_ComboBox_Popup ? 0 : QProxyStyle::styleHint(hint, option, widget, returned);
}

// What Fusion would draw with lines that are next to invisible on a dark window, and faint on a light one.
bool Style::drawOwnPrimitive(PrimitiveElement element, const QStyleOption &option, QPainter &painter,
                             const QWidget *widget) const
{
    switch (element) {
    case PE_Frame:
        if (qobject_cast<const QAbstractScrollArea *>(widget))
            drawViewEdge(painter, option);
        else
            drawEdge(painter, option, false);
        return true;
    case PE_FrameLineEdit:
        drawEdge(painter, option, option.state & State_HasFocus);
        return true;
    case PE_IndicatorArrowLeft:
    case PE_IndicatorArrowRight:
    case PE_IndicatorArrowDown:
        if (!qobject_cast<const QToolButton *>(widget))
            return false;
        drawArrow(painter, option.rect, arrowOf(element), option.palette.color(QPalette::ButtonText));
        return true;
    case PE_FrameFocusRect:
        drawInnerFocus(painter, option);
        return true;
    default:
        return false;
    }
}

void Style::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                          const QWidget *widget) const
{
    if (!isFusion())
        return QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (drawOwnPrimitive(element, *option, *painter, widget))
        return;
    if (const auto *pane = qstyleoption_cast<const QStyleOptionTabWidgetFrame *>(option);
        pane && element == PE_FrameTabWidget) {
        QStyleOptionTabWidgetFrame shown = *pane;
        shown.palette.setBrush(QPalette::Button, option->palette.window());
        QProxyStyle::drawPrimitive(element, &shown, painter, widget);
        return drawEdge(*painter, *option, false);
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (element == PE_PanelButtonCommand)
        return drawEdge(*painter, *option, option->state & State_HasFocus && option->state & State_KeyboardFocusChange);
    if (element == PE_IndicatorCheckBox || element == PE_FrameWindow)
        drawEdge(*painter, *option, false);
    else if (element == PE_IndicatorRadioButton)
        drawRoundEdge(*painter, *option);
}

void Style::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                        const QWidget *widget) const
{
    if (const auto *line = qstyleoption_cast<const QStyleOptionViewItem *>(option);
        element == CE_ItemViewItem && line && line->state & State_Selected && !line->icon.isNull()) {
        QStyleOptionViewItem shown = *line;
        shown.icon = onSelection(*line, painter->device()->devicePixelRatio());
        return QProxyStyle::drawControl(element, &shown, painter, widget);
    }
    const auto *tab = qstyleoption_cast<const QStyleOptionTab *>(option);
    if (element != CE_TabBarTabShape || !tab || !isFusion())
        return QProxyStyle::drawControl(element, option, painter, widget);
    QStyleOptionTab shown = *tab;
    shown.palette.setBrush(QPalette::Button, option->palette.window());
    QProxyStyle::drawControl(element, &shown, painter, widget);
    if (tab->state & State_Selected)
        drawSelectedTab(*painter, *tab);
}

// The frame begins below the title.
void Style::drawGroupBox(const QStyleOptionGroupBox &box, QPainter &painter, const QWidget *widget) const
{
    QStyleOptionGroupBox shown = box;
    shown.subControls &= ~SC_GroupBoxFrame;
    QProxyStyle::drawComplexControl(CC_GroupBox, &shown, &painter, widget);
    if (!box.text.isEmpty())
        shown.rect.setTop(subControlRect(CC_GroupBox, &box, SC_GroupBoxLabel, widget).bottom() + 3);
    drawEdge(painter, shown, false);
}

void Style::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                               const QWidget *widget) const
{
    const auto *bar = qstyleoption_cast<const QStyleOptionTitleBar *>(option);
    if (control == CC_TitleBar && bar && isFusion()) {
        QStyleOptionTitleBar shown = *bar;
        showOnDark(shown);
        QProxyStyle::drawComplexControl(control, &shown, painter, widget);
        const QRect button = subControlRect(CC_TitleBar, bar, SC_TitleBarMinButton, widget);
        if (bar->subControls & SC_TitleBarMinButton && button.isValid())
            drawMinimizeDash(*painter, button, shown);
        return;
    }
    if (const auto *box = qstyleoption_cast<const QStyleOptionGroupBox *>(option);
        control == CC_GroupBox && box && isFusion())
        return drawGroupBox(*box, *painter, widget);
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (!isFusion())
        return;
    if (control == CC_ComboBox)
        drawEdge(*painter, *option, option->state & State_HasFocus);
    else if (control == CC_ScrollBar && option->subControls & SC_ScrollBarSlider)
        drawFrame(*painter, subControlRect(CC_ScrollBar, option, SC_ScrollBarSlider, widget),
                  option->palette.color(QPalette::Dark));
}

} // namespace desktop
