#include "shell/store/CommandSequence.h"

#include "shell/store/DataStore.h"

void CommandSequence::open()
{
    m_connection = data::Connection(); // closes the one that a failed handler left open
    openDataStore(m_connection);
    m_connection.CursorLocation = data::adUseClient;
    command.ActiveConnection = &m_connection;
}

data::Recordset CommandSequence::execute(const QString &statement)
{
    command.CommandText = statement;
    return command.Execute(data::adOptionUnspecified);
}

void CommandSequence::close()
{
    command.Cancel();
    m_connection.Close();
    m_connection.Cancel();
}
