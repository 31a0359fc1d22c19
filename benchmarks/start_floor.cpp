// The start of a bare main window of Qt with one child window, in it an empty tree; up to that tree painted.
#include "benchmarks/Painted.h"

#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTreeWidget>

using namespace Qt::Literals::StringLiterals;

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const EndWhenPainted end(u"tree"_s);
    QMainWindow window;
    auto *area = new QMdiArea;
    window.setCentralWidget(area);
    auto *tree = new QTreeWidget;
    tree->setObjectName(u"tree"_s);
    area->addSubWindow(tree)->resize(900, 550);
    window.resize(1000, 760);
    window.show();
    return QApplication::exec();
}
