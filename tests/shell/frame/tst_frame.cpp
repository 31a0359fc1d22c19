#include "dynamicforms/DisplayInformation.h"
#include "dynamicforms/frmOpenRecord.h"
#include "explorers/FrmDataBaseExplorer.h"
#include "explorers/FrmEventExplorer.h"
#include "library/frmDocumentExp.h"
#include "platform/runtime/Clock.h"
#include "search/frmFindInfo.h"
#include "shell/frame/DesignTime.h"
#include "shell/frame/MDIBaseForm.h"
#include "shell/frame/frmLogin.h"
#include "shell/frame/frmSplash.h"
#include "shell/users/frmNewUser.h"
#include "shell/users/frmOptions.h"
#include "support/StoreTest.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace {

// A clock on which half a second passes at each look, so that the splash's wait is over after a few turns.
class QuickClock
{
public:
    QuickClock()
    {
        runtime::setClock([this] { return m_now = m_now.addMSecs(500); });
    }
    ~QuickClock() { runtime::setClock({}); }

private:
    QDateTime m_now{QDate(2026, 3, 4), QTime(9, 0)};
};

QAction &item(const char *name)
{
    return *child<QAction>(MDIBaseForm::frame(), name);
}

MDIBaseForm &openFrame()
{
    MDIBaseForm::frame().Show();
    return MDIBaseForm::frame();
}

} // namespace

class tst_Frame : public StoreTest
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        QApplication::setQuitOnLastWindowClosed(false);
        Session::current() = Session();
        open(DataFolder::Content::Sample);
    }
    void cleanup()
    {
        delete &MDIBaseForm::frame();
        delete &frmLogin::shared();
        close();
    }

    void theProgramStartsWithAnEmptySession()
    {
        QuickClock clock;
        frmLogin::shared().Show();
        MDIBaseForm &frame = MDIBaseForm::frame();
        QVERIFY(frame.isVisible());
        QCOMPARE(frame.Caption(), u"Tolmark : Lite"_s);
        QVERIFY(!frmLogin::shared().isVisible());
        QCOMPARE(frame.area().subWindowList().size(), 1);
        auto *explorer = qobject_cast<FrmDataBaseExplorer *>(frame.area().subWindowList()[0]->widget());
        QVERIFY(explorer);
        QCOMPARE(explorer->UserLevel, qint16(0));
        QCOMPARE(frame.UserId(), QString());
        BoxAnswers boxes({QMessageBox::Ok});
        item("mnuWhoAmI").trigger();
        QCOMPARE(boxes.seen[0].text, QString());
        frame.setUserId(runtime::Value(u"5"_s));
        frame.setCaption(u"Tolmark : Ann  Cole"_s);
        item("mnuDifferentUser").trigger(); // the user stays whoever it was until a login succeeds
        QVERIFY(!frmLogin::shared().isVisible());
        QCOMPARE(frame.Caption(), u"Tolmark : Lite"_s);
        QCOMPARE(frame.UserId(), u"5"_s);
        QCOMPARE(frame.area().subWindowList().size(), 1);
    }

    void menusFollowTheEdition()
    {
        constexpr bool administration = DesignTime::administration;
        QStringList bar;
        for (const QAction *menu : MDIBaseForm::frame().menuBar()->actions())
            bar << desktop::captionOf(menu->text()) + (menu->isVisible() ? u""_s : u" (hidden)"_s);
        QCOMPARE(bar, administration ? (QStringList{u"File"_s, u"Tools"_s, u"Windows"_s, u"Help"_s})
                                     : (QStringList{u"File"_s, u"Tools (hidden)"_s, u"Windows"_s, u"Help (hidden)"_s}));
        for (const char *name : {"mnuNewUser", "mnuDifferentUser", "mnuDoc", "mnuNewRecord", "mnuOpenRecord"})
            QCOMPARE(item(name).isVisible(), administration);
        for (const char *name : {"MnuNewClient", "MnuExplorer", "mnuNewEvent", "mnuEventExplorer", "mnuExit"})
            QVERIFY(item(name).isVisible());
    }

    void eachMenuItemAndButtonOpensItsWindow()
    {
        MDIBaseForm &frame = MDIBaseForm::frame();
        frame.setUserLevel(99);
        frame.setUserId(runtime::Value(u"5"_s));
        frame.Show();
        for (const char *name : {"MnuExplorer", "MnuNewClient", "mnuNewEvent", "mnuEventExplorer", "mnuNewUser",
                                 "mnuAddNewUser", "MnuOptions", "mnuDatabaseEditor", "mnuDoc"})
            item(name).trigger();
        QStringList opened;
        for (const QMdiSubWindow *window : frame.area().subWindowList())
            opened << window->widget()->objectName();
        QCOMPARE(opened.join(u' '), u"FrmDataBaseExplorer FrmDataBaseExplorer FrmAddEditMember FrmAddEvent "
                                    "FrmEventExplorer frmNewUser frmNewUser frmOptions DatabaseGenerator "
                                    "frmDocumentExp"_s);
        const auto explorers = frame.findChildren<FrmDataBaseExplorer *>();
        QCOMPARE(explorers[0]->UserLevel, qint16(0)); // the one of the start
        QCOMPARE(explorers[1]->UserLevel, qint16(99));
        QCOMPARE(child<FrmEventExplorer>(frame, "FrmEventExplorer")->UserLevel, qint16(0));
        QCOMPARE(child<frmNewUser>(frame, "frmNewUser")->SecurityId, QString());
        QCOMPARE(child<frmOptions>(frame, "frmOptions")->SecId(), u"5"_s);
        QVERIFY(child<frmDocumentExp>(frame, "frmDocumentExp")->adminFunction);
        m_folder->execute("DROP TABLE ObjectTbl");
        item("mnuDoc").trigger(); // fails without a word
        QCOMPARE(frame.area().subWindowList().size(), opened.size());

        item("mnuOpenRecord").trigger();
        QTest::keyClick(child<frmOpenRecord>(frame, "frmOpenRecord")->lstPerson, Qt::Key_Return);
        QCOMPARE(frame.ActiveRecordId(), u"1"_s);
        item("mnuNewRecord").trigger();
        QCOMPARE(frame.ActiveRecordId(), u"0"_s);
        const auto *record = qobject_cast<DisplayInformation *>(frame.area().activeSubWindow()->widget());
        QVERIFY(record);
        QCOMPARE(record->Caption(), u"New Member Information"_s);
        QCOMPARE(record->EditMode, u"New"_s);

        // Each press of Find opens a search of its own; the toolbar has no guard.
        QWidget *find = frame.Toolbar1->widgetForAction(&item("Find"));
        QTest::mouseClick(find, Qt::LeftButton);
        QTest::mouseClick(find, Qt::LeftButton);
        QCOMPARE(frame.findChildren<frmFindInfo *>().size(), 2);
        for (const frmFindInfo *search : frame.findChildren<frmFindInfo *>())
            QVERIFY(search->isVisible() && search->MemberId.isEmpty());
        m_folder->execute("DROP TABLE Attachments");
        QTest::mouseClick(find, Qt::LeftButton);
        QVERIFY(m_errors->takeNumber() != 0);
        QCOMPARE(frame.findChildren<frmFindInfo *>().size(), 2);
    }

    // The first resize is that of the opening; the second finds no size to compare with.
    void aResizeScalesWhatStandsInTheFrame()
    {
        Session &session = Session::current();
        MDIBaseForm &frame = MDIBaseForm::frame(); // its bars have no place of their own and are passed over
        auto *box = new desktop::TextBox(&frame, u"box");
        auto *combo = new desktop::ComboBox(&frame, u"combo");
        frame.Show();
        QVERIFY(session.ResizeReady);
        session.ResizePending = true;
        frame.resize(QSize(900, 600) + frame.size() - frame.frameGeometry().size());
        QVERIFY(!session.ResizePending);
        box->Move(300, 600, 1500, 450);
        box->setFontSize(10);
        combo->Move(300, 600, 1500, 450);
        frame.resize(QSize(1800, 300) + frame.size() - frame.frameGeometry().size());
        const auto places = [](const desktop::Control &control) {
            return QList<double>{control.Left(), control.Top(), control.Width(), control.Height()};
        };
        QCOMPARE(places(*box), (QList<double>{600, 300, 3000, 225}));
        QCOMPARE(box->FontSize(), 12.5);
        QCOMPARE(places(*combo), (QList<double>{600, 300, 3000, 450}));
    }

    void outOfMemoryIsTold()
    {
        BoxAnswers boxes({QMessageBox::Ok});
        desktop::reportOutOfMemoryOnly([] { throw std::bad_alloc(); });
        QCOMPARE(boxes.seen[0].text, u"Too Many windows are currently open\nOut of memory"_s);
        desktop::reportOutOfMemoryOnly([] { throw runtime::RuntimeError(6); }); // and any other is not
    }

    void aMissingDataFileEndsTheStart()
    {
        QVERIFY(QFile::remove(m_folder->file()));
        QuickClock clock;
        desktop::guarded([] { frmLogin::shared().Show(); });
        QCOMPARE(m_errors->takeNumber(), -2147467259);
    }

    void login()
    {
        struct Row
        {
            QString user, password, message;
            int error;
        };
        const QString incorrect = u"Incorrect user name and/or password"_s;
        const Row rows[] = {{u"ann"_s, u"other"_s, incorrect, 0},
                            {{}, {}, incorrect, 0},
                            {u"o'brien"_s, u"x"_s, {}, -2147217900},
                            {u"nolevel"_s, u"x"_s, {}, 94},
                            {u"ANN"_s, u"Secret"_s, {}, 0}};
        m_folder->execute("INSERT INTO Security (SecurityId, UserName, UserPassword, UserFirstName, UserMiddleName, "
                          "UserLastName, UserLevel) VALUES (77, 'ann', 'secret', 'Ann', NULL, 'Cole', 99), "
                          "(78, 'nolevel', 'x', 'No', NULL, 'Level', NULL)");
        MDIBaseForm &frame = openFrame();
        frmLogin &window = frmLogin::shared();
        window.ReLogin = true;
        window.show(); // stays on the screen, as its load would not let it
        for (const Row &row : rows) {
            QVERIFY(window.isVisible());
            QCOMPARE(frame.Caption(), u"Tolmark"_s);
            window.txtUserName->setText(row.user);
            window.txtPassword->setText(row.password);
            BoxAnswers boxes(row.message.isEmpty() ? QList<QMessageBox::StandardButton>() : QList{QMessageBox::Ok});
            QTest::keyClick(&window, Qt::Key_Return);
            QCOMPARE(m_errors->takeNumber(), row.error);
            QCOMPARE(boxes.seen.value(0).text, row.message);
            QCOMPARE(window.txtUserName->text(), row.user);
        }
        QVERIFY(!window.isVisible());
        QCOMPARE(frame.Caption(), u"Tolmark : Ann  Cole"_s);
        QCOMPARE(frame.UserId() + frame.UMiddleName() + QString::number(frame.UserLevel()), u"77 99"_s);
        for (const auto &[name, kept] : {std::pair(u"1"_s, u" "_s), {u"Bea"_s, u"Bea"_s}, {QString(), QString()}}) {
            frame.setUMiddleName(runtime::Value(name)); // a single character counts as missing too
            QCOMPARE(frame.UMiddleName(), kept);
        }
        QVERIFY_THROWS_EXCEPTION(runtime::RuntimeError, frame.setUFirstName(runtime::Value()));
        BoxAnswers none;
        window.show();
        window.cmdCancel->setFocus(); // Enter presses the button that has the focus
        QTest::keyClick(window.cmdCancel, Qt::Key_Return);
        QVERIFY(!window.isVisible());
    }

    void closingEmptiesTheTempFolderButNotWhatLiesUnderIt()
    {
        MDIBaseForm &frame = openFrame();
        for (const QString &name : {u"a.txt"_s, u"no extension"_s, u".hidden"_s, u"a\\b"_s, u"Search/kept.txt"_s})
            m_folder->write(u"temp/"_s + name, "x");
        item("mnuExit").trigger();
        QVERIFY(!frame.isVisible());
        QCOMPARE(QDir(m_folder->path(u"temp"_s)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 QStringList{u"Search"_s});
        QVERIFY(QFile::exists(m_folder->path(u"temp/Search/kept.txt"_s)));
        QVERIFY(QDir(m_folder->path(u"temp"_s)).removeRecursively()); // nor is it missed
        frame.show();
        frame.close();
        QVERIFY(QFile::link(u"/proc/tty"_s, m_folder->path(u"temp"_s))); // the kernel's: nobody can delete them
        frame.show();
        frame.close();
        QCOMPARE(m_errors->takeNumber(), 75);
    }

    void theSplashGoesAtAKeyOrAClick()
    {
        frmSplash splash;
        splash.Show();
        QVERIFY(QRegularExpression(u"^Version \\d+\\.\\d+\\.\\d+$"_s).match(splash.lblVersion->text()).hasMatch());
        QCOMPARE(splash.lblProductName->text(), u"Tolmark Lite"_s);
        QTest::keyClick(&splash, Qt::Key_A);
        QVERIFY(!splash.isVisible());
        splash.Show();
        QTest::mouseClick(splash.lblWarning, Qt::LeftButton);
        QVERIFY(!splash.isVisible());
    }
};

QTEST_MAIN(tst_Frame)
#include "tst_frame.moc"
