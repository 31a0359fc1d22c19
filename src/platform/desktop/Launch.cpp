#include "platform/desktop/Launch.h"

#include <QDesktopServices>
#include <QUrl>

namespace desktop {

void ShellExecute(const QString &path)
{
    QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

} // namespace desktop
