// Opens a recordset over a connection of its own: how most handlers read, and append or edit rows.
//
// It holds at most one open connection. A second CreateRecordset without DbClose between fails with error 3705, so who
// needs two recordsets at once holds two instances. Dropped with its connection open, it closes it. The errors of the
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
