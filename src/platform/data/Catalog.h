// The tables of a data file as they are defined: enumerates them with their columns, and adds new ones.
//
// A catalog's connection opens when its string is set and closes with it; catalogs of one string share it, since each
// new one would have to read all definitions of the file. Once it is closed, a table or column that was taken from it
// still has its name and type. Its columns can no more be read or added (3709), and its properties are gone (3265).
// Other connections see what a catalog adds as soon as it is added.
#pragma once

#include "platform/data/Connection.h"
#include "platform/data/Table.h"

namespace data {

class Database;

// The tables, views and system tables of a file by name.
class Tables
{
public:
    // A range-for goes through the tables that the file had at its beginning. Their columns are not read.
    std::vector<Table>::const_iterator begin();
    std::vector<Table>::const_iterator end() const { return m_enumerated.cend(); }

    // Stores the table with its columns, all of it or, with an error, nothing. Errors: -2147217857 for a name that is
    // in the file already; -2147217900 for a table without columns, a name that no statement could name and a default
    // that is not understood (-2147217913 for one that the column's type cannot hold); -2147217872 for an unknown type;
    // -2147217887 for an "AutoIncrement" on a second column, on one of another type or beside a default.
    void Append(const Table &table) const;

private:
    friend class Catalog;
    explicit Tables(std::weak_ptr<Database> file) : m_file(std::move(file)) {}

    std::weak_ptr<Database> m_file;
    std::vector<Table> m_enumerated;
};

class Catalog
{
public:
    // Raises the errors of Connection::Open; the catalog then keeps the connection that it had.
    void setActiveConnection(const QString &connectionString);
    // Error 3709 without a connection.
    data::Tables Tables() const;

private:
    friend class Column;
    friend class Table;
    // Error 3709 with this source for a catalog without a connection.
    const std::shared_ptr<Database> &database(const char *source) const;

    std::shared_ptr<Connection> m_connection;
};

} // namespace data
