#include "benchmarks/Files.h"

#include "datafile/Generator.h"
#include "datafile/Schema.h"
#include "platform/data/sql/Translation.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <functional>

using namespace Qt::Literals::StringLiterals;

namespace files {

namespace {

QString made(const QString &name, const std::function<void(const QString &)> &make)
{
    const QString path = folder() + u'/' + name;
    if (!QFileInfo::exists(path))
        make(path);
    return path;
}

// The members of the large group who are inactive are listed nowhere.
constexpr int crowdFor2000Listed = 2054;

} // namespace

QString folder()
{
    static const QString given = qEnvironmentVariable("TOLMARK_BENCHMARK_FOLDER");
    if (!given.isEmpty())
        return given;
    static const QTemporaryDir own;
    return own.path();
}

QString organisation()
{
    return made(u"Tolmark.mdb"_s, [](const QString &path) {
        datafile::GeneratorOptions options;
        options.members = 32'767;
        options.interests = 100'000;
        options.attachments = 10'000;
        options.attachmentBytes = attachmentBytes;
        options.crowd = crowdFor2000Listed;
        options.crowdInitial = largeGroup;
        datafile::createGeneratedFile(path, options);
    });
}

QString fewAttachments()
{
    return made(u"few.mdb"_s, [](const QString &path) {
        datafile::GeneratorOptions options;
        options.attachments = 10;
        options.attachmentBytes = attachmentBytes;
        datafile::createGeneratedFile(path, options);
    });
}

QString empty(const QString &name)
{
    return made(name, [](const QString &path) { datafile::createDataFile(path); });
}

QString connectionString(const QString &path)
{
    return u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source="_s + path + u';';
}

QByteArray emitted(const QString &statement)
{
    return sql::translate(statement).sql;
}

QByteArray emittedCount(const QString &statement)
{
    return "SELECT COUNT(*) FROM (" + emitted(statement) + ')';
}

} // namespace files
