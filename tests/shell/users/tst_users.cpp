#include "platform/desktop/MdiForm.h"
#include "platform/desktop/Twips.h"
#include "platform/runtime/Clock.h"
#include "platform/runtime/Random.h"
#include "shell/users/frmNewUser.h"
#include "shell/users/frmOptions.h"
#include "support/Outcome.h"
#include "support/StoreTest.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>
#include <QScreen>
#include <QSignalSpy>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr const char *everyUser = "SELECT SecurityId, UserName, UserPassword, UserFirstName, UserMiddleName, "
                                  "UserLastName, UserEMailAddress, UserLevel FROM Security ORDER BY SecurityId";

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

constexpr double inView = 210; // twips
constexpr double outOfView = -20000;

frmOptions *openOptions(const QString &user)
{
    return desktop::showNew<frmOptions>([&user](frmOptions &window) { window.setSecId(user); });
}

} // namespace

class tst_Users : public StoreTest
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        open(DataFolder::Content::Empty,
             "DELETE FROM Security; UPDATE sqlite_sequence SET seq = 4 WHERE name = 'Security'");
    }
    void cleanup() { close(); }

    void aUserNameIsMadeOfTheNamesAndClearingLeavesTheAddress()
    {
        frmNewUser window;
        window.txtFirstName->setText(u"ann"_s);
        window.txtMiddleName->setText(u"Bea"_s);
        window.txtLastName->setText(u"de Vries"_s);
        window.txtEMailAddress->setText(u"x"_s);
        window.CmdUserName->click();
        QCOMPARE(window.txtUserName->text(), u"aBde Vries"_s);
        window.CmdPassword->click();
        window.cmdClear->click();
        QCOMPARE(boxesOf(window).join(u','), u",,,x,,,,"_s);
    }

    // The expected texts were worked out by another program from the generator's definition.
    void aPasswordFollowsTheGenerator()
    {
        for (const auto &[lastName, seconds, password] :
             {std::tuple(u"Cole"_s, 32400.0, u"2llC962"_s), std::tuple(QString(), 32400.0, u"2962"_s),
              std::tuple(u"O"_s, 0.0, u"299O6O"_s), std::tuple(u"Müller"_s, 86399.75, u"493üM5"_s)}) {
            frmNewUser window;
            window.txtLastName->setText(lastName);
            runtime::setClock([seconds = seconds] {
                return QDateTime(QDate(2026, 3, 4), QTime::fromMSecsSinceStartOfDay(int(seconds * 1000)));
            });
            runtime::Rnd(-1.0F);
            window.CmdPassword->click();
            QCOMPARE(boxesOf(window).mid(5), (QStringList{password, password, password}));
        }
    }

    void aUserTypedByKeyboardIsStored()
    {
        BoxAnswers none;
        QPointer<frmNewUser> window = desktop::showNew<frmNewUser>();
        window->activateWindow();
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

    void whatIsMissingIsTold()
    {
        struct Row
        {
            QString password, retyped, userName, message;
        };
        const Row rows[] = {{{}, {}, {}, u"Invalid Password"_s},
                            {u"x"_s, {}, {}, u"Invalid password confirmation"_s},
                            {u"x"_s, u"y"_s, {}, u"User Name can not be null"_s},
                            {u"x"_s, u"X"_s, u"ann"_s, u"The passwords do not match"_s}};
        for (const Row &row : rows) {
            frmNewUser window;
            window.txtPassword->setText(row.password);
            window.txtPasswordRetypes->setText(row.retyped);
            window.txtUserName->setText(row.userName);
            const QStringList before = boxesOf(window);
            BoxAnswers boxes({QMessageBox::Ok});
            window.cmdOk->click();
            QCOMPARE(boxes.seen[0].whole(), u"Tolmark Lite: "_s + row.message + u" (NoIcon, Ok)"_s);
            QCOMPARE(boxesOf(window), before);
        }
        QCOMPARE(m_folder->rows(everyUser), QStringList());
    }

    void aUserIsChanged()
    {
        BoxAnswers none;
        m_folder->execute("INSERT INTO Security VALUES (7, 'ann', 'secret', 'Ann', NULL, 'Cole', NULL, 99),"
                          " (8, 'bo', 'x', 'Bo', '', 'Dow', 'bo@x.org', 1)");
        for (const auto &[id, error] : {std::pair(u"77"_s, 3021), std::pair(u"7'"_s, -2147217900)})
            QCOMPARE(errorNumberOf([&id = id] { openUser(id); }), error);
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

    void theWindowKeepsItsSize()
    {
        desktop::MdiForm frame(u"frame");
        frame.resize(900, 700);
        frame.Show();
        frame.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&frame));
        (new desktop::Form(desktop::Form::Place::InFrame, u"Other"))->Show();
        QMdiSubWindow &other = *frame.area().subWindowList().constLast();
        other.showMaximized();
        frmNewUser &window = *desktop::showNew<frmNewUser>();
        QMdiSubWindow &host = *frame.area().subWindowList().constLast();
        const auto place = [&] {
            return u"%1 x %2%3%4"_s.arg(window.Width())
                .arg(window.Height())
                .arg(host.isMaximized() ? u", maximised"_s : QString())
                .arg(frame.area().viewport()->rect().contains(host.geometry()) ? QString() : u", out of sight"_s);
        };
        const QString own = u"8730 x 6135"_s;
        QCOMPARE(place(), own);
        QCOMPARE(QApplication::focusWidget(), window.txtFirstName);
        for (const QSize &size : {QSize(800, 600), QSize(200, 150)}) {
            host.resize(size);
            QTRY_COMPARE(place(), own);
        }
        host.showMaximized();
        QTRY_COMPARE(place(), own);
        host.showMinimized();
        host.showNormal();
        QTRY_COMPARE(place(), own);
        other.showMaximized();
        frame.area().setActiveSubWindow(&host); // takes the other's state over
        QTRY_COMPARE(place(), own);
    }

    void aPasswordIsChanged()
    {
        const QString noOld = u"You must supply your old password"_s;
        const QString equal = u"The new password cannot match the old password"_s;
        const QString differ = u"Passwords do not match"_s;
        const QString changed = u"Your password has been changed"_s;
        m_folder->execute("INSERT INTO Security (SecurityId, UserName, UserPassword) VALUES (7, 'ann', 'stored'),"
                          " (8, 'bo', 'other')");
        const std::pair<QStringList, QString> rows[] = {
            // old, new, retyped
            {{QString(), u"new"_s, u"new"_s}, noOld},
            {{u"stored"_s, u"stored"_s, u"x"_s}, equal},
            {{u"stored"_s, u"new"_s, u"New"_s}, differ},
            {{u"wrong"_s, u"it's new"_s, u"it's new"_s}, changed}, // any old one will do
            {{u"stored"_s, QString(), QString()}, changed}};
        QString stored = u"stored"_s;
        for (const auto &[boxes, message] : rows) {
            QPointer<frmOptions> window = openOptions(u"7"_s);
            const QList<desktop::TextBox *> all{window->txtOldPassword, window->txtNewPassword,
                                                window->txtNewPasswordRetyped};
            for (const int box : {0, 1, 2})
                all[box]->setText(boxes[box]);
            BoxAnswers answers({QMessageBox::Ok, QMessageBox::Ok});
            window->cmdApply->click();
            QCOMPARE(answers.seen[0].whole(), u"Tolmark Lite: "_s + message + u" (NoIcon, Ok)"_s);
            QVERIFY(window->isVisible());
            const bool changes = message == changed;
            for (const int box : {0, 1, 2})
                QCOMPARE(all[box]->text(), changes ? boxes[box] : QString());
            stored = changes ? boxes[1] : stored;
            QCOMPARE(m_folder->row("SELECT group_concat(UserPassword) FROM Security"), stored + u",other"_s);
            window->cmdOK->click(); // closes, whatever came of it
            QCOMPARE(answers.seen[1].text, changes ? changed : noOld);
            QTRY_VERIFY(!window);
        }
    }

    void aUserThatIsNotThereIsReported()
    {
        for (const auto &[user, error] : {std::pair(QString(), -2147217900), std::pair(u"77"_s, 3021)}) {
            frmOptions &window = *openOptions(user);
            window.txtOldPassword->setText(u"x"_s);
            window.cmdOK->click();
            QCOMPARE(m_errors->takeNumber(), error);
            window.Unload();
        }
    }

    // Ctrl+Tab is the key of its tabs, and elsewhere the frame's for its next window.
    void theWindowOpensInTheMiddleAndCtrlTabIsItsOwn()
    {
        desktop::MdiForm frame(u"frame");
        frame.setGeometry(frame.screen()->availableGeometry().adjusted(10, 10, -10, -10));
        frame.Show();
        openOptions(u"8"_s);
        const QMdiSubWindow &host = *frame.area().subWindowList()[0];
        const QPoint off = host.mapToGlobal(host.rect().center()) - frame.screen()->availableGeometry().center();
        QVERIFY2(off.manhattanLength() <= 2, qPrintable(u"%1, %2"_s.arg(off.x()).arg(off.y())));
        frmOptions &window = *openOptions(u"7"_s);
        QVERIFY(window.picOptions(0)->geometry().bottom() < window.cmdOK->y());
        frame.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&frame));
        QCOMPARE(QApplication::focusWidget(), window.txtOldPassword);
        QSignalSpy clicks(window.tbsOptions, &desktop::TabStrip::Click);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab, Qt::ControlModifier);
        QCOMPARE(clicks.count(), 1); // on the same tab, the only one
        QVERIFY(window.picOptions(0)->isEnabled());
        QCOMPARE(window.picOptions(0)->Left(), inView);
        QCOMPARE(window.picOptions(3)->Left(), outOfView);
        QCOMPARE(frame.area().activeSubWindow()->widget(), &window);
    }
};

QTEST_MAIN(tst_Users)
#include "tst_users.moc"
