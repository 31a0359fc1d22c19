// The tables of a data file and their columns, as every command that walks them needs them.
#pragma once

#include "platform/data/engine/ColumnType.h"
#include "platform/data/engine/Database.h"

#include <QList>
#include <QString>

namespace datafile {

struct StoredColumn
{
    QString name;
    data::ColumnType type = data::ColumnType::Unknown;
};

struct StoredTable
{
    QString name;
    bool hasRowIds = true;
    QList<StoredColumn> columns; // in their order
};

// By name, without those that SQLite adds for itself; the designer's tables are among them.
QList<StoredTable> tablesOf(const data::Database &file);

// A name as SQL writes it, whatever signs it has.
QString quoted(const QString &name);

} // namespace datafile
