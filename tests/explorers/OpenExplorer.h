// An open explorer of either kind, driven by mouse and keyboard.
#pragma once

#include "platform/desktop/Controls.h"
#include "platform/desktop/ListView.h"
#include "platform/desktop/Toolbar.h"
#include "platform/desktop/TreeView.h"
#include "support/Dialogs.h"
#include "support/Lines.h"

#include <QHeaderView>
#include <QScrollBar>

template <class Window> class OpenExplorer
{
public:
    explicit OpenExplorer(qint16 level = 0)
    {
        m_window.UserLevel = level;
        m_window.Show();
    }

    Window &window() { return m_window; }
    desktop::TreeView &tree() { return *child<desktop::TreeView>(m_window, "TreClassView"); }
    desktop::ListView &list() { return *child<desktop::ListView>(m_window, "LstStudenInformation"); }
    QString listing() { return child<desktop::Label>(m_window, "LblMemberListing")->text(); }
    QString information() { return child<desktop::Label>(m_window, "LblMemberInformation")->text(); }

    void refresh() { QTest::mouseClick(child<desktop::Label>(m_window, "LblMemberListing"), Qt::LeftButton); }
    void clickGroup(const QString &name)
    {
        for (int index = 1; index <= tree().Nodes.Count(); ++index) {
            desktop::Node &node = tree().Nodes(index);
            if (node.Tag == name) {
                tree().scrollToItem(&node);
                QTest::mouseClick(tree().viewport(), Qt::LeftButton, {}, tree().visualItemRect(&node).center());
            }
        }
    }
    void clickHeader(int index)
    {
        QHeaderView *header = list().header();
        list().horizontalScrollBar()->setValue(header->sectionPosition(index - 1));
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                          QPoint(header->sectionViewportPosition(index - 1) + 10, 5));
    }
    void clickDelete()
    {
        auto *bar = child<desktop::Toolbar>(m_window, "Toolbar1");
        QTest::mouseClick(bar->widgetForAction(bar->actions().constFirst()), Qt::LeftButton);
    }
    void doubleClickRow(int row) { doubleClick(list(), row); }
    QStringList column(int index)
    {
        QStringList texts;
        for (int row = 1; row <= list().ListItems.Count(); ++row)
            texts << list().ListItems(row).SubItems(index);
        return texts;
    }
    void select(const QString &key)
    {
        for (int row = 1; row <= list().ListItems.Count(); ++row) {
            if (list().ListItems(row).Text() == key)
                list().ListItems(row).setSelected(true);
        }
    }

    CaughtErrors errors;

private:
    Window m_window;
};
