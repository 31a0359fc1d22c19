// Acts at random on the real windows: clicks, keys, texts that are hard on a program, drops, menus, dialogs, closings.
//
//   tours SEED ACTS
//
// A tour ends after 400 acts or when the program ends: by its menu, or by the report of a failure, which is counted.
// Then the next one starts over a fresh folder, with the next seed. `tours SEED 1` repeats the tour of a seed. A
// finding is a signal, five seconds of work without an end, or a report that nothing explains.
#include "Child.h"
#include "platform/desktop/Printer.h"
#include "platform/desktop/Style.h"
#include "support/Drop.h"
#include "support/Stations.h"

#include <QAbstractButton>
#include <QDesktopServices>
#include <QFileDialog>
#include <QLineEdit>
#include <QMap>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTest>

#include <random>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int longestTour = 400; // acts

// The failures to which random acts may lead: a value outside of its type (6), of another type (13), no line chosen
// (91), a Null (94), no file chosen for an upload (424), an action that the row's state forbids (3021, 3219), a key
// that its tree has already (35602), an amount too large (...833), a text longer than its column (...887), an
// apostrophe in a statement (...900).
constexpr std::array explained{6, 13, 91, 94, 424, 3021, 3219, 35602, -2147217833, -2147217887, -2147217900};

class Tour
{
public:
    Tour(unsigned seed, std::FILE *told, QString folder) : m_random(seed), m_told(told), m_folder(std::move(folder)) {}

    int run()
    {
        desktop::setErrorReport([this](const runtime::RuntimeError &error) {
            std::fprintf(m_told, "report %d %s\n", error.number(), qPrintable(error.description().simplified()));
            std::_Exit(EXIT_FAILURE); // as the program itself ends
        });
        MDIBaseForm::frame().setUserLevel(drawn(2) ? 99 : 0);
        MDIBaseForm::frame().setUserId(runtime::Value(u"1"_s));
        MDIBaseForm::frame().Show();
        QTimer::singleShot(0, [this] { act(); });
        QApplication::exec();
        return 0;
    }

private:
    qsizetype drawn(qsizetype below) { return qsizetype(m_random() % unsigned(below)); }
    template <class List> auto oneOf(const List &list) { return list[drawn(qsizetype(std::size(list)))]; }

    void tell(const char *what, const QObject *where, const QString &more = {})
    {
        std::fprintf(m_told, "act %s %s %s\n", what, where ? qPrintable(where->objectName()) : "",
                     qPrintable(more.left(40)));
    }

    // The next act is asked for before this one, which may wait for a dialog that only the next one answers.
    void act()
    {
        if (++m_acts > longestTour)
            std::_Exit(EXIT_SUCCESS);
        hangAfter(5);
        QTimer::singleShot(0, [this] { act(); });
        if (QWidget *menu = QApplication::activePopupWidget()) {
            tell("menu key", menu);
            QTest::keyClick(menu, oneOf(std::to_array({Qt::Key_Down, Qt::Key_Up, Qt::Key_Return, Qt::Key_Escape})));
        } else if (auto *files = qobject_cast<QFileDialog *>(QApplication::activeModalWidget())) {
            answer(*files);
        } else if (QWidget *dialog = QApplication::activeModalWidget()) {
            actOn(*dialog);
        } else if (drawn(30) == 0) {
            const Station &station = stations()[size_t(drawn(qsizetype(stations().size())))];
            std::fprintf(m_told, "act open %s\n", station.name);
            desktop::guarded([&] { station.open(); });
        } else if (QWidgetList windows = openWindows(); !windows.isEmpty()) {
            actOn(*oneOf(windows));
        }
    }

    static QWidgetList openWindows()
    {
        QWidgetList windows;
        for (QWidget *window : QApplication::topLevelWidgets()) {
            if (window->isVisible())
                windows << window;
        }
        for (QMdiSubWindow *window : MDIBaseForm::frame().area().subWindowList())
            windows << window << window; // there the work is done
        return windows;
    }

    void answer(QFileDialog &files)
    {
        auto *name = files.findChild<QLineEdit *>(u"fileNameEdit"_s);
        if (drawn(3) == 0 || !name)
            return files.reject();
        tell("file", name);
        name->setText(m_folder + u'/' + oneOf(QStringList{u"a.txt"_s, u"new.txt"_s, u"it's.txt"_s, u"none/x"_s}));
        QTest::keyClick(name, Qt::Key_Return);
        files.reject();
    }

    void actOn(QWidget &window)
    {
        QWidgetList targets;
        for (QWidget *each : window.findChildren<QWidget *>()) {
            if (each->isVisible() && each->isEnabled() && !each->visibleRegion().isEmpty())
                targets << each;
        }
        if (targets.isEmpty() || drawn(60) == 0) {
            tell("close", &window);
            window.close();
            return;
        }
        QPointer<QWidget> target = oneOf(targets);
        const QPoint at(int(drawn(target->width())), int(drawn(target->height())));
        switch (drawn(8)) {
        case 0:
            tell("double click", target);
            return QTest::mouseDClick(target, Qt::LeftButton, {}, at);
        case 1:
            tell("right click", target);
            QTest::mouseClick(target, Qt::RightButton, {}, at);
            if (target) {
                QContextMenuEvent asked(QContextMenuEvent::Mouse, at, target->mapToGlobal(at));
                QApplication::sendEvent(target, &asked);
            }
            return;
        case 2:
            return typeInto(*target);
        case 3:
            return drop(*target, at);
        case 4:
            tell("key", target);
            return QTest::keyClick(target,
                                   oneOf(std::to_array({Qt::Key_Tab, Qt::Key_Return, Qt::Key_Escape, Qt::Key_Delete,
                                                        Qt::Key_Down, Qt::Key_Up, Qt::Key_Home, Qt::Key_PageDown,
                                                        Qt::Key_Space, Qt::Key_F5, Qt::Key_Left, Qt::Key_Right})),
                                   oneOf(std::to_array({Qt::NoModifier, Qt::NoModifier, Qt::NoModifier,
                                                        Qt::ControlModifier, Qt::ShiftModifier, Qt::AltModifier})));
        default:
            tell("click", target);
            if (auto *button = qobject_cast<QAbstractButton *>(target); button && drawn(2))
                return button->click();
            return QTest::mouseClick(target, Qt::LeftButton, {}, at);
        }
    }

    void typeInto(QWidget &target)
    {
        static const QStringList texts =
            u";12;1/31/2001;10:05;abc;it's;\"quoted\";[a;%;-1;32768;99999999999;1e308;31.02.99; ;É\u0301\u202e;𝄞;"
            "&a && <b>;../../x;a\tb\nc"_s.split(u';')
            << QString(3000, u'x');
        const QString text = oneOf(texts);
        tell("type", &target, text);
        QKeyEvent key(QEvent::KeyPress, 0, Qt::NoModifier, text);
        QApplication::sendEvent(&target, &key);
    }

    void drop(QWidget &target, QPoint at)
    {
        tell("drop", &target);
        QMimeData files;
        files.setUrls({QUrl::fromLocalFile(m_folder + u'/' +
                                           oneOf(QStringList{u"a.txt"_s, u"it's.txt"_s, u"none.txt"_s, u"temp"_s}))});
        dropOn(target, files, at);
    }

    std::mt19937 m_random;
    std::FILE *m_told;
    QString m_folder;
    int m_acts = 0;
};

// Opens nothing.
class Desktop : public QObject
{
    Q_OBJECT
public:
    Desktop() { QDesktopServices::setUrlHandler(u"file"_s, this, "open"); }
public Q_SLOTS:
    void open(const QUrl &) {}
};

} // namespace

int main(int argc, char **argv)
{
    printNoRemarks();
    QApplication application(argc, argv);
    desktop::Style::install();
    const Desktop desktop;
    unsigned seed = argc > 1 ? QByteArray(argv[1]).toUInt() : 1;
    const qsizetype wanted = argc > 2 ? QByteArray(argv[2]).toInt() : 2000;
    QMap<QByteArray, int> reports;
    int findings = 0;
    for (qsizetype acts = 0; acts < wanted; ++seed) {
        DataStoreFolder folder;
        desktop::setSettingsFile(folder.path(u"settings"_s));
        desktop::setPrintFile(folder.path(u"printed.pdf"_s));
        for (const QString &name : {u"a.txt"_s, u"it's.txt"_s})
            folder.write(name, "a text");
        Ending ending = inChild([&](std::FILE *told) { return Tour(seed, told, folder.folder()).run(); });
        acts += ending.told.count("\nact ") + 1;
        const QByteArray report = ending.told.sliced(ending.told.lastIndexOf('\n', -2) + 1).trimmed();
        if (ending.code == 1)
            ++reports[report.mid(int(qstrlen("report ")))];
        if (ending.code == 1 && !std::ranges::count(explained, report.split(' ').value(1).toInt()))
            ending.fault = u"an unexplained report"_s;
        if (!ending.fault.isEmpty()) {
            ++findings;
            std::printf("tours %u 1: %s, after\n%s\n", seed, qPrintable(ending.fault),
                        ending.told.right(500).constData());
            std::fflush(stdout);
        }
    }
    for (auto report = reports.cbegin(); report != reports.cend(); ++report)
        std::printf("%5d x %s\n", report.value(), report.key().constData());
    std::printf("tours to seed %u, %d findings\n", seed - 1, findings);
    return findings == 0 ? 0 : 1;
}

#include "tours.moc"
