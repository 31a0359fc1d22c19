#include "platform/desktop/Controls.h"
#include "platform/desktop/Form.h"
#include "platform/desktop/MdiForm.h"
#include "platform/desktop/MsgBox.h"
#include "platform/runtime/ErrorHandling.h"
#include "support/Dialogs.h"
#include "support/Outcome.h"
#include "support/ShownWork.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QProcess>
#include <QTimer>

#include <cstring>
#include <stdexcept>

using namespace Qt::Literals::StringLiterals;

namespace {

// Says in a log what happens to it.
class Window : public desktop::Form
{
public:
    explicit Window(Place place = Place::InFrame, bool shared = false) : Form(place, u"Window")
    {
        setDesignCaption(u"design"_s);
        if (shared)
            setShared();
    }
    QStringList log;
    int activations = 0;
    int error = 0;       // raised by the load
    bool closes = false; // by itself, while it loads
    QString field;

protected:
    void Form_Load() override
    {
        log << u"load "_s + field;
        if (error)
            throw runtime::RuntimeError(error);
        if (closes)
            Unload();
    }
    void Form_Unload() override { log << u"unload"_s; }
    void Form_Activate() override { ++activations; }
};

class Frame : public desktop::MdiForm
{
public:
    Frame() : MdiForm(u"Frame")
    {
        windows = menuBar()->addMenu(u"Windows"_s);
        setWindowsMenu(windows);
    }
    QMenu *windows;
};

} // namespace

class tst_Windows : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void aWindowLoadsOnceAtItsFirstTouch()
    {
        Window window;
        window.field = u"set before"_s;
        QVERIFY(window.log.isEmpty());
        window.setCaption(u"caption"_s);
        window.Show();
        window.Show();
        QCOMPARE(window.log.join(u' '), u"load set before"_s);
        QCOMPARE(window.windowTitle(), u"caption"_s);
        window.Unload();
        window.Load(); // who sets a control of it from outside
        window.Unload();
        QCOMPARE(window.log.join(u' '), u"load set before unload load set before unload"_s);
        const auto open = [] { desktop::showNew<Window>([](Window &failing) { failing.error = 13; }); };
        QCOMPARE(errorNumberOf(open), 13);
    }

    void closingDeletesAWindowUnlessItIsShared()
    {
        QPointer<Window> own = desktop::showNew<Window>();
        own->Unload();
        QTRY_VERIFY(!own);
        QPointer<Window> closesItself = desktop::showNew<Window>([](Window &window) { window.closes = true; });
        QTRY_VERIFY(!closesItself);
        Window shared(Window::Place::Alone, true);
        shared.Show();
        shared.Unload();
        shared.Show();
        QCOMPARE(shared.log.join(u' '), u"load  unload load "_s);
    }

    void theFocusIsScrolledIntoView()
    {
        Frame frame;
        frame.resize(400, 300);
        frame.Show();
        auto *child = desktop::showNew<Window>([](Window &window) { window.resize(900, 700); });
        desktop::CommandButton first(child, u"first", u"Generate"_s);
        desktop::CommandButton last(child, u"last", u"Exit"_s);
        last.setGeometry(800, 660, 90, 30);
        first.show();
        last.show();
        QVERIFY(QTest::qWaitForWindowActive(&frame));
        last.setFocus();
        QTRY_COMPARE(last.visibleRegion().boundingRect(), last.rect());
    }

    void childrenLiveInTheFrame()
    {
        Frame frame;
        frame.resize(800, 600);
        frame.Show();
        auto *first = desktop::showNew<Window>([](Window &window) { window.resize(300, 200); });
        const auto *second = desktop::showNew<Window>([](Window &window) { window.setCaption(u"A & B[*]"_s); });
        QCOMPARE(second->Caption(), u"A & B[*]"_s);
        QCOMPARE(second->windowTitle(), u"A & B[*][*]"_s);
        const QAction *own = frame.windows->addAction(u"Tile"_s);
        QCOMPARE(frame.area().subWindowList().size(), 2);
        QCOMPARE(first->size(), QSize(300, 200));
        for (int opening = 0; opening < 2; ++opening) // what else stands in the menu stays there
            Q_EMIT frame.windows->aboutToShow();
        const QList<QAction *> items = frame.windows->actions();
        QCOMPARE(items.size(), 3);
        QCOMPARE(items[0], own);
        QCOMPARE(items[2]->text(), u"&2 A && B[*]"_s);
        QVERIFY(items[2]->isChecked());
        items[1]->trigger();
        QCOMPARE(frame.area().activeSubWindow()->widget(), first);
        first->Unload();
        QTRY_COMPARE(frame.area().subWindowList().size(), 1);
        frame.close();
        QTRY_VERIFY(frame.area().subWindowList().isEmpty());
    }

    void aWindowHearsOfItsActivation()
    {
        Window alone(Window::Place::Alone);
        alone.Show();
        QVERIFY(QTest::qWaitForWindowActive(&alone));
        QCOMPARE(alone.activations, 1);
        Frame frame;
        frame.Show();
        auto *first = desktop::showNew<Window>();
        auto *second = desktop::showNew<Window>();
        QCOMPARE(first->activations, 1);
        QCOMPARE(second->activations, 1);
        frame.area().setActiveSubWindow(qobject_cast<QMdiSubWindow *>(first->parentWidget()));
        QCOMPARE(first->activations, 2);
        QCOMPARE(second->activations, 1);
        first->Unload(); // the one before it comes back
        QTRY_COMPARE(second->activations, 2);
    }

    void whoWasActiveBeforeComesBack()
    {
        Frame frame;
        frame.Show();
        QVERIFY(QTest::qWaitForWindowActive(&frame));
        QList<Window *> windows;
        for (const bool isShared : {false, false, true}) {
            windows << new Window(Window::Place::InFrame, isShared);
            windows.constLast()->Show();
        }
        for (const int before : {1, 0}) { // behind the shared one, which is hidden, and the second, which is deleted
            windows[before + 1]->Unload();
            QTRY_VERIFY(frame.area().activeSubWindow());
            QTRY_COMPARE(frame.area().activeSubWindow()->widget(), windows[before]);
        }
    }

    void aSharedChildComesBackIntoTheFrame()
    {
        Frame frame;
        frame.resize(800, 600);
        frame.Show();
        QPointer<Window> shared = new Window(Window::Place::InFrame, true);
        shared->setSize(4800, 3000);
        const QStringList entries[] = {{u"&1 design"_s}, {u"No window is open"_s}};
        const auto listed = [&frame] {
            Q_EMIT frame.windows->aboutToShow();
            QStringList texts;
            for (const QAction *action : frame.windows->actions())
                texts << action->text();
            return texts;
        };
        for (int round = 0; round < 2; ++round) {
            shared->Show();
            QVERIFY(shared->isVisible());
            QCOMPARE(frame.area().activeSubWindow()->widget(), shared);
            QCOMPARE(shared->Width(), 4800.0);
            QCOMPARE(listed(), entries[0]);
            shared->Unload();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            QVERIFY(shared && !shared->isVisible());
            QCOMPARE(listed(), entries[1]);
        }
        shared->Show();
        frame.area().activeSubWindow()->showMinimized();
        shared->Show();
        QVERIFY(shared->isVisible());
        frame.area().activeSubWindow()->close(); // by its border
        const QString times(u"load , unload, load , unload, load , unload"_s);
        QCOMPARE(shared->log.join(u", "_s), times);
        QVERIFY(frame.close());
        QCOMPARE(shared->log.join(u", "_s), times);
    }

    void messageBoxes()
    {
        for (const auto &[style, press, result, kind] : {std::tuple(64, QMessageBox::Ok, 1, u"Information, Ok"_s),
                                                         {16, QMessageBox::Ok, 1, u"Critical, Ok"_s},
                                                         {4, QMessageBox::Yes, 6, u"NoIcon, Yes|No"_s},
                                                         {4, QMessageBox::No, 7, u"NoIcon, Yes|No"_s},
                                                         {3, QMessageBox::Cancel, 2, u"NoIcon, Yes|No|Cancel"_s}}) {
            BoxAnswers boxes({press});
            QCOMPARE(int(desktop::MsgBox(u"<b>plain</b>"_s, style)), result);
            QCOMPARE(boxes.seen[0].whole(), u"Tolmark Lite: <b>plain</b> ("_s + kind + u')');
        }
    }

    // Esc and the box's frame say Cancel, or OK where that is all; they do not decide between Yes and No.
    void aWayOutOfAMessageBox()
    {
        for (const auto &[style, left] : {std::pair(desktop::vbOKOnly, desktop::vbOK),
                                          {desktop::vbYesNoCancel, desktop::vbCancel},
                                          {desktop::vbYesNo, desktop::vbYes}}) {
            for (const bool byEsc : {true, false}) {
                QTimer::singleShot(0, this, [style = style, byEsc] {
                    QWidget *box = QApplication::activeModalWidget();
                    byEsc ? QTest::keyClick(box, Qt::Key_Escape) : void(box->close());
                    QCOMPARE(box->isVisible(), style == desktop::vbYesNo);
                    if (box->isVisible())
                        QTest::keyClick(box, Qt::Key_Return);
                });
                QCOMPARE(desktop::MsgBox(u"?"_s, style), left);
            }
        }
    }

    // While it runs nothing but the bar is handled; short work is not told.
    void longWorkIsToldWithoutLettingEventsIn()
    {
        class Bar : public QStatusBar
        {
        public:
            int paintings = 0;

        protected:
            void paintEvent(QPaintEvent *event) override
            {
                ++paintings;
                QStatusBar::paintEvent(event);
            }
        };
        const QLocale region;
        QLocale::setDefault(QLocale(u"en_US"_s));
        ShownWork shown;
        auto *bar = new Bar;
        shown.frame.setStatusBar(bar);
        QLabel panel;
        bar->addWidget(&panel);
        shown.frame.Show();
        QVERIFY(QTest::qWaitForWindowExposed(&shown.frame));
        bool handled = false;
        QTimer::singleShot(0, &shown.frame, [&handled] { handled = true; });
        bar->paintings = 0;
        const auto fails = [bar] {
            desktop::LongWork work(u"Searching"_s, 1000);
            work.at(120);
            QCOMPARE(bar->currentMessage(), u"Searching 120 of 1,000"_s);
            throw runtime::RuntimeError(5);
        };
        QCOMPARE(errorNumberOf(fails), 5);
        QVERIFY(bar->paintings > 0 && !handled);
        QVERIFY(bar->currentMessage().isEmpty() && panel.isVisible() && !QApplication::overrideCursor());
        desktop::LongWork::interval = std::chrono::hours(1);
        desktop::LongWork work(u"Searching"_s, 1000);
        work.at(1);
        QCOMPARE(bar->currentMessage(), QString());
        QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        work.showAt(2); // one that takes long by itself
        QCOMPARE(bar->currentMessage(), u"Searching 2 of 1,000"_s);
        QLocale::setDefault(region);
    }

    // No exception passes the guard, whatever it is.
    void theGuardReportsWhatEscapes()
    {
        CaughtErrors errors;
        QPushButton button;
        QObject receiver;
        int thrown = 0;
        desktop::on(&button, &QPushButton::clicked, &receiver, [&thrown](QObject *) {
            if (++thrown == 1)
                throw runtime::RuntimeError(94);
            if (thrown == 2)
                throw std::bad_alloc();
            throw std::runtime_error("other");
        });
        for (const int number : {94, 7, -1}) {
            button.click();
            QCOMPARE(errors.takeNumber(), number);
        }
    }

    void everyStepGoesOnAndEndSilentlyStops()
    {
        int ran = 0;
        const auto fails = [&ran] {
            ++ran;
            throw runtime::RuntimeError(5);
        };
        runtime::everyStep(fails, fails);
        QCOMPARE(ran, 2);
        QVERIFY(!runtime::endSilently([&fails] {
            fails();
            fails();
        }));
        QCOMPARE(ran, 3);
    }

    // The real report, in a process of its own: this program called again with an argument.
    void theReportEndsTheProcess()
    {
        QProcess process;
        process.start(QApplication::applicationFilePath(), {u"--fail"_s});
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(process.exitCode(), 1);
        QVERIFY(process.readAllStandardError().contains("Run-time error '6':\n\nOverflow\n"));
    }
};

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    if (argc > 1 && std::strcmp(argv[1], "--fail") == 0) {
        BoxAnswers boxes({QMessageBox::Ok});
        desktop::guarded([] { throw runtime::RuntimeError(runtime::Overflow); });
        return 0;
    }
    tst_Windows tests;
    return QTest::qExec(&tests, argc, argv);
}
#include "tst_windows.moc"
