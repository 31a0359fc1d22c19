// The rows of one table by groups: the tree of the groups with the number of rows in each, the list of the chosen
// group's rows, which the store sorts, and the deletion of the selected ones.
//
// It works on the panes of its window. Every failure goes to the caller: each window decides which ones it
// reports.
#pragma once

#include "explorers/ExplorerPanes.h"
#include "parts/ListedColumns.h"

#include <functional>

// The table that an explorer shows, its statements and its texts.
struct GroupedTable
{
    QString name;
    QString groupColumn;                   // a row belongs to the group with whose name its value here begins
    QString plural;                        // "Members"
    QString information;                   // headline of the list
    QString captionStart;                  // beginning of the window's caption, up to the group's name
    QString listStart;                     // the list's query up to the group's name
    QString listEnd;                       // the rest of the query, behind the name
    std::span<const ListedColumn> columns; // the first is the key
    QString deleteQuestion;
    QString deleteStart; // the statement that deletes a row, up to the row's key
};

class GroupedRows
{
public:
    GroupedRows(desktop::Form &window, ExplorerPanes &panes, GroupedTable table);

    // The node added last.
    desktop::ObjectRef<desktop::Node> CurrentNode;
    // The ORDER BY tail of the list's query, with a leading blank.
    QString SortClause;

    void loadColumns();
    // Adds the groups with their counts; the users under the groups for a level of 99 or more. Error 35602 when the
    // tree holds a group already, error 6 beyond 32,767 rows.
    void loadTree(qint16 userLevel);
    void clearTree();

    // Writes the selected group into the window's caption and the count of its rows into the headline of the list.
    void announceGroup();
    // Sets SortClause for a click on the column, counted from 1, and writes the order into the headline of the list.
    void sortBy(int column);
    // Lists the selected group in the order of SortClause; a node without a group leaves the list as it is.
    void loadList();

    // Asks, and after a Yes deletes the selected rows and runs `reload`. After a failure the connection stays open
    // until the handler has ended.
    void deleteSelected(const std::function<void()> &reload);

private:
    qint16 loadGroups();

    desktop::Form &m_window;
    ExplorerPanes &m_panes;
    GroupedTable m_table;
};
