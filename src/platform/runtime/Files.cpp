#include "platform/runtime/Files.h"

#include "platform/runtime/RuntimeError.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

#include <filesystem>
#include <optional>
#include <system_error>

using namespace Qt::Literals::StringLiterals;

namespace runtime {

namespace {

struct Enumeration
{
    QString folder;
    QStringList names; // not yet returned
};

std::optional<Enumeration> &running()
{
    static std::optional<Enumeration> enumeration;
    return enumeration;
}

// Exactly as they stand: only * and ? are wildcards, and case counts.
QStringList namesIn(const QString &folder, const QString &filter)
{
    QString pattern = QRegularExpression::escape(filter);
    pattern.replace(u"\\*"_s, u".*"_s).replace(u"\\?"_s, u"."_s);
    const auto options = QRegularExpression::DotMatchesEverythingOption;
    const QRegularExpression whole(QRegularExpression::anchoredPattern(pattern), options);
    const QDir directory(folder.isEmpty() ? u"."_s : folder);
    return directory.entryList(QDir::Files | QDir::Hidden, QDir::Name).filter(whole);
}

QString nextName()
{
    auto &enumeration = running();
    while (!enumeration->names.isEmpty()) {
        QString name = enumeration->names.takeFirst();
        if (QFileInfo(enumeration->folder + name).isFile())
            return name;
    }
    enumeration.reset();
    return {};
}

} // namespace

QString Dir(const QString &pattern)
{
    const qsizetype end = pattern.lastIndexOf(u'/');
    const QString folder = pattern.first(end + 1);
    QString filter = pattern.sliced(end + 1);
    if (filter == u"*.*")
        filter = u"*"_s; // "*.*" means every name, also one without a dot
    running() = Enumeration{folder, namesIn(folder, filter)};
    return nextName();
}

QString Dir()
{
    if (!running())
        throw RuntimeError(InvalidProcedureCall);
    return nextName();
}

qint64 FileLen(const QString &path)
{
    const QFileInfo file(path);
    if (!file.isFile())
        throw RuntimeError(FileNotFound);
    return file.size();
}

bool folderExists(const QString &path)
{
    return QFileInfo(path).isDir();
}

void MkDir(const QString &path)
{
    const QFileInfo folder(path);
    if (!QFileInfo(folder.path()).isDir())
        throw RuntimeError(PathNotFound);
    if (!QDir().mkdir(folder.filePath()))
        throw RuntimeError(PathFileAccess);
}

void Kill(const QString &path)
{
    std::error_code error;
    if (!QFileInfo(path).isFile())
        throw RuntimeError(FileNotFound);
    std::filesystem::remove(QFile::encodeName(path).toStdString(), error);
    if (error == std::errc::text_file_busy || error == std::errc::device_or_resource_busy)
        throw RuntimeError(PermissionDenied);
    if (error)
        throw RuntimeError(PathFileAccess);
}

QString fileName(const QString &name)
{
    constexpr qsizetype longestName = 255; // bytes, in every file system that this program meets
    const bool plain = !name.isEmpty() && name != u"." && name != u".." && !name.contains(u'/') &&
                       !name.contains(QChar(u'\0')) && QFile::encodeName(name).size() <= longestName;
    if (!plain)
        throw RuntimeError(PathFileAccess);
    return name;
}

QString pathInFolder(const QString &folder, const QString &name)
{
    QString path = folder + u'/' + fileName(name);
    if (QFileInfo(path).isSymLink())
        throw RuntimeError(PathFileAccess);
    return path;
}

} // namespace runtime
