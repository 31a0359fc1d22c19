#include "platform/desktop/TabStrip.h"

#include "platform/runtime/RuntimeError.h"

#include <QSignalBlocker>

namespace desktop {

TabStrip::TabStrip(QWidget *parent, QAnyStringView name) : ControlOf(parent, name)
{
    setExpanding(false);
    connect(this, &QTabBar::currentChanged, this, &TabStrip::Click);
    // Comes before the change, so that it is a click on its own only where nothing changes.
    connect(this, &QTabBar::tabBarClicked, this, [this](int index) {
        if (index >= 0 && index == currentIndex())
            Q_EMIT Click();
    });
}

void TabStrip::add(const QString &key, const QString &caption, const QString &toolTip)
{
    const QSignalBlocker quiet(this);
    const int index = addTab(caption);
    setTabData(index, key);
    setTabToolTip(index, toolTip);
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

void TabStrip::setSelectedItem(int tab)
{
    const int index = placeOf(tab);
    if (index == currentIndex())
        Q_EMIT Click();
    else
        setCurrentIndex(index);
}

} // namespace desktop
