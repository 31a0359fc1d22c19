// The columns of a list whose lines are rows of the data store, described by one table: header, content and width. A
// new column goes to the end: the key of a line and Keyed rely on the places of the first ones.
#pragma once

#include "platform/data/Recordset.h"
#include "platform/desktop/ListView.h"

#include <span>

struct ListedColumn
{
    QStringView header;
    QStringView tag = {};    // what stands behind ORDER BY when the header is clicked
    QStringView column = {}; // of the query
    double width = 0;        // twips; 0: the list's default, and at least the header's text
    // Computes the cell where it is not the column's own value. Null leaves the cell empty.
    runtime::Value (*cell)(data::Recordset &row) = nullptr;
};

// Which lines have the row's key as their Tag.
enum class Keyed { EveryLine, LinesWithFirstCell };

// Gives the list a header for each column, in the place of those that it has.
void setUpHeaders(desktop::ListView &list, std::span<const ListedColumn> columns);
// The same, to the right of those that it has.
void addHeaders(desktop::ListView &list, std::span<const ListedColumn> columns);

// Replaces the list's lines by the rows from the current one to the last; a Null leaves its cell empty. A line's Tag is
// the row's key, where the name of its column is given.
void fillList(desktop::ListView &list, data::Recordset &rows, QStringView key, std::span<const ListedColumn> columns,
              Keyed keyed = Keyed::EveryLine);

// What the line shows of that column of the query. Error 35600 for a column that the table does not have.
QString textOf(const desktop::ListItem &line, std::span<const ListedColumn> columns, QStringView column);
