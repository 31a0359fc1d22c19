#include "shell/store/CLsDataBaseConnection.h"

#include "shell/store/DataStore.h"

data::Recordset CLsDataBaseConnection::CreateRecordset(const QString &Sql)
{
    openDataStore(m_connection);
    return openRows(m_connection, Sql);
}

void CLsDataBaseConnection::DbClose()
{
    m_connection.Close();
}
