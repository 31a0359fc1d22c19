// What the objects of data definition refer to, and how it gets into the data file and out of it.
//
// Everything that a table or a column can be refused for is looked at before the file is touched.
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
    std::optional<QString> defaultExpression; // of a stored column SQLite's, else the dialect's
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
    std::vector<std::shared_ptr<ColumnDefinition>> columns; // of one that is not stored; else the file has them
};

bool isSameName(const QString &a, const QString &b);
// A property that has no place there, and a change of what is stored.
runtime::RuntimeError refusedProperty();

// All tables and views by name.
std::vector<std::shared_ptr<TableDefinition>> storedTables(const std::shared_ptr<Database> &file);
std::vector<std::shared_ptr<ColumnDefinition>> storedColumns(const std::shared_ptr<Database> &file,
                                                             const QString &table);
void storeTable(Database &file, const TableDefinition &table);
void storeColumn(Database &file, const TableDefinition &table, const ColumnDefinition &column);

} // namespace data
