// A connection to the data file, named by a connection string.
//
// Closing it closes the recordsets that were opened over it, and so does its destructor. It runs no statement and holds
// no lock between two calls, so many may be open over one file. Errors of Open: 3706 without a
// provider, 3705 when open already, the provider's own for a file that is missing or of another kind.
#pragma once

#include "platform/data/Constants.h"

#include <QString>

#include <memory>

namespace data {

class Database;

class Connection
{
public:
    Connection() = default;
    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;
    Connection(Connection &&) noexcept = default;
    Connection &operator=(Connection &&) noexcept = default;
    ~Connection() = default;

    // "Provider=...;Data Source=FILE;". The path is taken exactly as it stands. In quotes, single or double, it may
    // hold semicolons; the quote itself is doubled inside. User, password and options have no bearing on a plain file.
    void Open(const QString &connectionString, const QString &user = {}, const QString &password = {},
              int options = adOptionUnspecified);
    void Close();
    // Without effect, also on a closed connection: it would end what runs asynchronously, and nothing does.
    void Cancel() {}
    ObjectStateEnum State() const { return m_database ? adStateOpen : adStateClosed; }

    // Without effect: every recordset of this store is static. It may be set at any time.
    int CursorLocation = adUseServer;

private:
    friend class Catalog;
    friend class Recordset;

    // The data objects that were opened over this connection see it expire when the connection closes.
    std::shared_ptr<Database> m_database;
};

} // namespace data
