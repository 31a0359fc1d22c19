#include "platform/data/Connection.h"

#include "platform/data/engine/WarmFile.h"
#include "platform/runtime/ProviderError.h"

#include <QStringView>

using namespace Qt::Literals::StringLiterals;

namespace data {

namespace {

// The value that begins at `at`, and `at` moves to the semicolon behind it. A value in quotes may hold semicolons, and
// its quote doubled.
QString valueAt(QStringView settings, qsizetype &at)
{
    while (at < settings.size() && settings[at].isSpace())
        ++at;
    const QChar quote = at < settings.size() ? settings[at] : QChar();
    QString quoted;
    if (quote == u'"' || quote == u'\'') {
        for (++at; at < settings.size(); ++at) {
            if (settings[at] == quote && (++at >= settings.size() || settings[at] != quote))
                break;
            quoted += settings[at];
        }
    }
    const qsizetype begin = at;
    at = settings.indexOf(u';', at);
    at = at < 0 ? settings.size() : at;
    return quote == u'"' || quote == u'\'' ? quoted : settings.sliced(begin, at - begin).trimmed().toString();
}

// The value of a keyword in "Keyword=value;Keyword=value;", empty when it is not there.
QString connectionValue(QStringView settings, QStringView keyword)
{
    for (qsizetype at = 0; at < settings.size(); ++at) {
        const qsizetype equals = settings.indexOf(u'=', at);
        if (equals < 0)
            break;
        const QStringView known = settings.sliced(at, equals - at);
        at = equals + 1;
        QString value = valueAt(settings, at);
        if (known.trimmed().compare(keyword, Qt::CaseInsensitive) == 0)
            return value;
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
    m_database = WarmFile::open(connectionValue(connectionString, u"Data Source"));
}

void Connection::Close()
{
    if (!m_database)
        throw provider::objectError(provider::ObjectClosed, "ADODB.Connection");
    m_database.reset();
}

} // namespace data
