// Where the data store is, and how every handler reaches it. The string is composed anew at each use and nothing keeps
// it; the errors of the data objects go to the caller.
#pragma once

#include "platform/data/Connection.h"
#include "platform/data/Recordset.h"

#include <QString>

// Names Tolmark.mdb beside the executable.
QString dataStoreConnectionString();

void openDataStore(data::Connection &connection);
// With a static cursor and the optimistic lock: rows can be counted, added and changed.
data::Recordset openRows(data::Connection &connection, const QString &statement);
