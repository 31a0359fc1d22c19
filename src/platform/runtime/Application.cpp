#include "platform/runtime/Application.h"

#include <QCoreApplication>
#include <QDir>
#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace runtime::App {

namespace {

QString &replacement()
{
    static QString folder;
    return folder;
}

// The name of the folder in the parent, which may differ by case; the one of exactly that name goes first.
QString existingName(const QString &parent, const QString &name)
{
    if (QFileInfo(parent + u'/' + name).isDir())
        return name;
    const QStringList folders = QDir(parent).entryList(QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    const qsizetype at =
        folders.indexOf(QRegularExpression(QRegularExpression::anchoredPattern(QRegularExpression::escape(name)),
                                           QRegularExpression::CaseInsensitiveOption));
    return at < 0 ? name : folders[at];
}

} // namespace

QString Path()
{
    return replacement().isEmpty() ? QCoreApplication::applicationDirPath() : replacement();
}

void setPath(const QString &folder)
{
    replacement() = folder;
}

QString folder(QStringView behindPath)
{
    QString found = Path();
    for (const QStringView name : behindPath.tokenize(u'\\', Qt::SkipEmptyParts))
        found += u'/' + existingName(found, name.toString());
    return found;
}

QString Title()
{
    return u"Tolmark Lite"_s;
}

} // namespace runtime::App
