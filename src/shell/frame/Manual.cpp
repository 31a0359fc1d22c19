#include "shell/frame/Manual.h"

#include "platform/desktop/Launch.h"
#include "platform/runtime/Application.h"

#include <QFileInfo>
#include <QStandardPaths>

using namespace Qt::Literals::StringLiterals;

namespace {

QStringList manualFolders()
{
    QStringList folders{runtime::App::Path() + u"/manual"_s};
    for (const QString &shared : QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation))
        folders << shared + u"/tolmark/manual"_s;
    return folders;
}

} // namespace

bool openManual(const QStringList &windows)
{
    for (const QString &folder : manualFolders()) {
        for (const QString &name : windows + QStringList{u"index"_s}) {
            const QString page = u"%1/%2.html"_s.arg(folder, name);
            if (QFileInfo::exists(page)) {
                desktop::ShellExecute(page);
                return true;
            }
        }
    }
    return false;
}
