#include "platform/desktop/MdiForm.h"
#include "platform/desktop/Twips.h"
#include "platform/runtime/Clock.h"
#include "platform/runtime/Random.h"
#include "shell/users/frmNewUser.h"
#include "support/DataStoreFolder.h"
#include "support/Dialogs.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr const char *everyUser = "SELECT SecurityId, UserName, UserPassword, UserFirstName, UserMiddleName, "
                                  "UserLastName, UserEMailAddress, UserLevel FROM Security ORDER BY SecurityId";

void setSecondsSinceMidnight(double seconds)
{
    runtime::setClock(
        [seconds] { return QDateTime(QDate(2026, 3, 4), QTime::fromMSecsSinceStartOfDay(int(seconds * 1000))); });
}

QStringList boxesOf(const frmNewUser &window)
{
    return {window.txtFirstName->text(),       window.txtMiddleName->text(),       window.txtLastName->text(),
            window.txtEMailAddress->text(),    window.txtUserName->text(),         window.txtPassword->text(),
            window.txtPasswordRetypes->text(), window.lblGeneratedPassword->text()};
}

frmNewUser *openUser(const QString &id)
{
    return desktop::showNew<frmNewUser>([&id](frmNewUser &window) { window.SecurityId = id; });
}

} // namespace

class tst_Users : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        m_folder.emplace(DataStoreFolder::Content::Empty);
        m_folder->execute("DELETE FROM Security; UPDATE sqlite_sequence SET seq = 4 WHERE name = 'Security'");
    }
    void cleanup() { runtime::setClock({}); }

    void aUserNameIsMadeOfTheNames_data()
    {
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<QString>("userName");
        QTest::newRow("all") << QStringList{u"Ann"_s, u"B"_s, u"Cole"_s} << u"ABCole"_s;
        QTest::newRow("no middle name") << QStringList{u"ann"_s, QString(), u"de Vries"_s} << u"ade Vries"_s;
        QTest::newRow("no last name") << QStringList{u"Ann"_s, u"Bea"_s, QString()} << u"AB"_s;
        QTest::newRow("none") << QStringList{QString(), QString(), QString()} << QString();
    }
    void aUserNameIsMadeOfTheNames()
    {
        QFETCH(QStringList, names);
        frmNewUser window;
        window.txtFirstName->setText(names[0]);
        window.txtMiddleName->setText(names[1]);
        window.txtLastName->setText(names[2]);
        window.txtUserName->setText(u"before"_s);
        window.CmdUserName->click();
        QTEST(window.txtUserName->text(), "userName");
    }

    // The expected texts were worked out by another program from the generator's definition.
    void aPasswordFollowsTheGenerator_data()
    {
        QTest::addColumn<QString>("lastName");
        QTest::addColumn<double>("seconds"); // since midnight
        QTest::addColumn<QString>("password");
        QTest::newRow("four letters") << u"Cole"_s << 32400.0 << u"2llC962"_s;
        QTest::newRow("no last name") << QString() << 32400.0 << u"2962"_s;
        QTest::newRow("one letter") << u"O"_s << 0.0 << u"299O6O"_s;
        QTest::newRow("letters beyond ASCII") << u"Müller"_s << 86399.75 << u"493üM5"_s;
    }
    void aPasswordFollowsTheGenerator()
    {
        QFETCH(QString, lastName);
        QFETCH(double, seconds);
        QFETCH(QString, password);
        frmNewUser window;
        window.txtLastName->setText(lastName);
        setSecondsSinceMidnight(seconds);
        runtime::Rnd(-1.0F);
        window.CmdPassword->click();
        QCOMPARE(boxesOf(window).mid(5), (QStringList{password, password, password}));
    }

    void aUserTypedByKeyboardIsStored()
    {
        CaughtErrors errors;
        BoxAnswers none;
        QPointer<frmNewUser> window = desktop::showNew<frmNewUser>();
        QApplication::setActiveWindow(window);
        QVERIFY(QTest::qWaitForWindowActive(window));
        const auto press = [](int key) { QTest::keyClick(QApplication::focusWidget(), Qt::Key(key)); };
        for (const QString &text : {u"Ann"_s, u"B"_s, u"O'Hara"_s, u"ann@x.org"_s}) {
            QTest::keyClicks(QApplication::focusWidget(), text);
            press(Qt::Key_Tab);
        }
        press(Qt::Key_Tab); // over the user name, which the button makes
        press(Qt::Key_Space);
        press(Qt::Key_Tab);
        press(Qt::Key_Tab); // over the password
        press(Qt::Key_Space);
        press(Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), window->txtPasswordRetypes);
        press(Qt::Key_Tab);
        press(Qt::Key_Space);
        press(Qt::Key_Space); // a second row, as nothing looks for the first
        const QString row = u"|ABO'Hara|"_s + window->lblGeneratedPassword->text() + u"|Ann|B|O'Hara|ann@x.org|0"_s;
        QCOMPARE(m_folder->rows(everyUser), (QStringList{u"5"_s + row, u"6"_s + row}));
        QVERIFY(window->isVisible());
        window->cmdCancel->click();
        QTRY_VERIFY(!window);
    }

    void whatIsMissingIsTold_data()
    {
        QTest::addColumn<QString>("password");
        QTest::addColumn<QString>("retyped");
        QTest::addColumn<QString>("userName");
        QTest::addColumn<QString>("message");
        QTest::newRow("nothing") << QString() << QString() << QString() << u"Invalid Password"_s;
        QTest::newRow("no password") << QString() << u"x"_s << u"ann"_s << u"Invalid Password"_s;
        QTest::newRow("not retyped") << u"x"_s << QString() << QString() << u"Invalid password confirmation"_s;
        QTest::newRow("no user name") << u"x"_s << u"y"_s << QString() << u"User Name can not be null"_s;
        QTest::newRow("passwords differ by case") << u"x"_s << u"X"_s << u"ann"_s << u"The passwords do not match"_s;
        QTest::newRow("apostrophes") << u"it's"_s << u"it's"_s << u"o'hara"_s << QString();
        QTest::newRow("blanks are something") << u" "_s << u" "_s << u" "_s << QString();
    }
    void whatIsMissingIsTold()
    {
        QFETCH(QString, password);
        QFETCH(QString, retyped);
        QFETCH(QString, userName);
        QFETCH(QString, message);
        CaughtErrors errors;
        frmNewUser window;
        window.Show();
        window.txtPassword->setText(password);
        window.txtPasswordRetypes->setText(retyped);
        window.txtUserName->setText(userName);
        const QStringList before = boxesOf(window);
        const bool accepted = message.isEmpty();
        BoxAnswers boxes(accepted ? QList<QMessageBox::StandardButton>() : QList{QMessageBox::Ok});
        window.cmdOk->click();
        if (!accepted) {
            QCOMPARE(boxes.seen[0].text, message);
            QCOMPARE(boxes.seen[0].title, u"Tolmark Lite"_s);
            QCOMPARE(boxes.seen[0].icon, QMessageBox::NoIcon);
        }
        QCOMPARE(m_folder->rows(everyUser),
                 accepted ? QStringList{u"5|"_s + userName + u'|' + password + u"|||||0"_s} : QStringList());
        QCOMPARE(boxesOf(window), before);
        QVERIFY(window.isVisible());
    }

    void clearingLeavesTheAddress()
    {
        frmNewUser window;
        for (desktop::TextBox *box :
             {window.txtFirstName, window.txtMiddleName, window.txtLastName, window.txtEMailAddress})
            box->setText(u"x"_s);
        window.CmdUserName->click();
        window.CmdPassword->click();
        window.cmdClear->click();
        QCOMPARE(boxesOf(window).join(u','), u",,,x,,,,"_s);
    }

    void aUserIsChanged()
    {
        CaughtErrors errors;
        BoxAnswers none;
        m_folder->execute("INSERT INTO Security VALUES (7, 'ann', 'secret', 'Ann', NULL, 'Cole', NULL, 99),"
                          " (8, 'bo', 'x', 'Bo', '', 'Dow', 'bo@x.org', 1)");
        frmNewUser &window = *openUser(u"7"_s);
        QCOMPARE(window.Caption(), u"User Information for Ann  Cole"_s);
        QCOMPARE(boxesOf(window), (QStringList{u"Ann"_s, QString(), u"Cole"_s, QString(), u"ann"_s, u"secret"_s,
                                               u"secret"_s, QString()}));
        QCOMPARE(window.cmdOk->text(), u"Update"_s);
        for (const char *hidden :
             {"cmdClear", "CmdUserName", "CmdPassword", "lblPasswordRedtyped", "txtPasswordRetypes"})
            QVERIFY2(!child(window, hidden)->isVisible(), hidden);
        QVERIFY(!window.txtUserName->isEnabled() && !window.txtPassword->isEnabled());
        window.txtFirstName->setText(u"Anna"_s);
        window.txtMiddleName->setText(u"d'A"_s);
        window.txtLastName->setText({});
        window.txtUserName->setText(u"other"_s);
        window.txtPassword->setText({}); // nobody checks it here, nor is it written
        window.cmdOk->click();
        QCOMPARE(m_folder->rows(everyUser),
                 (QStringList{u"7|ann|secret|Anna|d'A|||99"_s, u"8|bo|x|Bo||Dow|bo@x.org|1"_s}));
        window.Unload();
    }

    void aUserThatIsNotThereFailsTheLoad()
    {
        CaughtErrors errors;
        desktop::guarded([] { openUser(u"77"_s); });
        QCOMPARE(errors.takeNumber(), 3021);
        desktop::guarded([] { openUser(u"7'"_s); });
        QCOMPARE(errors.takeNumber(), -2147217900);
    }

    void theWindowKeepsItsSize()
    {
        desktop::MdiForm frame(u"frame");
        frame.resize(900, 700);
        frame.Show();
        QApplication::setActiveWindow(&frame);
        QVERIFY(QTest::qWaitForWindowActive(&frame));
        (new desktop::Form(desktop::Form::Place::InFrame, u"Other"))->Show();
        QMdiSubWindow &other = *frame.area().subWindowList().constLast();
        other.showMaximized();
        frmNewUser &window = *desktop::showNew<frmNewUser>();
        QMdiSubWindow &host = *frame.area().subWindowList().constLast();
        const auto isWell = [&] {
            return !host.isMaximized() && window.Width() == 8730 && window.Height() == 6135 &&
                   frame.area().viewport()->rect().contains(host.geometry());
        };
        QVERIFY(isWell());
        QCOMPARE(QApplication::focusWidget(), window.txtFirstName);
        for (const QSize &size : {QSize(800, 600), QSize(200, 150), QSize(582, 500)}) {
            host.resize(size);
            QTRY_VERIFY(isWell());
        }
        host.showMaximized();
        QTRY_VERIFY(isWell());
        other.showMaximized();
        frame.area().setActiveSubWindow(&host); // takes the other's state over
        QTRY_VERIFY(isWell());
    }

private:
    std::optional<DataStoreFolder> m_folder;
};

QTEST_MAIN(tst_Users)
#include "tst_users.moc"
