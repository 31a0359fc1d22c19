#include "platform/desktop/TabStrip.h"

#include "platform/desktop/Keys.h"
#include "platform/desktop/PlainText.h"
#include "platform/runtime/RuntimeError.h"

#include <QSignalBlocker>

namespace desktop {

TabStrip::TabStrip(QWidget *parent, QAnyStringView name) : ControlOf(parent, name)
{
    setExpanding(false);
    setFocusPolicy(Qt::StrongFocus);  // so that a click takes the focus from a box before its page is unloaded
    setMinimumHeight(heightOfATab()); // nothing below moves when the first tab comes
    connect(this, &QTabBar::currentChanged, this, &TabStrip::select);
    // Qt emits this before currentChanged, which reports the click on another tab: here the selected one alone counts.
    connect(this, &QTabBar::tabBarClicked, this, [this](int index) {
        if (index == currentIndex())
            select(index);
    });
    onPageKeys(parent ? parent : this, [this](int pages) { turn(pages); });
}

// Moves the focus to the tabs: it would be lost together with a box that is unloaded with its page.
void TabStrip::leavePage()
{
    setFocus(Qt::ShortcutFocusReason);
}

void TabStrip::turn(int pages)
{
    if (count() == 0)
        return;
    leavePage();
    setSelectedItem((currentIndex() + pages + count()) % count() + 1);
}

int TabStrip::heightOfATab()
{
    addTab(QStringLiteral("X"));
    const int height = sizeHint().height();
    removeTab(0);
    return height;
}

bool TabStrip::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto *help = static_cast<QHelpEvent *>(event);
        if (showMarkedUpToolTip(tabToolTip(tabAt(help->pos())), *help, this))
            return true;
    }
    if (event->type() == QEvent::Shortcut) // the letter of a tab
        leavePage();
    return ControlOf::event(event);
}

void TabStrip::select(int index)
{
    if (index < 0)
        return;
    Q_EMIT BeforeClick();
    m_selected = index + 1;
    Q_EMIT Click();
}

void TabStrip::add(const QString &key, const QString &caption, const QString &toolTip)
{
    const QSignalBlocker quiet(this);
    setTabToolTip(addTab(withoutMnemonic(caption.left(mostShown))), toolTip);
    m_tabs.push_back({key, caption, toolTip});
    if (count() == 1)
        m_selected = 1;
}

void TabStrip::Remove(int tab)
{
    const QSignalBlocker quiet(this);
    const int index = placeOf(tab);
    removeTab(index);
    m_tabs.erase(m_tabs.begin() + index);
    if (m_selected == tab)
        m_selected = 0;
    else if (m_selected > tab)
        --m_selected;
}

void TabStrip::Clear()
{
    while (count() > 0)
        Remove(count());
}

int TabStrip::placeOf(int tab) const
{
    if (tab < 1 || tab > count())
        throw runtime::RuntimeError(runtime::IndexOutOfBounds);
    return tab - 1;
}

QString TabStrip::Key(int tab) const
{
    return m_tabs[size_t(placeOf(tab))].key;
}

QString TabStrip::Caption(int tab) const
{
    return m_tabs[size_t(placeOf(tab))].caption;
}

QString TabStrip::ToolTipText(int tab) const
{
    return m_tabs[size_t(placeOf(tab))].toolTip;
}

void TabStrip::setSelectedItem(int tab)
{
    const int index = placeOf(tab);
    if (index == currentIndex())
        select(index);
    else
        setCurrentIndex(index);
}

QString TabStrip::SelectedCaption() const
{
    if (m_selected == 0)
        throw runtime::RuntimeError(runtime::ObjectNotSet);
    return Caption(m_selected);
}

} // namespace desktop
