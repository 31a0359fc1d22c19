#include "platform/desktop/MdiForm.h"
#include "shell/users/frmOptions.h"
#include "support/DataStoreFolder.h"
#include "support/Dialogs.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>
#include <QScreen>
#include <QSignalSpy>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double inView = 210; // twips
constexpr double outOfView = -20000;

frmOptions *openOptions(const QString &user)
{
    return desktop::showNew<frmOptions>([&user](frmOptions &window) { window.setSecId(user); });
}

} // namespace

class tst_Options : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        m_folder.emplace(DataStoreFolder::Content::Empty);
        m_folder->execute("DELETE FROM Security; INSERT INTO Security (SecurityId, UserName, UserPassword) VALUES"
                          " (7, 'ann', 'stored'), (8, 'bo', 'other')");
    }

    void aPasswordIsChanged()
    {
        const QString noOld = u"You must supply your old password"_s;
        const QString equal = u"The new password cannot match the old password"_s;
        const QString differ = u"Passwords do not match"_s;
        const QString changed = u"Your password has been changed"_s;
        const std::pair<QStringList, QString> rows[] = {
            // old, new, retyped
            {{QString(), u"new"_s, u"new"_s}, noOld},
            {{u"stored"_s, u"stored"_s, u"x"_s}, equal},
            {{u"stored"_s, u"new"_s, u"New"_s}, differ},
            {{u"wrong"_s, u"it's new"_s, u"it's new"_s}, changed}, // any old one will do
            {{u"stored"_s, QString(), QString()}, changed}};
        CaughtErrors errors;
        QString stored = u"stored"_s;
        for (const auto &[boxes, message] : rows) {
            QPointer<frmOptions> window = openOptions(u"7"_s);
            const QList<desktop::TextBox *> all{window->txtOldPassword, window->txtNewPassword,
                                                window->txtNewPasswordRetyped};
            for (const int box : {0, 1, 2})
                all[box]->setText(boxes[box]);
            BoxAnswers answers({QMessageBox::Ok, QMessageBox::Ok});
            window->cmdApply->click();
            QCOMPARE(answers.seen[0].text, message);
            QCOMPARE(answers.seen[0].icon, QMessageBox::NoIcon);
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
        CaughtErrors errors;
        for (const auto &[user, error] : {std::pair(QString(), -2147217900), std::pair(u"77"_s, 3021)}) {
            frmOptions &window = *openOptions(user);
            window.txtOldPassword->setText(u"x"_s);
            window.cmdOK->click();
            QCOMPARE(errors.takeNumber(), error);
            window.Unload();
        }
    }

    // Ctrl+Tab is also the frame's key for its next window.
    void theWindowOpensInTheMiddleAndTheKeyboardTurnsItsTabs()
    {
        CaughtErrors errors;
        desktop::MdiForm frame(u"frame");
        frame.setGeometry(frame.screen()->availableGeometry().adjusted(10, 10, -10, -10));
        frame.Show();
        openOptions(u"8"_s);
        const QMdiSubWindow &host = *frame.area().subWindowList()[0];
        const QPoint off = host.mapToGlobal(host.rect().center()) - frame.screen()->availableGeometry().center();
        QVERIFY2(off.manhattanLength() <= 2, qPrintable(u"%1, %2"_s.arg(off.x()).arg(off.y())));
        frmOptions &window = *openOptions(u"7"_s);
        QVERIFY(window.picOptions(0)->geometry().bottom() < window.cmdOK->y());
        QApplication::setActiveWindow(&frame);
        QVERIFY(QTest::qWaitForWindowActive(&frame));
        QCOMPARE(QApplication::focusWidget(), window.txtOldPassword);
        QSignalSpy clicks(window.tbsOptions, &desktop::TabStrip::Click);
        const auto press = [](Qt::KeyboardModifiers modifiers) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab, modifiers);
        };
        press(Qt::ControlModifier);
        QCOMPARE(clicks.count(), 1); // with a single tab on that same one
        QVERIFY(window.picOptions(0)->isEnabled());
        window.tbsOptions->add(u"Second"_s, u"Second"_s, {});
        press(Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(window.tbsOptions->SelectedItem(), 1);
        for (int selected : {1, 0}) {
            frame.area().setActiveSubWindow(frame.area().subWindowList()[1]);
            window.cmdOK->setFocus();
            press(Qt::ControlModifier);
            for (int page : {0, 1}) {
                QCOMPARE(window.picOptions(page)->Left(), page == selected ? inView : outOfView);
                QCOMPARE(window.picOptions(page)->isEnabled(), page == selected);
                QVERIFY(window.picOptions(page)->isVisible());
            }
        }
        QCOMPARE(clicks.count(), 3);
        QCOMPARE(frame.area().activeSubWindow()->widget(), &window);
        QCOMPARE(window.picOptions(3)->Left(), outOfView);
    }

private:
    std::optional<DataStoreFolder> m_folder;
};

QTEST_MAIN(tst_Options)
#include "tst_options.moc"
