// The definitions of tables and columns behind the public objects, and how they are stored in the data file and read.
//
// What can be refused is checked before the file is changed, and a change that fails in the file leaves it as it was.
#pragma once

#include "platform/data/engine/ColumnType.h"
#include "platform/data/engine/Database.h"

#include <optional>

namespace data {

struct TableDefinition;

struct ColumnDefinition
{
    QString name;
    int type = int(ColumnType::Text);
    bool isAutoIncrement = false;
    bool isRequired = true;
    std::optional<QString> defaultExpression; // in SQLite's SQL for a stored column, else in the dialect
    bool isStored = false;
    std::weak_ptr<Database> catalog;
    std::weak_ptr<TableDefinition> table;
};

struct TableDefinition
{
    QString name;
    QString type = QStringLiteral("TABLE");
    bool isStored = false;
    std::weak_ptr<Database> catalog;
    // Of a table that is not stored; those of a stored one are read from the file.
    std::vector<std::shared_ptr<ColumnDefinition>> columns;
};

bool isSameName(const QString &a, const QString &b);
// The error for a property that the column cannot have and for a change of what is stored.
runtime::RuntimeError refusedProperty();

// All tables and views by name.
std::vector<std::shared_ptr<TableDefinition>> storedTables(const std::shared_ptr<Database> &file);
std::vector<std::shared_ptr<ColumnDefinition>> storedColumns(const std::shared_ptr<Database> &file,
                                                             const QString &table);
void storeTable(Database &file, const TableDefinition &table);
void storeColumn(Database &file, const TableDefinition &table, const ColumnDefinition &column);

} // namespace data
