#include "datafile/Schema.h"

#include "platform/runtime/RuntimeError.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <filesystem>
#include <system_error>

using namespace Qt::Literals::StringLiterals;

// Resources of a static library have to be asked for, outside every namespace.
static void initResources()
{
    Q_INIT_RESOURCE(datafile);
}

namespace datafile {

namespace {

constexpr int FileAlreadyExists = 58;

void refuseTakenPath(const QString &path)
{
    const QFileInfo place(path);
    if (place.exists() || place.isSymLink()) // a link that leads nowhere does not "exist"
        throw runtime::RuntimeError(FileAlreadyExists, u"'%1' already exists; it was left as it is."_s.arg(path));
}

// Claims the path with an empty file, which fails for anything that stands there, and lets the finished file take its
// place: so nothing is replaced but what was made here, on file systems without hard links too.
void putInPlace(const QString &finished, const QString &path)
{
    QFile claim(path);
    if (!claim.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
        refuseTakenPath(path);
        throw runtime::RuntimeError(runtime::PathFileAccess,
                                    u"'%1' cannot be written: %2."_s.arg(path, claim.errorString()));
    }
    claim.close();
    std::error_code error;
    std::filesystem::rename(finished.toStdString(), path.toStdString(), error);
    if (error) {
        claim.remove();
        throw runtime::RuntimeError(runtime::PathFileAccess, u"'%1' cannot be written: %2."_s.arg(
                                                                 path, QString::fromStdString(error.message())));
    }
}

void fillNewFile(const QString &path, const std::function<void(data::Database &)> &fill)
{
    data::Database file;
    file.create(path);
    // A file that fails is thrown away, so there is nothing to roll back; its one commit reaches the disk.
    file.execute("PRAGMA journal_mode = OFF; PRAGMA synchronous = FULL; BEGIN");
    createTables(file);
    file.execute(builtIn(u"seed.sql"_s));
    if (fill)
        fill(file);
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
    refuseTakenPath(path);
    const QString folder = QFileInfo(path).absolutePath();
    if (!QFileInfo(folder).isDir())
        throw runtime::RuntimeError(runtime::PathNotFound, u"The folder '%1' does not exist."_s.arg(folder));
    const QTemporaryDir workshop(folder + u"/.tolmark-datafile-XXXXXX"_s);
    if (!workshop.isValid())
        throw runtime::RuntimeError(runtime::PathFileAccess,
                                    u"The folder '%1' cannot be written: %2."_s.arg(folder, workshop.errorString()));
    const QString unfinished = workshop.filePath(u"Tolmark.mdb"_s);
    fillNewFile(unfinished, fill);
    putInPlace(unfinished, path);
}

} // namespace datafile
