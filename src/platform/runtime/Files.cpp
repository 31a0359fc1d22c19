#include "platform/runtime/Files.h"

#include "platform/runtime/RuntimeError.h"

#include <QDir>
#include <QFileInfo>

#include <cerrno>
#include <filesystem>
#include <optional>
#include <system_error>

using namespace Qt::Literals::StringLiterals;

namespace runtime {

namespace {

struct Enumeration
{
    QString folder;
    QStringList names; // still to come
};

std::optional<Enumeration> &running()
{
    static std::optional<Enumeration> enumeration;
    return enumeration;
}

QString nextName()
{
    auto &enumeration = running();
    while (!enumeration->names.isEmpty()) {
        QString name = enumeration->names.takeFirst();
        if (QFileInfo(enumeration->folder + u'/' + name).isFile())
            return name;
    }
    enumeration.reset();
    return {};
}

} // namespace

QString nativePath(const QString &path)
{
    QString native = path;
    native.replace(u'\\', u'/');
    if (QFileInfo::exists(native))
        return native;
    QString resolved = native.startsWith(u'/') ? u"/"_s : QString();
    const QStringList pieces = native.split(u'/', Qt::SkipEmptyParts);
    for (const QString &piece : pieces) {
        QString name = piece;
        if (!QFileInfo::exists(resolved + piece)) {
            const QStringList alike =
                QDir(resolved.isEmpty() ? u"."_s : resolved).entryList({}, QDir::AllEntries | QDir::Hidden);
            const auto found = std::find_if(alike.cbegin(), alike.cend(), [&piece](const QString &entry) {
                return entry.compare(piece, Qt::CaseInsensitive) == 0;
            });
            if (found != alike.cend())
                name = *found;
        }
        resolved += name + u'/';
    }
    return resolved.isEmpty() || resolved == u'/' ? resolved : resolved.chopped(1);
}

QString Dir(const QString &pattern)
{
    const qsizetype end = qMax(pattern.lastIndexOf(u'\\'), pattern.lastIndexOf(u'/'));
    const QString folder = nativePath(pattern.first(qMax<qsizetype>(0, end)));
    QString filter = pattern.sliced(end + 1);
    if (filter == u"*.*")
        filter = u"*"_s;              // the classic pattern for every name, with a dot or without
    filter.replace(u"["_s, u"[[]"_s); // only * and ? are wildcards
    running() = Enumeration{folder, QDir(folder).entryList({filter}, QDir::Files, QDir::Name)};
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
    const QFileInfo file(nativePath(path));
    if (!file.isFile())
        throw RuntimeError(FileNotFound);
    return file.size();
}

bool folderExists(const QString &path)
{
    return QFileInfo(nativePath(path)).isDir();
}

void MkDir(const QString &path)
{
    const QFileInfo folder(nativePath(path));
    if (!QFileInfo(folder.path()).isDir())
        throw RuntimeError(PathNotFound);
    if (!QDir().mkdir(folder.filePath()))
        throw RuntimeError(PathFileAccess);
}

void Kill(const QString &path)
{
    std::error_code error;
    const QString native = nativePath(path);
    if (!QFileInfo(native).isFile())
        throw RuntimeError(FileNotFound);
    std::filesystem::remove(native.toStdString(), error);
    if (error == std::errc::text_file_busy || error == std::errc::device_or_resource_busy)
        throw RuntimeError(PermissionDenied);
    if (error)
        throw RuntimeError(PathFileAccess);
}

} // namespace runtime
