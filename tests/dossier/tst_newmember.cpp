#include "dossier/FrmAddEditMember.h"
#include "dossier/StatesList.h"
#include "dossier/frmAddInterest.h"
#include "support/StoreTest.h"

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

} // namespace

class tst_NewMember : public StoreTest
{
    Q_OBJECT
private Q_SLOTS:
    // In milliseconds: on a busy machine, too, the letters that are typed into a list are one text.
    void initTestCase() { QApplication::setKeyboardInputInterval(60'000); }
    void init() { open(DataFolder::Content::Empty); }
    void cleanup() { close(); }

    void everythingTypedByKeyboardIsStored()
    {
        BoxAnswers none; // an unexpected one would wait for an answer
        QPointer<FrmAddEditMember> window = desktop::showNew<FrmAddEditMember>();
        QApplication::setActiveWindow(window);
        QVERIFY(QTest::qWaitForWindowActive(window));
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

    void nothingIsSavedWithoutBothNamesAndClosingAsksNothing()
    {
        BoxAnswers none;
        for (const char *name : {"txtMemberFirstName", "txtMemberLastName"}) {
            FrmAddEditMember window;
            window.Show();
            box(window, name).setText(u"x"_s);
            window.Command1->click();
            QVERIFY(window.isVisible());
            window.Command2->click();
            QVERIFY(!window.isVisible());
        }
        frmAddInterest small;
        small.Show();
        small.Command1->click();
        QVERIFY(small.isVisible());
        small.Command2->click();
        QVERIFY(!small.isVisible());
        QCOMPARE(m_folder->row("SELECT count(*) FROM MemberInformation"), u"0"_s);
    }

    // What was written before the statement that breaks stays.
    void anApostropheEndsInTheReport()
    {
        for (const char *name : {"txtCity", "txtEmployerName"}) {
            FrmAddEditMember window;
            enterAnnCole(window);
            box(window, name).setText(u"O'Fallon"_s);
            window.Command1->click();
            QCOMPARE(m_errors->takeNumber(), -2147217900);
        }
        QCOMPARE(m_folder->row("SELECT (SELECT count(*) FROM MemberInformation), count(*) FROM EmployerInformation"),
                 u"1|0"_s);
    }

    void theSameMemberTwiceGivesTheInterestsToTheFirst()
    {
        BoxAnswers none;
        for (int round = 0; round < 2; ++round) {
            FrmAddEditMember window;
            enterAnnCole(window);
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
        FrmAddEditMember window;
        window.Show();
        window.SSTab1->setCurrentIndex(2);
        InterestEntry &entry = *window.Frame3;
        const auto isInState = [&entry](bool entering, const QString &caption, double left) {
            return entry.txtInterest->isEnabled() == entering && entry.lstInterest->isEnabled() != entering &&
                   entry.CMdInterestCancel->isEnabled() == entering && entry.lblInterest->isVisible() == entering &&
                   entry.cmdAddInterest->text() == caption && entry.cmdAddInterest->Left() == left;
        };
        QVERIFY(isInState(false, u"Add Interest"_s, 4635));
        entry.cmdAddInterest->click();
        QVERIFY(isInState(true, u"Save"_s, 3825));
        {
            BoxAnswers boxes({QMessageBox::Ok});
            entry.cmdAddInterest->click();
            QCOMPARE(boxes.seen[0].text, u"Invalid Interest"_s);
        }
        QVERIFY(isInState(true, u"Save"_s, 3825));
        entry.txtInterest->setText(u"Chess"_s);
        entry.CMdInterestCancel->click();
        QVERIFY(isInState(false, u"Add Interest"_s, 4640));
        QCOMPARE(entry.lstInterest->ListItems.Count(), 0);
        QVERIFY(entry.txtInterest->text().isEmpty());
        addInterest(window, u"Chess"_s, u"x"_s);
        QVERIFY(isInState(false, u"Add Interest"_s, 4640));
        QCOMPARE(entry.lstInterest->ListItems(1).SubItems(1), u"x"_s);
    }

    void theStatesAreTheFiftyWithTheirTrailingBlanks()
    {
        QCOMPARE(statesList().size(), 50);
        QCOMPARE(statesList().filter(QRegularExpression(u" $"_s)),
                 (QStringList{u"Arizona "_s, u"California "_s, u"Colorado "_s, u"Virginia "_s}));
        QVERIFY(std::is_sorted(statesList().cbegin(), statesList().cend()));
    }

private:
    static void enterAnnCole(FrmAddEditMember &window)
    {
        window.Show();
        box(window, "txtMemberFirstName").setText(u"Ann"_s);
        box(window, "txtMemberLastName").setText(u"Cole"_s);
    }

    static void addInterest(FrmAddEditMember &window, const QString &interest, const QString &description)
    {
        InterestEntry &entry = *window.Frame3;
        entry.cmdAddInterest->click();
        entry.txtInterest->setText(interest);
        entry.txtInterestDescription->setText(description);
        entry.cmdAddInterest->click();
    }
};

QTEST_MAIN(tst_NewMember)
#include "tst_newmember.moc"
