#include "datafile/WholeResult.h"

#include "platform/runtime/RuntimeError.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace datafile {

namespace {

constexpr int FileAlreadyExists = 58;

[[noreturn]] void failToWrite(const QString &path)
{
    throw runtime::RuntimeError(runtime::PathFileAccess,
                                u"'%1' cannot be written: %2."_s.arg(path, qt_error_string(errno)));
}

QString existingFolderOf(const QString &path)
{
    QString folder = QFileInfo(path).absolutePath();
    if (!QFileInfo(folder).isDir())
        throw runtime::RuntimeError(runtime::PathNotFound, u"The folder '%1' does not exist."_s.arg(folder));
    return folder;
}

[[noreturn]] void failUnlessTaken(const QString &path)
{
    const int reason = errno;
    refuseTakenPath(path);
    errno = reason;
    failToWrite(path);
}

// For file systems that cannot rename without replacing: takes the name with an empty file or folder, which fails where
// anything stands, and lets the result replace that.
void claimAndReplace(const QString &from, const QString &to)
{
    const bool isClaimed =
        QFileInfo(from).isDir() ? QDir().mkdir(to) : QFile(to).open(QIODevice::WriteOnly | QIODevice::NewOnly);
    if (!isClaimed)
        failUnlessTaken(to);
    if (std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) != 0) {
        const int reason = errno;
        QFileInfo(to).isDir() ? QDir().rmdir(to) : QFile::remove(to);
        errno = reason;
        failToWrite(to);
    }
}

void syncWith(int (*sync)(int), const QString &path)
{
    const int handle = open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    const bool isDone = handle >= 0 && sync(handle) == 0;
    const int reason = errno;
    if (handle >= 0)
        close(handle);
    if (!isDone && reason != EINVAL) // a file system without anything to wait for
        throw runtime::RuntimeError(runtime::DeviceError,
                                    u"'%1' cannot be put on the disk: %2."_s.arg(path, qt_error_string(reason)));
}

} // namespace

void putOnDisk(const QString &path)
{
    const bool isFolder = QFileInfo(path).isDir();
    syncWith(isFolder ? syncfs : fsync, path); // at once, for a folder may hold thousands of files
    syncWith(fsync, QFileInfo(path).absolutePath());
}

void refuseTakenPath(const QString &path)
{
    const QFileInfo place(path);
    if (place.exists() || place.isSymLink()) // a link that leads nowhere does not "exist"
        throw runtime::RuntimeError(FileAlreadyExists, u"'%1' already exists; it was left as it is."_s.arg(path));
}

void renameWithoutReplacing(const QString &from, const QString &to)
{
    if (renameat2(AT_FDCWD, QFile::encodeName(from).constData(), AT_FDCWD, QFile::encodeName(to).constData(),
                  RENAME_NOREPLACE) == 0)
        return;
    if (errno == EINVAL || errno == ENOSYS)
        return claimAndReplace(from, to);
    failUnlessTaken(to);
}

WholeResult::WholeResult(const QString &path)
    : m_path((refuseTakenPath(path), path)), m_workshop(existingFolderOf(path) + u"/.tolmark-datafile-XXXXXX"_s)
{
    if (!m_workshop.isValid())
        throw runtime::RuntimeError(
            runtime::PathFileAccess,
            u"The folder '%1' cannot be written: %2."_s.arg(QFileInfo(path).absolutePath(), m_workshop.errorString()));
}

void WholeResult::finish()
{
    putOnDisk(unfinished());
    renameWithoutReplacing(unfinished(), m_path);
    putOnDisk(m_path);
}

} // namespace datafile
