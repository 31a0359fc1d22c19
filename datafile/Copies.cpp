#include "datafile/Copies.h"

#include "datafile/Check.h"
#include "datafile/Tables.h"
#include "datafile/WholeResult.h"
#include "platform/runtime/RuntimeError.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace datafile {

namespace {

constexpr int mostAttempts = 10; // to find the file unchanged from the beginning of a copy to its end

[[noreturn]] void failToCopy(const QString &text)
{
    throw runtime::RuntimeError(runtime::DeviceError, text);
}

// The number of rows of each table, of one moment.
QStringList rowCounts(data::Database &file)
{
    QStringList counts;
    file.execute("BEGIN");
    for (const StoredTable &table : tablesOf(file)) {
        data::Statement count = file.prepare(u"SELECT count(*) FROM %1"_s.arg(quoted(table.name)).toUtf8());
        count.step();
        counts << u"%1: %2"_s.arg(table.name).arg(count.integer(0));
    }
    file.execute("COMMIT");
    return counts;
}

// Changes with every commit of another connection to the file.
qint64 changeMark(const data::Database &file)
{
    data::Statement mark = file.prepare("PRAGMA data_version");
    mark.step();
    return mark.integer(0);
}

void compareCopy(const QString &path, const QStringList &expectedCounts)
{
    data::Database copy;
    copy.open(path);
    stopOnSignals(copy);
    data::Statement answer = copy.prepare("PRAGMA integrity_check");
    answer.step();
    if (answer.text(0) != QByteArrayView("ok"))
        failToCopy(u"the copy is not sound: %1"_s.arg(QString::fromUtf8(answer.text(0))));
    answer.finalize();
    const QStringList counts = rowCounts(copy);
    for (qsizetype i = 0; i < qMax(counts.size(), expectedCounts.size()); ++i)
        if (counts.value(i) != expectedCounts.value(i))
            failToCopy(u"the copy differs from the file: %1 rows, %2 in the file"_s.arg(counts.value(i),
                                                                                        expectedCounts.value(i)));
}

bool isSameFile(const QString &a, const QString &b)
{
    const QString pathA = QFileInfo(a).canonicalFilePath();
    return !pathA.isEmpty() && pathA == QFileInfo(b).canonicalFilePath();
}

void requireGoodFile(const QString &path)
{
    const QStringList faults = faultsOfLayout(path);
    if (!faults.isEmpty())
        failToCopy(u"'%1' cannot serve as the data file: %2"_s.arg(path, faults.first()));
}

// Holds the file against every other connection. A file that SQLite cannot read has none, and needs no lock.
data::Database lockedFile(const QString &path)
{
    data::Database file;
    try {
        file.open(path);
        file.execute("PRAGMA locking_mode = NORMAL; BEGIN EXCLUSIVE");
    } catch (const data::StoreError &error) {
        if (!error.isUnreadable())
            throw;
        file.close();
    }
    return file;
}

// Names of the unfinished changes that SQLite keeps beside a file. They belong to the old file alone: beside the new
// one they would be rolled back into it.
void renameCompanions(const QString &file, const QString &old)
{
    for (const QString &suffix : {u"-journal"_s, u"-wal"_s, u"-shm"_s})
        if (QFileInfo::exists(file + suffix))
            renameWithoutReplacing(file + suffix, old + suffix);
}

// The old file has both names for a moment, so that a file stands at the path all the time.
void exchange(const QString &file, const QString &fresh, const QString &old)
{
    const QByteArray path = QFile::encodeName(file);
    if (link(path.constData(), QFile::encodeName(old).constData()) != 0) {
        renameWithoutReplacing(file, old); // a file system without hard links
        try {
            renameWithoutReplacing(fresh, file);
        } catch (const runtime::RuntimeError &) {
            renameWithoutReplacing(old, file);
            throw;
        }
        return;
    }
    if (std::rename(QFile::encodeName(fresh).constData(), path.constData()) != 0) {
        const QString reason = qt_error_string(errno);
        QFile::remove(old);
        throw runtime::RuntimeError(runtime::PathFileAccess, u"'%1' cannot be replaced: %2."_s.arg(file, reason));
    }
}

bool isOpenIn(const QString &process, const struct stat &file)
{
    const QDir handles(process + u"/fd"_s);
    for (const QString &handle : handles.entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)) {
        struct stat opened = {};
        if (stat(QFile::encodeName(handles.filePath(handle)).constData(), &opened) == 0 &&
            opened.st_dev == file.st_dev && opened.st_ino == file.st_ino)
            return true;
    }
    return false;
}

} // namespace

void copyWholeFile(const QString &file, const QString &copy, Progress &progress)
{
    data::Database source;
    source.open(file);
    stopOnSignals(source);
    QStringList counts;
    for (int attempt = 1;; ++attempt) {
        const qint64 mark = changeMark(source);
        counts = rowCounts(source);
        data::Database target;
        target.create(copy);
        source.copyTo(target, [&progress](qint64 done, qint64 all) { progress.at(done, all); });
        target.close();
        if (changeMark(source) == mark)
            break;
        QFile::remove(copy);
        if (attempt == mostAttempts)
            failToCopy(u"'%1' is being changed again and again; try it at a quieter time"_s.arg(file));
    }
    compareCopy(copy, counts);
    QFile::setPermissions(copy, QFileInfo(file).permissions()); // nobody may read more than before
}

void backUp(const QString &file, const QString &copy, Progress &progress)
{
    WholeResult result(copy);
    copyWholeFile(file, result.unfinished(), progress);
    result.finish();
}

QStringList processesUsing(const QString &file)
{
    struct stat data = {};
    if (stat(QFile::encodeName(file).constData(), &data) != 0)
        return {};
    const QString folder = QFileInfo(QFileInfo(file).canonicalFilePath()).absolutePath();
    const QString replaced = u" (deleted)"_s; // the kernel's word where another file has taken the program's name
    QStringList users;
    for (const QString &number : QDir(u"/proc"_s).entryList({u"[0-9]*"_s}, QDir::Dirs)) {
        const QString process = u"/proc/"_s + number;
        if (number.toLongLong() == getpid())
            continue;
        QString program = QFile::symLinkTarget(process + u"/exe"_s);
        if (program.endsWith(replaced))
            program.chop(replaced.size());
        if (program == folder + u"/Tolmark"_s || isOpenIn(process, data))
            users << u"%1 (process %2)"_s.arg(QFileInfo(program).fileName(), number);
    }
    return users;
}

void refuseFileInUse(const QString &file)
{
    const QStringList users = processesUsing(file);
    if (!users.isEmpty())
        throw runtime::RuntimeError(runtime::PermissionDenied,
                                    u"'%1' is open in %2; close it first."_s.arg(file, users.join(u", "_s)));
}

QString datedName(const QString &file)
{
    const QFileInfo place(file);
    const QString stem = place.absolutePath() + u'/' + place.completeBaseName() +
                         QDateTime::currentDateTime().toString(u" yyyy-MM-dd HHmmss"_s);
    const QString suffix = place.suffix().isEmpty() ? QString() : u'.' + place.suffix();
    QString name = stem + suffix;
    for (int i = 2; QFileInfo::exists(name) || QFileInfo(name).isSymLink(); ++i)
        name = stem + u" (%1)"_s.arg(i) + suffix;
    return name;
}

QString restore(const QString &copy, const QString &file, Progress &progress)
{
    if (isSameFile(copy, file))
        throw runtime::RuntimeError(runtime::PathFileAccess, u"'%1' and '%2' are one file."_s.arg(copy, file));
    requireGoodFile(copy);
    const QFileInfo place(file);
    if (!place.exists()) {
        backUp(copy, file, progress);
        return {};
    }
    const QString path = place.canonicalFilePath(); // a link stays, and what it leads to is replaced
    QString old = datedName(path);
    WholeResult result(old); // beside the file, on the same file system
    copyWholeFile(copy, result.unfinished(), progress);

    const data::Database locked = lockedFile(path);
    refuseFileInUse(path);
    QFile::setPermissions(result.unfinished(), place.permissions());
    progress.at(1, 1); // the last moment at which Ctrl-C leaves everything as it was
    renameCompanions(path, old);
    putOnDisk(result.unfinished());
    exchange(path, result.unfinished(), old);
    putOnDisk(path);
    return old;
}

} // namespace datafile
