#include "explorers/GroupedRows.h"

#include "explorers/SortClause.h"
#include "explorers/UserTree.h"
#include "platform/desktop/Form.h"
#include "platform/desktop/LongWork.h"
#include "platform/desktop/MsgBox.h"
#include "platform/runtime/Conversion.h"
#include "shell/store/CLsDataBaseConnection.h"
#include "shell/store/CommandSequence.h"

#include <utility>

using namespace Qt::Literals::StringLiterals;

GroupedRows::GroupedRows(desktop::Form &window, ExplorerPanes &panes, GroupedTable table)
    : m_window(window), m_panes(panes), m_table(std::move(table))
{
}

void GroupedRows::loadColumns()
{
    setUpHeaders(*m_panes.LstStudenInformation, m_table.columns);
}

void GroupedRows::loadTree(qint16 userLevel)
{
    qint16 total = 0;
    if (userLevel < 99) {
        total = loadGroups();
    } else {
        m_panes.LblMemberInformation->setText(u"Description"_s);
        m_panes.LblMemberListing->setText(u"User"_s);
        loadUserTree(m_panes, CurrentNode);
    }
    m_panes.LblMemberListing->setText(m_table.plural + u" - "_s + QString::number(total) + u" (Click to Refresh)"_s);
}

// Adds a node for each group and returns the number of rows under all of them.
qint16 GroupedRows::loadGroups()
{
    CLsDataBaseConnection outer;
    CLsDataBaseConnection inner;
    qint16 total = 0;
    data::Recordset groups = outer.CreateRecordset(u"select * from NodeInformation Where NodeActive = 1"_s);
    for (; !groups.Eof(); groups.MoveNext()) {
        const QString name = runtime::toText(groups[u"NodeName"].Value());
        data::Recordset rows =
            inner.CreateRecordset(u"select * from ["_s + m_table.name + u"] Where ["_s + m_table.groupColumn +
                                  u"] like '"_s + name + u"%' and Active = yes"_s);
        const qint32 count = rows.RecordCount();
        total = runtime::toInteger(runtime::Value(qint32(total) + count));
        rows.Close();
        inner.DbClose();
        CurrentNode = &m_panes.addGroup(name, count);
    }
    groups.Close();
    return total;
}

void GroupedRows::clearTree()
{
    CurrentNode = nullptr;
    m_panes.TreClassView->Nodes.Clear();
}

void GroupedRows::announceGroup()
{
    m_window.setCaption(m_table.captionStart + u'"' + m_panes.TreClassView->SelectedItem()->Tag +
                        u"\" are displayed."_s);
    m_panes.LblMemberInformation->setText(m_table.information + u" - "_s + m_panes.countText());
}

void GroupedRows::sortBy(int column)
{
    const desktop::ColumnHeader &clicked = m_panes.LstStudenInformation->ColumnHeaders(column);
    const QString count = m_panes.countText();
    SortClause = sortClauseAfterClick(SortClause, clicked.Tag);
    m_panes.LblMemberInformation->setText(m_table.information + u" - "_s + count +
                                          u" : Currently the list is sorted by the field "_s + clicked.Text +
                                          u" in "_s + sortDirection(SortClause) + u" order"_s);
}

void GroupedRows::loadList()
{
    const QString group = m_panes.TreClassView->SelectedItem()->Tag;
    if (group.isEmpty())
        return;
    CLsDataBaseConnection store;
    data::Recordset rows = store.CreateRecordset(m_table.listStart + group + m_table.listEnd + SortClause);
    fillList(*m_panes.LstStudenInformation, rows, m_table.columns.front().column, m_table.columns);
    rows.Close();
    store.DbClose();
}

void GroupedRows::deleteSelected(const std::function<void()> &reload)
{
    const int answer = desktop::MsgBox(m_table.deleteQuestion, desktop::vbYesNo, u"Tolmark"_s);
    CommandSequence sequence;
    sequence.open();
    if (answer == desktop::vbYes) {
        desktop::LongWork work(u"Deleting"_s, m_panes.LstStudenInformation->selectedItems().size());
        qsizetype row = 1;
        m_panes.forEachSelected([&](const desktop::ListItem &item) {
            work.at(row++);
            sequence.execute(m_table.deleteStart + item.Text());
        });
        reload();
    }
    sequence.close();
}
