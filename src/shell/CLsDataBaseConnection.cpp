#include "shell/CLsDataBaseConnection.h"

#include "shell/DataStore.h"

data::Recordset CLsDataBaseConnection::CreateRecordset(const QString &Sql)
{
    openDataStore(m_connection);
    return openRows(m_connection, Sql);
}

void CLsDataBaseConnection::DbClose()
{
    m_connection.Close();
}
