#include "platform/desktop/TabStrip.h"

#include "platform/runtime/RuntimeError.h"

#include <QSignalBlocker>

namespace desktop {

TabStrip::TabStrip(QWidget *parent, QAnyStringView name) : ControlOf(parent, name)
{
    setExpanding(false);
    setMinimumHeight(heightOfATab()); // so that what lies below stays where it is when the first one comes
    connect(this, &QTabBar::currentChanged, this, &TabStrip::select);
    // Comes before the change, so that it is a click on its own only where nothing changes.
    connect(this, &QTabBar::tabBarClicked, this, [this](int index) {
        if (index == currentIndex())
            select(index);
    });
}

int TabStrip::heightOfATab()
{
    addTab(QStringLiteral("X"));
    const int height = sizeHint().height();
    removeTab(0);
    return height;
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
    const int index = addTab(caption);
    setTabData(index, key);
    setTabToolTip(index, toolTip);
    if (count() == 1)
        m_selected = 1;
}

void TabStrip::Remove(int tab)
{
    const QSignalBlocker quiet(this);
    removeTab(placeOf(tab));
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
    return tabData(placeOf(tab)).toString();
}

QString TabStrip::Caption(int tab) const
{
    return tabText(placeOf(tab));
}

QString TabStrip::ToolTipText(int tab) const
{
    return tabToolTip(placeOf(tab));
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
