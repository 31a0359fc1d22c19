// Tables and columns of the data file, described first and stored when Tables takes the table.
//
// Each object is a reference: a copy is the same table, column or property. The columns of a stored table are read from
// the file whenever they are enumerated or asked for; a column that is appended to it goes into the file at once. What
// is stored cannot be changed any more (error -2147217887). Names compare without regard to the case of ASCII letters,
// as in the file. Error 3709 for a stored table whose catalog is gone.
//
// A trap: a column refuses Null unless its "Nullable" is set True or its "Required" False. A column with a default, a
// Boolean one and an auto-increment one get their value without being written.
#pragma once

#include "platform/data/Constants.h"
#include "platform/runtime/Value.h"

#include <QString>
#include <QStringView>

#include <memory>
#include <vector>

namespace data {

class Catalog;
class Columns;
class Properties;
struct ColumnDefinition;
struct TableDefinition;

class Column
{
public:
    Column();

    QString Name() const;
    void setName(const QString &name);
    int Type() const;
    void setType(int type);
    // Gives the column its properties. Error 3709 for a catalog without a connection, which has none to give.
    void setParentCatalog(const Catalog &catalog);
    data::Properties Properties() const;

private:
    friend class Columns;
    explicit Column(std::shared_ptr<ColumnDefinition> definition);

    std::shared_ptr<ColumnDefinition> m_definition;
};

class Property
{
public:
    // A "Default" is Null until it is set. Of a stored column it is the expression in SQLite's SQL.
    runtime::Value Value() const;
    // Takes a text for "Default" and a Boolean for the others; error 3001 for a value of another type.
    void setValue(const runtime::Value &value);

private:
    friend class Properties;
    enum class Kind { AutoIncrement, Default, Nullable, Required };
    Property(std::shared_ptr<ColumnDefinition> column, Kind kind);

    std::shared_ptr<ColumnDefinition> m_column;
    Kind m_kind;
};

// "AutoIncrement", "Default", "Nullable" and its reverse "Required", without regard to case. Empty until the column or
// its table has a ParentCatalog.
//
// "AutoIncrement" is for one adInteger column of a new table: the file numbers the rows from 1 and gives out no number
// twice. The column is no key: it takes a number set by hand, a repeated one too.
// "Default" is an expression: Date(), Time() or Now() (parentheses, a "=" before and, for the first two, a "$" as you
// like), which take the moment of each insert and need an adDate column, or a number or a text in quotes that the
// column can hold. Anything else is refused when the column is stored.
class Properties
{
public:
    // Error 3265.
    Property Item(QStringView name) const;

private:
    friend class Column;
    explicit Properties(std::shared_ptr<ColumnDefinition> column);

    std::shared_ptr<ColumnDefinition> m_column;
};

class Table
{
public:
    Table();

    QString Name() const;
    void setName(const QString &name);
    // "TABLE", "VIEW" or "SYSTEM TABLE".
    QString Type() const;
    // Gives all its columns their properties. Error 3709 for a catalog without a connection.
    void setParentCatalog(const Catalog &catalog);
    data::Columns Columns() const;

private:
    friend class Tables;
    explicit Table(std::shared_ptr<TableDefinition> definition);

    std::shared_ptr<TableDefinition> m_definition;
};

// The columns of a table in their order.
class Columns
{
public:
    // A range-for goes through the columns that the table had at its beginning.
    std::vector<Column>::const_iterator begin();
    std::vector<Column>::const_iterator end() const { return m_enumerated.cend(); }

    // Error 3265.
    Column Item(QStringView name) const;
    // Error 3367 for a repeated name or a column that is in a table already; on a stored table -2147217858, and the
    // errors of Tables::Append. The size is taken and has no bearing: a text of this store has any length.
    void Append(const QString &name, int type = adVarWChar, int definedSize = 0) const;
    void Append(const Column &column, int type, int definedSize) const;

private:
    friend class Table;
    explicit Columns(std::shared_ptr<TableDefinition> table);

    std::shared_ptr<TableDefinition> m_table;
    std::vector<Column> m_enumerated;
};

} // namespace data
