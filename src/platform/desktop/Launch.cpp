#include "platform/desktop/Launch.h"

#include "platform/runtime/Files.h"

#include <QDesktopServices>
#include <QUrl>

namespace desktop {

void ShellExecute(const QString &path)
{
    QDesktopServices::openUrl(QUrl::fromLocalFile(runtime::nativePath(path)));
}

} // namespace desktop
