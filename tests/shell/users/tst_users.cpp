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
        m_errors.emplace();
    }
    void cleanup()
    {
        m_errors.reset();
        runtime::setClock({});
    }

    void aUserNameIsMadeOfTheNames()
    {
        frmNewUser window;
        for (const auto &[first, middle, last, userName] : {std::tuple(u"Ann"_s, u"Bea"_s, u"Cole"_s, u"ABCole"_s),
                                                            {u"ann"_s, u""_s, u"de Vries"_s, u"ade Vries"_s},
                                                            {u"Ann"_s, u"B"_s, u""_s, u"AB"_s},
                                                            {u""_s, u""_s, u""_s, u""_s}}) {
            window.txtFirstName->setText(first);
            window.txtMiddleName->setText(middle);
            window.txtLastName->setText(last);
            window.CmdUserName->click();
            QCOMPARE(window.txtUserName->text(), userName);
        }
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
        BoxAnswers none;
        QPointer<frmNewUser> window = desktop::showNew<frmNewUser>();
        QApplication::setActiveWindow(window);
        QVERIFY(QTest::qWaitForWindowActive(window));
        const auto press = [](int key) { QTest::keyClick(QApplication::focusWidget(), Qt::Key(key)); };
        for (const QString &text : {u"Ann"_s, u"B"_s, u"O'Hara"_s, u"ann@x.org"_s}) {
            QTest::keyClicks(QApplication::focusWidget(), text);
            press(Qt::Key_Tab);
        }
        for (QWidget *made : {window->txtUserName, window->txtPassword}) { // by the button behind it
            QCOMPARE(QApplication::focusWidget(), made);
            for (const int key : {Qt::Key_Tab, Qt::Key_Space, Qt::Key_Tab})
                press(key);
        }
        QCOMPARE(QApplication::focusWidget(), window->txtPasswordRetypes);
        for (const int key : {Qt::Key_Tab, Qt::Key_Space, Qt::Key_Space}) // twice: nothing looks for the first row
            press(key);
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
        QTest::newRow("not retyped") << u"x"_s << QString() << QString() << u"Invalid password confirmation"_s;
        QTest::newRow("no user name") << u"x"_s << u"y"_s << QString() << u"User Name can not be null"_s;
        QTest::newRow("passwords differ by case") << u"x"_s << u"X"_s << u"ann"_s << u"The passwords do not match"_s;
        QTest::newRow("apostrophes") << u"it's"_s << u"it's"_s << u"o'hara"_s << QString();
        QTest::newRow("blanks") << u" "_s << u" "_s << u" "_s << QString();
    }
    void whatIsMissingIsTold()
    {
        QFETCH(QString, password);
        QFETCH(QString, retyped);
        QFETCH(QString, userName);
        QFETCH(QString, message);
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
        for (const auto &[id, error] : {std::pair(u"77"_s, 3021), std::pair(u"7'"_s, -2147217900)}) {
            desktop::guarded([&id = id] { openUser(id); });
            QCOMPARE(m_errors->takeNumber(), error);
        }
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
        host.showMinimized();
        host.showNormal();
        QTRY_VERIFY(isWell());
        other.showMaximized();
        frame.area().setActiveSubWindow(&host); // takes the other's state over
        QTRY_VERIFY(isWell());
    }

private:
    std::optional<DataStoreFolder> m_folder;
    std::optional<CaughtErrors> m_errors;
};

QTEST_MAIN(tst_Users)
#include "tst_users.moc"
