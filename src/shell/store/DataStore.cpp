#include "shell/store/DataStore.h"

#include "platform/runtime/Application.h"

#include <QDir>

using namespace Qt::Literals::StringLiterals;

namespace {

// A semicolon would end the value and a quote at its beginning would begin a quoted one: such a path is put into
// quotes.
QString connectionValueOf(QString path)
{
    if (!path.contains(u';') && !path.startsWith(u'"') && !path.startsWith(u'\''))
        return path;
    return u'"' + path.replace(u"\""_s, u"\"\""_s) + u'"';
}

} // namespace

QString dataStoreConnectionString()
{
    const QString file = runtime::App::Path() + u"/Tolmark.mdb"_s;
    return u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source="_s + connectionValueOf(file) + u';';
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
