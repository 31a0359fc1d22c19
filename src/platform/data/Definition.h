// What the objects of data definition refer to, and how it gets into the data file and out of it.
//
// Everything that a table or a column can be refused for is looked at before the file is touched.
#pragma once

#include "platform/data/Database.h"
#include "platform/data/Table.h"

#include <optional>

namespace data {

struct Column::Definition
{
    QString name;
    int type = adVarWChar;
    bool isAutoIncrement = false;
    bool isRequired = true;
    std::optional<QString> defaultExpression; // of a stored column SQLite's, else the dialect's
    bool isStored = false;
    std::weak_ptr<Database> catalog;
    std::weak_ptr<Table::Definition> table;
};

struct Table::Definition
{
    QString name;
    QString type = QStringLiteral("TABLE");
    bool isStored = false;
    std::weak_ptr<Database> catalog;
    std::vector<std::shared_ptr<Column::Definition>> columns; // of one that is not stored; else the file has them
};

bool isSameName(const QString &a, const QString &b);
// A property that has no place there, and a change of what is stored.
runtime::RuntimeError refusedProperty();

// All tables and views by name.
std::vector<std::shared_ptr<Table::Definition>> storedTables(const std::shared_ptr<Database> &file);
std::vector<std::shared_ptr<Column::Definition>> storedColumns(const std::shared_ptr<Database> &file,
                                                               const QString &table);
void storeTable(Database &file, const Table::Definition &table);
void storeColumn(Database &file, const Table::Definition &table, const Column::Definition &column);

} // namespace data
