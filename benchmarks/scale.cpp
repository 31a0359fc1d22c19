// What one action costs on a given data file. The arguments are the folder of the data file and the action: start,
// list, dossier, add, search or find. Prints milliseconds of processor time, the system's work for this process
// included, and by how many megabytes the process grew at most; for a start its whole size. A process measures one
// action only, so that none pays for another's memory.
//
// benchmarks/scale makes the files. In each of them the group X has 300 active members and member 1 has 100 rows of
// every kind.
#include "benchmarks/Painted.h"
#include "benchmarks/ProcessFigure.h"
#include "dossier/DisplayMembers.h"
#include "explorers/FrmDataBaseExplorer.h"
#include "platform/desktop/ErrorReport.h"
#include "platform/runtime/Application.h"
#include "platform/runtime/Clock.h"
#include "search/frmFindInfo.h"
#include "shell/frame/MDIBaseForm.h"
#include "shell/frame/frmLogin.h"

#include <QIcon>
#include <QMessageBox>
#include <QMimeData>
#include <QUrl>

#include <algorithm>
#include <ctime>
#include <limits>
#include <map>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int repetitions = 5;
constexpr double megabyte = 1e6;

[[noreturn]] void fail(const char *why)
{
    std::fprintf(stderr, "%s\n", why);
    std::_Exit(EXIT_FAILURE);
}

void print(double milliseconds, qint64 bytes)
{
    std::printf("%.1f ms, %.1f MB\n", milliseconds, double(bytes) / megabyte);
    std::fflush(stdout);
}

double processorMilliseconds()
{
    return double(std::clock()) / (double(CLOCKS_PER_SEC) / 1e3);
}

// The least time of several: what else the machine does only ever adds to it.
template <class Work> void measure(int times, Work &&work)
{
    const qint64 before = processFigure("VmRSS");
    double least = std::numeric_limits<double>::max();
    for (int turn = 0; turn < times; ++turn) {
        const double began = processorMilliseconds();
        work();
        least = std::min(least, processorMilliseconds() - began);
    }
    print(least, processFigure("VmHWM") - before);
}

// From the process's first instruction until the main window with the tree of groups is painted. The clock of the
// program runs so fast that the splash does not wait.
void start()
{
    runtime::setClock([seconds = 0]() mutable {
        constexpr int stride = 4;
        return QDateTime({2003, 5, 1}, {12, 0}).addSecs(seconds += stride);
    });
    const EndWhenPainted end(u"TreClassView"_s, [] {
        print(processorMilliseconds(), processFigure("VmHWM"));
        const auto *tree = MDIBaseForm::frame().findChild<desktop::TreeView *>(u"TreClassView"_s);
        if (!tree || tree->topLevelItemCount() < 26)
            fail("the groups are missing");
    });
    desktop::guarded([] { frmLogin::shared().Show(); });
    QApplication::exec();
}

void listGroup()
{
    FrmDataBaseExplorer window;
    window.Show();
    window.grab();
    auto *tree = window.findChild<desktop::TreeView *>(u"TreClassView"_s);
    measure(repetitions, [&] {
        tree->setCurrentItem(&tree->Nodes('X' - 'A' + 1));
        Q_EMIT tree->Click();
        window.grab();
    });
    if (window.findChild<desktop::ListView *>(u"LstStudenInformation"_s)->ListItems.Count() != 300)
        fail("other than 300 members");
}

void openDossier()
{
    measure(repetitions, [] {
        DisplayMembers dossier;
        dossier.MemberId = 1;
        dossier.Show();
        dossier.grab();
        if (dossier.Frame4->lstAttachement->ListItems.Count() != 100)
            fail("other than 100 attachments");
    });
}

// A file of 10 KB is dropped on the dossier: stored as the next version of its name, and the list read again.
void addAttachment()
{
    const QString path = runtime::App::Path() + u"/agenda.txt"_s;
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(QByteArray(10'239, 'a')) < 0)
        fail("no file to add");
    file.close();
    QMimeData dropped;
    dropped.setUrls({QUrl::fromLocalFile(path)});
    DisplayMembers dossier;
    dossier.MemberId = 1;
    dossier.Show();
    desktop::ListView *list = dossier.Frame4->lstAttachement;
    measure(repetitions, [&] { Q_EMIT list->OLEDragDrop(desktop::DataObject(dropped)); });
    if (list->ListItems.Count() != 101)
        fail("the attachment is not listed");
}

void openFind()
{
    measure(repetitions, [] {
        frmFindInfo window;
        window.Show();
        window.grab();
    });
}

// Says Yes to the window's warning as soon as it stands.
void consent()
{
    if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget()))
        box->button(QMessageBox::Yes)->click();
    else
        QTimer::singleShot(0, consent);
}

// All attachments of all members, for a phrase that none of them holds.
void searchContent()
{
    frmFindInfo window;
    window.Show();
    window.txtSearchString->setText(u"zinc quarry"_s);
    window.grab();
    measure(1, [&] {
        QTimer::singleShot(0, consent);
        window.cmdSearch->click();
        window.grab();
    });
    if (window.lstViewResults->ColumnHeaders.Count() != 3 || window.lstViewResults->ListItems.Count() != 0)
        fail("the search did not come to its end");
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const std::map<std::string_view, void (*)()> actions = {{"start", start},       {"list", listGroup},
                                                            {"find", openFind},     {"dossier", openDossier},
                                                            {"add", addAttachment}, {"search", searchContent}};
    const auto action = actions.find(argc == 3 ? argv[2] : "");
    if (action == actions.end())
        return 2;
    QApplication::setWindowIcon(QIcon(u":/icons/tolmark.svg"_s));
    desktop::setErrorReport(
        [](const runtime::RuntimeError &error) { fail(error.description().toLocal8Bit().constData()); });
    runtime::App::setPath(QString::fromLocal8Bit(argv[1]));
    action->second();
}
