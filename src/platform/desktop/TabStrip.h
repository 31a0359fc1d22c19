// A row of tabs without pages: what a tab stands for is its window's to show, at the click. Tabs count from 1. Ctrl
// with Page Down or Page Up turns them from wherever the focus is in the parent widget.
//
// Selecting a tab is a click on it, whether the mouse, the keyboard or a handler does it and also when that tab is the
// selected one already. When the selected tab is removed none is selected until the next click. Error 35600 for a tab
// that there is not.
#pragma once

#include "platform/desktop/Control.h"

#include <QTabBar>

#include <vector>

namespace desktop {

class TabStrip : public ControlOf<QTabBar>
{
    Q_OBJECT
public:
    TabStrip(QWidget *parent, QAnyStringView name);

    // The first tab is selected as it is added, which is no click.
    void add(const QString &key, const QString &caption, const QString &toolTip);
    // No click either.
    void Remove(int tab);
    void Clear();
    int Count() const { return count(); }
    QString Key(int tab) const;
    QString Caption(int tab) const;
    QString ToolTipText(int tab) const;

    // 0 when none is selected.
    int SelectedItem() const { return m_selected; }
    void setSelectedItem(int tab);
    // Error 91 when none is selected.
    QString SelectedCaption() const;

protected:
    bool event(QEvent *event) override;

Q_SIGNALS:
    // The tab that is being left is still the selected one.
    void BeforeClick();
    void Click();

private:
    struct Tab
    {
        QString key;
        QString caption;
        QString toolTip;
    };
    int heightOfATab();
    void turn(int pages);
    void leavePage();
    void select(int index);
    int placeOf(int tab) const;

    std::vector<Tab> m_tabs;
    int m_selected = 0;
};

} // namespace desktop
