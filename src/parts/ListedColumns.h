// The columns of a list whose lines are rows of the data store.
#pragma once

#include "platform/data/Recordset.h"
#include "platform/desktop/ListView.h"

#include <span>

struct ListedColumn
{
    QStringView header;
    QStringView tag;    // what stands behind ORDER BY
    QStringView column; // of the query
};

void setUpHeaders(desktop::ListView &list, std::span<const ListedColumn> columns);

// Puts all rows in the place of the list's lines; a Null leaves its place empty. A line's Tag is the row's key, where
// one is named.
void fillList(desktop::ListView &list, data::Recordset &rows, QStringView key, std::span<const ListedColumn> columns);
