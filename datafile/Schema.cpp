#include "datafile/Schema.h"

#include "datafile/Groups.h"
#include "datafile/WholeResult.h"
#include "platform/runtime/RuntimeError.h"

#include <QFile>

using namespace Qt::Literals::StringLiterals;

// Resources of a static library have to be asked for, outside every namespace.
static void initResources()
{
    Q_INIT_RESOURCE(datafile);
}

namespace datafile {

namespace {

void fillNewFile(const QString &path, const std::function<void(data::Database &)> &fill)
{
    data::Database file;
    file.create(path);
    // A file that fails is thrown away, so there is nothing to roll back; its commits reach the disk.
    file.execute("PRAGMA journal_mode = OFF; PRAGMA synchronous = FULL; BEGIN");
    createTables(file);
    file.execute(builtIn(u"seed.sql"_s));
    if (fill)
        fill(file);
    addMissingGroups(file);
    file.execute("COMMIT");
}

} // namespace

QByteArray builtIn(const QString &name)
{
    initResources();
    QFile file(u":/datafile/"_s + name);
    if (!file.open(QIODevice::ReadOnly))
        throw runtime::RuntimeError(runtime::FileNotFound);
    return file.readAll();
}

void createTables(data::Database &file)
{
    file.execute(builtIn(u"schema.sql"_s));
}

void createDataFile(const QString &path)
{
    createDataFile(path, {});
}

void createDataFile(const QString &path, const std::function<void(data::Database &)> &fill)
{
    WholeResult result(path);
    fillNewFile(result.unfinished(), fill);
    result.finish();
}

} // namespace datafile
