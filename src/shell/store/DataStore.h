// Where the data store is, and how every handler opens it. The connection string is composed anew at each use, since
// the application folder may be set by a test. The errors of the data objects go to the caller.
#pragma once

#include "platform/data/Connection.h"
#include "platform/data/Recordset.h"

#include <QString>

// Names the file Tolmark.mdb in the application folder.
QString dataStoreConnectionString();

void openDataStore(data::Connection &connection);
// With a static cursor and the optimistic lock: rows can be counted, added and changed.
data::Recordset openRows(data::Connection &connection, const QString &statement);
