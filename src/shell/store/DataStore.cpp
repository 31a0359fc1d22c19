#include "shell/store/DataStore.h"

#include "platform/runtime/Application.h"

using namespace Qt::Literals::StringLiterals;

QString dataStoreConnectionString()
{
    return u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source="_s + runtime::App::Path() + u"\\Tolmark.mdb;"_s;
}

void openDataStore(data::Connection &connection)
{
    connection.Open(dataStoreConnectionString(), {}, {}, data::adOptionUnspecified);
}

data::Recordset openRows(data::Connection &connection, const QString &statement)
{
    data::Recordset rows;
    rows.Open(statement, connection, data::adOpenStatic, data::adLockOptimistic);
    return rows;
}
