// The program's start, up to its main window with the tree of groups painted. The clock runs so fast that the splash
// does not wait. The argument is the folder of the data file.
#include "benchmarks/EndOnErrors.h"
#include "benchmarks/Painted.h"
#include "platform/desktop/Style.h"
#include "platform/runtime/Application.h"
#include "platform/runtime/Clock.h"
#include "shell/frame/frmLogin.h"

#include <QIcon>

using namespace Qt::Literals::StringLiterals;

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setWindowIcon(QIcon(u":/icons/tolmark.svg"_s));
    desktop::Style::install();
    endOnErrors();
    runtime::App::setPath(QString::fromLocal8Bit(argc == 2 ? argv[1] : "."));
    runtime::setClock([seconds = 0]() mutable {
        constexpr int stride = 4;
        return QDateTime({2003, 5, 1}, {12, 0}).addSecs(seconds += stride);
    });
    const EndWhenPainted end(u"TreClassView"_s);
    desktop::guarded([] { frmLogin::shared().Show(); });
    return QApplication::exec();
}
