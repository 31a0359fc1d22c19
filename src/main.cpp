#include "platform/desktop/DarkDesktop.h"
#include "platform/desktop/ErrorReport.h"
#include "platform/desktop/Style.h"
#include "platform/runtime/Application.h"
#include "shell/frame/frmLogin.h"

#include <QApplication>
#include <QIcon>

using namespace Qt::Literals::StringLiterals;

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(u"Tolmark"_s);
    QApplication::setApplicationVersion(runtime::App::Version.toString());
    QApplication::setDesktopFileName(u"org.tolmark.tolmark"_s); // by which a Wayland desktop finds the icon
    QApplication::setWindowIcon(QIcon(u":/icons/tolmark.svg"_s));
    desktop::Style::install();
    const desktop::DarkDesktop darkDesktop;
    desktop::guarded([] { frmLogin::shared().Show(); });
    return QApplication::exec();
}
