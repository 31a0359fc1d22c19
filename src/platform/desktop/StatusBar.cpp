#include "platform/desktop/StatusBar.h"

#include "platform/desktop/KeyboardState.h"
#include "platform/desktop/Twips.h"
#include "platform/runtime/Clock.h"
#include "platform/runtime/Regional.h"

#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace desktop {

namespace {

constexpr int clockInterval = 1000; // milliseconds

} // namespace

Panel::Panel(StatusBar *bar, Style style, int number) : QLabel(bar), m_style(style)
{
    setObjectName(u"%1.Panels(%2)"_s.arg(bar->objectName()).arg(number));
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    setAlignment(Qt::AlignCenter);
    setTextFormat(Qt::PlainText);
    setMinimumWidth(fontMetrics().horizontalAdvance(u"CAPS"_s) + 8);
    if (style == Style::Time || style == Style::Date) {
        auto *timer = new QTimer(this);
        connect(timer, &QTimer::timeout, this, &Panel::refresh);
        timer->start(clockInterval);
    } else if (style != Style::Text) {
        connect(&KeyboardState::instance(), &KeyboardState::changed, this, &Panel::refresh);
    }
    refresh();
}

void Panel::setPanelWidth(double width)
{
    setFixedWidth(pixels(width));
}

void Panel::refresh()
{
    const auto show = [this](const QString &text, bool on) {
        setText(text);
        setEnabled(on); // a toggle that is off is drawn in grey
    };
    switch (m_style) {
    case Style::Text:
        break;
    case Style::CapsLock:
        return show(u"CAPS"_s, KeyboardState::instance().capsLock());
    case Style::NumLock:
        return show(u"NUM"_s, KeyboardState::instance().numLock());
    case Style::Insert:
        return show(u"INS"_s, KeyboardState::instance().insert());
    case Style::Time:
        return setText(runtime::shortTimeText(runtime::clockNow().time()));
    case Style::Date:
        return setText(runtime::shortDateText(runtime::clockNow().day()));
    }
}

StatusBar::StatusBar(QWidget *parent, QAnyStringView name) : DockedBar(parent, name)
{
    setSizeGripEnabled(false);
    setAutoFillBackground(true); // in a small window the bar lies over rows of the list
}

void StatusBar::addPanel(Panel::Style style)
{
    auto *panel = new Panel(this, style, int(m_panels.size()) + 1);
    m_panels.push_back(panel);
    addWidget(panel, 1);
}

void StatusBar::addKeyboardAndClockPanels()
{
    using enum Panel::Style;
    for (const Panel::Style style : {CapsLock, NumLock, Insert, Time, Date})
        addPanel(style);
}

} // namespace desktop
