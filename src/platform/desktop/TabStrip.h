// A row of tabs without pages: what a tab stands for is its window's to show, at the click. Tabs count from 1.
//
// Selecting a tab is a click on it, whether the mouse, the keyboard or a handler does it and also when that tab is the
// selected one already. Error 35600 for a tab that there is not.
#pragma once

#include "platform/desktop/Control.h"

#include <QTabBar>

namespace desktop {

class TabStrip : public ControlOf<QTabBar>
{
    Q_OBJECT
public:
    TabStrip(QWidget *parent, QAnyStringView name);

    // The first tab is selected as it is added, which is no click.
    void add(const QString &key, const QString &caption, const QString &toolTip);
    int Count() const { return count(); }
    QString Key(int tab) const;

    int SelectedItem() const { return currentIndex() + 1; }
    void setSelectedItem(int tab);

Q_SIGNALS:
    void Click();

private:
    int placeOf(int tab) const;
};

} // namespace desktop
