#include "shell/CLsDataBaseConnection.h"

#include "shell/DataStore.h"

data::Recordset CLsDataBaseConnection::CreateRecordset(const QString &Sql)
{
    m_connection.Open(dataStoreConnectionString(), {}, {}, data::adOptionUnspecified);
    data::Recordset recordset;
    recordset.Open(Sql, m_connection, data::adOpenStatic, data::adLockOptimistic);
    return recordset;
}

void CLsDataBaseConnection::DbClose()
{
    m_connection.Close();
}
