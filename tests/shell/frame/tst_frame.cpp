#include "dossier/FrmAddEditMember.h"
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
#include "support/DataStoreFolder.h"
#include "support/Dialogs.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>

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

bool isShown(const char *name)
{
    return item(name).isVisible();
}

} // namespace

class tst_Frame : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        QApplication::setQuitOnLastWindowClosed(false);
        Session::current() = Session();
        m_folder.emplace(DataStoreFolder::Content::Sample);
    }
    void cleanup()
    {
        delete &MDIBaseForm::frame();
        delete &frmLogin::shared();
    }

    void theProgramStartsWithAnEmptySession()
    {
        CaughtErrors errors;
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
        QCOMPARE(boxes.seen[0].title, u"Tolmark Lite"_s);
    }

    void menusFollowTheEdition()
    {
        constexpr bool administration = DesignTime::administration;
        QStringList bar;
        for (const QAction *menu : MDIBaseForm::frame().menuBar()->actions())
            bar << menu->text() + (menu->isVisible() ? u""_s : u" (hidden)"_s);
        QCOMPARE(bar, administration ? (QStringList{u"File"_s, u"Tools"_s, u"Windows"_s, u"Help"_s})
                                     : (QStringList{u"File"_s, u"Tools (hidden)"_s, u"Windows"_s, u"Help (hidden)"_s}));
        for (const char *name : {"mnuNewUser", "mnuDifferentUser", "mnuDoc", "mnuNewRecord", "mnuOpenRecord"})
            QCOMPARE(isShown(name), administration);
        for (const char *name : {"MnuNewClient", "MnuExplorer", "mnuNewEvent", "mnuEventExplorer", "mnuExit"})
            QVERIFY(isShown(name));
    }

    void everyExplorerOfTheMenuTakesTheLevelAndTheFirstDoesNot()
    {
        CaughtErrors errors;
        MDIBaseForm &frame = MDIBaseForm::frame();
        frame.setUserLevel(99);
        frame.Show();
        item("MnuExplorer").trigger();
        item("MnuNewClient").trigger();
        item("mnuEventExplorer").trigger();
        const auto windows = frame.area().subWindowList();
        QCOMPARE(windows.size(), 4);
        QCOMPARE(qobject_cast<FrmDataBaseExplorer *>(windows[0]->widget())->UserLevel, qint16(0));
        QCOMPARE(qobject_cast<FrmDataBaseExplorer *>(windows[1]->widget())->UserLevel, qint16(99));
        QVERIFY(qobject_cast<FrmAddEditMember *>(windows[2]->widget()));
        QCOMPARE(qobject_cast<FrmEventExplorer *>(windows[3]->widget())->UserLevel, qint16(0));
        windows[1]->close();
        QTRY_COMPARE(frame.area().subWindowList().size(), 3);
    }

    void theLibraryOpensAsItsManager()
    {
        CaughtErrors errors;
        MDIBaseForm &frame = MDIBaseForm::frame();
        frame.Show();
        item("mnuDoc").trigger();
        const auto *library = qobject_cast<frmDocumentExp *>(frame.area().subWindowList().last()->widget());
        QVERIFY(library && library->adminFunction && library->isVisible());
        m_folder->execute("DROP TABLE ObjectTbl");
        item("mnuDoc").trigger(); // fails without a word
        QCOMPARE(frame.area().subWindowList().size(), 2);
    }

    void theMenuOpensTheRecordWindow()
    {
        CaughtErrors errors;
        MDIBaseForm &frame = MDIBaseForm::frame();
        frame.Show();
        item("mnuOpenRecord").trigger();
        QTest::keyClick(child<frmOpenRecord>(frame, "frmOpenRecord")->lstPerson, Qt::Key_Return);
        QCOMPARE(frame.ActiveRecordId(), u"1"_s);
        item("mnuNewRecord").trigger();
        QCOMPARE(frame.ActiveRecordId(), u"0"_s);
        const auto *record = qobject_cast<DisplayInformation *>(frame.area().activeSubWindow()->widget());
        QVERIFY(record);
        QCOMPARE(record->Caption(), u"New Member Information"_s);
        QCOMPARE(record->EditMode, u"New"_s);
    }

    void theMenuOpensTheWindowsOfUsers()
    {
        CaughtErrors errors;
        MDIBaseForm &frame = MDIBaseForm::frame();
        frame.setUserId(runtime::Value(u"5"_s));
        frame.Show();
        for (const char *name : {"mnuNewUser", "mnuAddNewUser", "MnuOptions"})
            item(name).trigger();
        const auto windows = frame.area().subWindowList();
        QCOMPARE(windows.size(), 4);
        for (int user : {1, 2}) {
            const auto *window = qobject_cast<frmNewUser *>(windows[user]->widget());
            QVERIFY(window && window->isVisible());
            QCOMPARE(window->SecurityId, QString());
        }
        const auto *options = qobject_cast<frmOptions *>(windows[3]->widget());
        QVERIFY(options && options->isVisible());
        QCOMPARE(options->SecId(), u"5"_s);
    }

    // The guard of the menu swallows what fails while a window loads, and no half window stays.
    void aWindowThatCannotLoadIsGone()
    {
        CaughtErrors errors;
        MDIBaseForm &frame = MDIBaseForm::frame();
        frame.Show();
        m_folder->execute("DELETE FROM NodeInformation");
        item("MnuExplorer").trigger();
        QCOMPARE(frame.area().subWindowList().size(), 1);
    }

    // The toolbar has no guard.
    void eachPressOfFindOpensASearchOfItsOwn()
    {
        CaughtErrors errors;
        MDIBaseForm &frame = MDIBaseForm::frame();
        frame.Show();
        QWidget *find = frame.Toolbar1->widgetForAction(&item("Find"));
        QTest::mouseClick(find, Qt::LeftButton);
        QTest::mouseClick(find, Qt::LeftButton);
        QCOMPARE(frame.area().subWindowList().size(), 3);
        for (const frmFindInfo *search : frame.findChildren<frmFindInfo *>())
            QVERIFY(search->isVisible() && search->MemberId.isEmpty());
        m_folder->execute("DROP TABLE Attachments");
        QTest::mouseClick(find, Qt::LeftButton);
        QVERIFY(errors.takeNumber() != 0);
        QCOMPARE(frame.findChildren<frmFindInfo *>().size(), 2);
    }

    void outOfMemoryIsTold()
    {
        BoxAnswers boxes({QMessageBox::Ok});
        desktop::reportOutOfMemoryOnly([] { throw std::bad_alloc(); });
        QCOMPARE(boxes.seen[0].text, u"Too Many windows are currently open\nOut of memory"_s);
        desktop::reportOutOfMemoryOnly([] { throw runtime::RuntimeError(6); }); // and any other is not
    }

    void startFailures_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("no file") << QByteArray();
        QTest::newRow("a text file") << QByteArray("Dear members,\nthis is no data file at all, only a letter.\n");
        QTest::newRow("an empty file") << QByteArray("");
    }
    void startFailures()
    {
        QFETCH(QByteArray, content);
        QVERIFY(QFile::remove(m_folder->file()));
        if (!content.isNull()) {
            QFile file(m_folder->file());
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(content);
        }
        CaughtErrors errors;
        QuickClock clock;
        desktop::guarded([] { frmLogin::shared().Show(); });
        QCOMPARE(errors.takeNumber(), -2147467259);
    }

    void login_data()
    {
        QTest::addColumn<QString>("user");
        QTest::addColumn<QString>("password");
        QTest::addColumn<QString>("message");
        QTest::addColumn<int>("error");
        QTest::newRow("right") << u"ANN"_s << u"Secret"_s << QString() << 0;
        QTest::newRow("wrong") << u"ann"_s << u"other"_s << u"Incorrect user name and/or password"_s << 0;
        QTest::newRow("both empty") << QString() << QString() << u"Incorrect user name and/or password"_s << 0;
        QTest::newRow("apostrophe") << u"o'brien"_s << u"x"_s << QString() << -2147217900;
        QTest::newRow("no level") << u"nolevel"_s << u"x"_s << QString() << 94;
    }
    void login()
    {
        QFETCH(QString, user);
        QFETCH(QString, password);
        QFETCH(QString, message);
        QFETCH(int, error);
        m_folder->execute("INSERT INTO Security (SecurityId, UserName, UserPassword, UserFirstName, UserMiddleName, "
                          "UserLastName, UserLevel) VALUES (77, 'ann', 'secret', 'Ann', NULL, 'Cole', 99), "
                          "(78, 'nolevel', 'x', 'No', NULL, 'Level', NULL)");
        CaughtErrors errors;
        MDIBaseForm &frame = MDIBaseForm::frame();
        frame.Show();
        frmLogin &window = frmLogin::shared();
        window.ReLogin = true;
        window.show(); // stays on the screen, as its load would not let it
        window.txtUserName->setText(user);
        window.txtPassword->setText(password);
        BoxAnswers boxes(message.isEmpty() ? QList<QMessageBox::StandardButton>() : QList{QMessageBox::Ok});
        QTest::keyClick(&window, Qt::Key_Return);
        QCOMPARE(errors.takeNumber(), error);
        const bool in = message.isEmpty() && error == 0;
        QCOMPARE(window.isVisible(), !in);
        QCOMPARE(frame.Caption(), in ? u"Tolmark : Ann  Cole"_s : u"Tolmark"_s);
        if (in) {
            QCOMPARE(frame.UserId(), u"77"_s);
            QCOMPARE(frame.UMiddleName(), u" "_s);
            QCOMPARE(frame.UserLevel(), qint16(99));
        } else if (!message.isEmpty()) {
            QCOMPARE(boxes.seen[0].text, message);
            QCOMPARE(window.txtUserName->text(), user);
        }
    }

    void middleNames_data()
    {
        using runtime::Value;
        QTest::addColumn<QString>("stored");
        QTest::addColumn<int>("kind");
        QTest::newRow("Null") << u" "_s << 0;
        QTest::newRow("the text 1") << u" "_s << 1;
        QTest::newRow("a name") << u"Bea"_s << 2;
        QTest::newRow("empty") << QString() << 3;
    }
    void middleNames()
    {
        QFETCH(QString, stored);
        QFETCH(int, kind);
        const runtime::Value names[] = {runtime::Value(), runtime::Value(u"1"_s), runtime::Value(u"Bea"_s),
                                        runtime::Value(QString())};
        MDIBaseForm::frame().setUMiddleName(names[kind]);
        QCOMPARE(MDIBaseForm::frame().UMiddleName(), stored);
        QVERIFY_THROWS_EXCEPTION(runtime::RuntimeError, MDIBaseForm::frame().setUFirstName(runtime::Value()));
    }

    void aNewLoginFromTheMenuOnlySetsTheCaption()
    {
        CaughtErrors errors;
        MDIBaseForm &frame = MDIBaseForm::frame();
        frame.Show();
        frame.setUserId(runtime::Value(u"5"_s));
        item("mnuDifferentUser").trigger();
        QVERIFY(!frmLogin::shared().isVisible());
        QCOMPARE(frame.Caption(), u"Tolmark : Lite"_s);
        QCOMPARE(frame.UserId(), u"5"_s);
    }

    void closingEmptiesTheTempFolderButNotWhatLiesUnderIt()
    {
        CaughtErrors errors;
        MDIBaseForm &frame = MDIBaseForm::frame();
        frame.Show();
        for (const char *name : {"a.txt", "no extension", ".hidden", "a\\b", "Search/kept.txt"})
            write(QString::fromLatin1(name));
        item("mnuExit").trigger();
        QVERIFY(!frame.isVisible());
        QCOMPARE(QDir(m_folder->path(u"temp"_s)).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 QStringList{u"Search"_s});
        QVERIFY(QFile::exists(m_folder->path(u"temp/Search/kept.txt"_s)));
    }

    void aMissingTempFolderIsNoFailure()
    {
        CaughtErrors errors;
        QVERIFY(QDir(m_folder->path(u"temp"_s)).removeRecursively());
        MDIBaseForm::frame().Show();
        MDIBaseForm::frame().close();
    }

    // The kernel's own files can be deleted by nobody.
    void aFileThatCannotBeDeletedStopsTheCleaning()
    {
        CaughtErrors errors;
        QVERIFY(QDir(m_folder->path(u"temp"_s)).removeRecursively());
        QVERIFY(QFile::link(u"/proc/tty"_s, m_folder->path(u"temp"_s)));
        MDIBaseForm::frame().Show();
        MDIBaseForm::frame().close();
        QCOMPARE(errors.takeNumber(), 75);
    }

    void theSplashGoesAtAKeyOrAClick()
    {
        frmSplash splash;
        splash.Show();
        QCOMPARE(splash.lblVersion->text(), u"Version 1.0.0"_s);
        QCOMPARE(splash.lblProductName->text(), u"Tolmark Lite"_s);
        QTest::keyClick(&splash, Qt::Key_A);
        QVERIFY(!splash.isVisible());
        splash.Show();
        QTest::mouseClick(splash.lblWarning, Qt::LeftButton);
        QVERIFY(!splash.isVisible());
    }

private:
    void write(const QString &name)
    {
        QFile file(m_folder->path(u"temp/"_s + name));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }

    std::optional<DataStoreFolder> m_folder;
};

QTEST_MAIN(tst_Frame)
#include "tst_frame.moc"
