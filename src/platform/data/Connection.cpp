#include "platform/data/Connection.h"

#include "platform/data/engine/Database.h"
#include "platform/runtime/ProviderError.h"

#include <QStringTokenizer>

using namespace Qt::Literals::StringLiterals;

namespace data {

namespace {

// The value of a keyword in "Keyword=value;Keyword=value;", empty when it is not there.
QString connectionValue(const QString &connectionString, QStringView keyword)
{
    for (const QStringView setting : QStringTokenizer(connectionString, u';')) {
        const qsizetype equals = setting.indexOf(u'=');
        if (equals > 0 && setting.first(equals).trimmed().compare(keyword, Qt::CaseInsensitive) == 0)
            return setting.sliced(equals + 1).trimmed().toString();
    }
    return {};
}

} // namespace

void Connection::Open(const QString &connectionString, const QString &, const QString &, int)
{
    if (m_database)
        throw provider::objectError(provider::ObjectOpen, "ADODB.Connection");
    if (connectionValue(connectionString, u"Provider").isEmpty())
        throw provider::objectError(provider::NoProvider, "ADODB.Connection");
    auto database = std::make_shared<Database>();
    database->open(connectionValue(connectionString, u"Data Source").replace(u'\\', u'/'));
    m_database = std::move(database);
}

void Connection::Close()
{
    if (!m_database)
        throw provider::objectError(provider::ObjectClosed, "ADODB.Connection");
    m_database.reset();
}

} // namespace data
