// Opens a recordset over a connection of its own. Most handlers read, append and edit rows through it.
//
// It holds at most one open connection: a second CreateRecordset without DbClose in between fails with error 3705, so a
// handler that needs two recordsets at once has two instances. Its destructor closes the connection. The errors of the
// data objects go to the caller.
#pragma once

#include "platform/data/Connection.h"
#include "platform/data/Recordset.h"

class CLsDataBaseConnection
{
public:
    // Static cursor, optimistic lock: rows can be counted, added and changed. The caller owns the recordset and closes
    // it before DbClose.
    data::Recordset CreateRecordset(const QString &Sql);
    void DbClose();

private:
    data::Connection m_connection;
};
