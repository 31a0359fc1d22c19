// Any text as a connection string, and strings of a known meaning: the file that a string names is opened, whatever
// stands round the name, and no other one; any other text opens a file or is refused with an error of the provider.
#include "platform/data/Recordset.h"
#include "platform/data/engine/Database.h"
#include "platform/runtime/ProviderError.h"
#include "proof/fuzz/Fuzz.h"

#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;

namespace {

// With the characters that have a meaning in a connection string.
const QStringList names{u"plain"_s, u"a;b"_s, u"a=b;Data Source=c"_s, u"it's"_s, u"\"quoted\""_s, u"'"_s, u"a;'\";b"_s};

const QTemporaryDir &filesOfThoseNames()
{
    static const QTemporaryDir folder;
    for (const QString &name : names) {
        data::Database file;
        file.create(folder.filePath(name));
        file.execute("CREATE TABLE T (Name TEXT)");
        data::Statement insert = file.prepare("INSERT INTO T VALUES (?1)");
        insert.bind(1, runtime::Value(name));
        insert.step();
    }
    return folder;
}

QString inQuotes(QString text, QChar quote)
{
    return quote + text.replace(quote, QString(2, quote)) + quote;
}

// Another setting, which has no bearing.
QString otherSetting(FuzzedDataProvider &input)
{
    const QString text = takenText(input, 10);
    const QChar quote = input.PickValueInArray({u'\'', u'"'});
    return u"Option="_s + inQuotes(text, quote) + u';';
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QTemporaryDir &folder = filesOfThoseNames();
    FuzzedDataProvider input(data, size);
    const QString name = names[input.ConsumeIntegralInRange<int>(0, int(names.size()) - 1)];
    const QChar quote = input.PickValueInArray({u'\'', u'"'});
    const QString source = QLatin1String(input.PickValueInArray({"Data Source =", "data source= ", "DATA SOURCE="})) +
                           inQuotes(folder.filePath(name), quote) + u';';
    const QString known = otherSetting(input) + u"Provider=Microsoft.Jet.OLEDB.4.0;"_s + otherSetting(input) + source +
                          otherSetting(input);
    data::Connection connection;
    connection.Open(known);
    data::Recordset rows;
    rows.Open(u"SELECT Name FROM T"_s, connection);
    if (rows.Fields(0).Value() != runtime::Value(name))
        found(u"another file by "_s + known);
    try {
        data::Connection other;
        other.Open(QString::fromUtf8(input.ConsumeRemainingBytesAsString()));
    } catch (const runtime::RuntimeError &error) {
        if (error.number() != provider::NoProvider && error.number() != provider::Unspecified)
            found(QString::fromUtf8(error.what()));
    }
    return 0;
}
