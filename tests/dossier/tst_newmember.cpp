#include "dossier/FrmAddEditMember.h"
#include "dossier/StatesList.h"
#include "dossier/frmAddInterest.h"
#include "support/DataStoreFolder.h"
#include "support/Dialogs.h"

#include <QPointer>

using namespace Qt::Literals::StringLiterals;

namespace {

// Types into the widget that has the focus and goes on to the next one by Tab.
void type(const QStringList &texts)
{
    for (const QString &text : texts) {
        QTest::keyClicks(QApplication::focusWidget(), text);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
}

desktop::TextBox &box(FrmAddEditMember &window, const char *name)
{
    return *child<desktop::TextBox>(window, name);
}

FrmAddEditMember *openWindow()
{
    auto *window = desktop::showNew<FrmAddEditMember>();
    QApplication::setActiveWindow(window);
    if (!QTest::qWaitForWindowActive(window))
        qFatal("the window never became active");
    return window;
}

} // namespace

class tst_NewMember : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init() { m_folder.emplace(DataStoreFolder::Content::Empty); }

    void everythingTypedByKeyboardIsStored()
    {
        CaughtErrors errors;
        QPointer<FrmAddEditMember> window = openWindow();
        QCOMPARE(QApplication::focusWidget(), child(*window, "txtMemberFirstName"));
        type({u"Ann"_s, u"B"_s, u"Cole"_s, u"1 Main"_s, u"Flat 2"_s, u"Salem"_s, u"Virg"_s, u"97301"_s, u"555-1"_s,
              u"555-2"_s, u"555-3"_s, u"ann@x.org"_s});
        window->SSTab1->setCurrentIndex(1);
        child(*window, "txtEmployerName")->setFocus();
        type({u"Works"_s, u"9 Road"_s, u"Yard"_s, u"Town"_s, u"Ohio"_s, u"43004"_s, u"555-9"_s, u"12"_s, u"555-8"_s,
              u"w@x.org"_s});
        addInterest(*window, u"Chess"_s, u"Sundays"_s);
        addInterest(*window, u"Chess"_s, QString());
        window->Frame3->cmdAddInterest->click(); // what still stands in the boxes is not stored
        window->Frame3->txtInterest->setText(u"Pending"_s);
        QTest::mouseClick(window->Command1, Qt::LeftButton);
        QTRY_VERIFY(!window);

        QCOMPARE(m_folder->row("SELECT FirstName, MiddleName, LastName, AddressOne, AddressTwo, City, State, Zip, "
                               "HomePhone, CellPhone, EMailAddress, Active FROM MemberInformation"),
                 u"Ann|B|Cole|1 Main|Flat 2|Salem|Virginia |97301|555-1|555-2|ann@x.org|-1"_s);
        QCOMPARE(m_folder->row("SELECT Name, AddressOne, AddressTwo, City, State, Zip, PhoneNumber, Extension, "
                               "EMailAddress, typeof(WebAddress) FROM EmployerInformation WHERE MemberId = (SELECT "
                               "MemberId FROM MemberInformation)"),
                 u"Works|9 Road|Yard|Town|Ohio|43004|555-9|12|w@x.org|null"_s);
        QCOMPARE(m_folder->row("SELECT count(*), group_concat(Interest || ':' || InterestDescription) FROM "
                               "MemberInterest JOIN MemberInformation USING (MemberId)"),
                 u"2|Chess:Sundays,Chess:"_s);
    }

    void nothingIsSavedWithoutBothNames()
    {
        CaughtErrors errors;
        BoxAnswers boxes; // and nothing is said
        for (const char *name : {"txtMemberFirstName", "txtMemberLastName"}) {
            FrmAddEditMember window;
            window.Show();
            box(window, name).setText(u"x"_s);
            window.Command1->click();
            QVERIFY(window.isVisible());
        }
        QCOMPARE(m_folder->row("SELECT count(*) FROM MemberInformation"), u"0"_s);
    }

    // Each field breaks the statement that it stands in; what was written before stays.
    void anApostropheEndsInTheReport_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QString>("members");
        QTest::addColumn<QString>("employers");
        QTest::newRow("city") << QByteArray("txtCity") << u"0"_s << u"0"_s;
        QTest::newRow("employer") << QByteArray("txtEmployerName") << u"1"_s << u"0"_s;
    }
    void anApostropheEndsInTheReport()
    {
        QFETCH(QByteArray, name);
        QFETCH(QString, members);
        QFETCH(QString, employers);
        CaughtErrors errors;
        FrmAddEditMember window;
        window.Show();
        box(window, "txtMemberFirstName").setText(u"Ann"_s);
        box(window, "txtMemberLastName").setText(u"Cole"_s);
        box(window, name).setText(u"O'Fallon"_s);
        window.Command1->click();
        QCOMPARE(errors.takeNumber(), -2147217900);
        QCOMPARE(m_folder->row("SELECT count(*) FROM MemberInformation"), members);
        QCOMPARE(m_folder->row("SELECT count(*) FROM EmployerInformation"), employers);
        QCOMPARE(m_folder->row("PRAGMA integrity_check"), u"ok"_s);
    }

    void theSameMemberTwiceGivesTheInterestsToTheFirst()
    {
        CaughtErrors errors;
        for (int round = 0; round < 2; ++round) {
            FrmAddEditMember window;
            window.Show();
            box(window, "txtMemberFirstName").setText(u"Ann"_s);
            box(window, "txtMemberLastName").setText(u"Cole"_s);
            box(window, "txtMemberZip").setText(QString::number(round));
            addInterest(window, u"Chess"_s, {});
            window.Command1->click();
        }
        QCOMPARE(m_folder->row("SELECT count(*) FROM MemberInformation"), u"2"_s);
        QCOMPARE(m_folder->row("SELECT group_concat(MemberId) FROM MemberInterest"), u"1,1"_s);
        QCOMPARE(m_folder->row("SELECT group_concat(MemberId) FROM EmployerInformation"), u"1,1"_s);
    }

    void theEntryOfAnInterestHasTwoStates()
    {
        CaughtErrors errors;
        FrmAddEditMember window;
        window.Show();
        window.SSTab1->setCurrentIndex(2);
        InterestEntry &entry = *window.Frame3;
        const auto browsing = [&entry] {
            return !entry.txtInterest->isEnabled() && !entry.txtInterestDescription->isEnabled() &&
                   entry.lstInterest->isEnabled() && !entry.CMdInterestCancel->isEnabled() &&
                   entry.lblInterest->isHidden() && entry.lblInterestDescription->isHidden() &&
                   entry.cmdAddInterest->text() == u"Add Interest";
        };
        const auto entering = [&entry] {
            return entry.txtInterest->isEnabled() && entry.txtInterestDescription->isEnabled() &&
                   !entry.lstInterest->isEnabled() && entry.CMdInterestCancel->isEnabled() &&
                   entry.lblInterest->isVisible() && entry.cmdAddInterest->text() == u"Save";
        };
        QVERIFY(browsing());
        QCOMPARE(entry.cmdAddInterest->Left(), 4635.0);
        entry.cmdAddInterest->click();
        QVERIFY(entering());
        QCOMPARE(entry.cmdAddInterest->Left(), 3825.0);
        {
            BoxAnswers boxes({QMessageBox::Ok});
            entry.cmdAddInterest->click();
            QCOMPARE(boxes.seen[0].text, u"Invalid Interest"_s);
            QCOMPARE(boxes.seen[0].title, u"Tolmark"_s);
            QCOMPARE(boxes.seen[0].icon, QMessageBox::Critical);
        }
        QVERIFY(entering());
        entry.txtInterest->setText(u"Chess"_s);
        entry.CMdInterestCancel->click();
        QVERIFY(browsing());
        QCOMPARE(entry.cmdAddInterest->Left(), 4640.0);
        QCOMPARE(entry.lstInterest->ListItems.Count(), 0);
        QVERIFY(entry.txtInterest->text().isEmpty());
        addInterest(window, u"Chess"_s, u"x"_s);
        QVERIFY(browsing());
        QCOMPARE(entry.lstInterest->ListItems(1).SubItems(1), u"x"_s);
    }

    void theStatesAreTheFiftyWithTheirTrailingBlanks()
    {
        QCOMPARE(statesList().size(), 50);
        QCOMPARE(statesList().filter(QRegularExpression(u" $"_s)),
                 (QStringList{u"Arizona "_s, u"California "_s, u"Colorado "_s, u"Virginia "_s}));
        QVERIFY(std::is_sorted(statesList().cbegin(), statesList().cend()));
    }

    void closingAsksNothing()
    {
        CaughtErrors errors;
        BoxAnswers boxes;
        QPointer<FrmAddEditMember> window = openWindow();
        box(*window, "txtMemberFirstName").setText(u"Ann"_s);
        window->Command2->click();
        QTRY_VERIFY(!window);
        frmAddInterest small;
        small.Show();
        small.Command1->click();
        QVERIFY(small.isVisible());
        small.Command2->click();
        QVERIFY(!small.isVisible());
    }

private:
    static void addInterest(FrmAddEditMember &window, const QString &interest, const QString &description)
    {
        InterestEntry &entry = *window.Frame3;
        entry.cmdAddInterest->click();
        entry.txtInterest->setText(interest);
        entry.txtInterestDescription->setText(description);
        entry.cmdAddInterest->click();
    }

    std::optional<DataStoreFolder> m_folder;
};

QTEST_MAIN(tst_NewMember)
#include "tst_newmember.moc"
