#include "platform/desktop/MdiForm.h"
#include "platform/desktop/Twips.h"
#include "platform/runtime/Clock.h"
#include "platform/runtime/Random.h"
#include "shell/users/frmNewUser.h"
#include "support/DataStoreFolder.h"
#include "support/Dialogs.h"
#include "support/Outcome.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>

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
            QCOMPARE(boxes.seen[0].text, row.message);
            QCOMPARE(boxes.seen[0].icon, QMessageBox::NoIcon);
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
        QApplication::setActiveWindow(&frame);
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

private:
    std::optional<DataStoreFolder> m_folder;
    std::optional<CaughtErrors> m_errors;
};

QTEST_MAIN(tst_Users)
#include "tst_users.moc"
