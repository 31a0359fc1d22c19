#include "dossier/DisplayMembers.h"
#include "explorers/FrmDataBaseExplorer.h"
#include "explorers/OpenExplorer.h"
#include "platform/desktop/MdiForm.h"
#include "support/DataStoreFolder.h"

using namespace Qt::Literals::StringLiterals;

using desktop::Label;
using desktop::Node;

namespace {

using Explorer = OpenExplorer<FrmDataBaseExplorer>;

// A small organisation in which every count is known.
constexpr const char *knownMembers =
    "DELETE FROM MemberInformation;"
    "INSERT INTO MemberInformation (MemberId, MemberTypeId, FirstName, LastName, City, Active) VALUES"
    " (1, 1, 'Ann', 'Abel', 'Zurich', -1), (2, 1, 'bea', 'adams', NULL, -1), (3, 9999, NULL, 'Ack', 'Aachen', -1),"
    " (4, 1, 'Gone', 'Away', 'X', 0), (5, NULL, 'Ed', 'Cole', '', -1), (40000, 1, 'Far', 'Cox', 'Y', -1),"
    " (7, 1, 'Odd', 'Dee', 'Z', 1);";

} // namespace

class tst_MemberExplorer : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        m_folder.emplace(DataStoreFolder::Content::Sample);
        m_folder->execute(knownMembers);
    }

    void groupsShowTheirCounts()
    {
        CaughtErrors errors;
        Explorer explorer;
        QCOMPARE(explorer.tree().Nodes.Count(), 31);
        QCOMPARE(explorer.tree().Nodes(1).Text(), u"A     (3)"_s);
        QVERIFY(explorer.tree().Nodes(1).font(0).bold());
        QCOMPARE(explorer.tree().Nodes(2).Text(), u"B"_s);
        QVERIFY(!explorer.tree().Nodes(2).font(0).bold());
        QCOMPARE(explorer.tree().Nodes(4).Text(), u"D     (1)"_s); // a Yes that another tool wrote as 1
        QCOMPARE(explorer.listing(), u"Members - 6 (Click to Refresh)"_s);
        QCOMPARE(explorer.list().ListItems.Count(), 0);
    }

    void aClickListsTheGroup()
    {
        CaughtErrors errors;
        Explorer explorer;
        explorer.clickGroup(u"A"_s);
        QCOMPARE(explorer.window().windowTitle(),
                 u"Member Explorer : Member's with a last name starting with \"A\" are displayed."_s);
        QCOMPARE(explorer.information(), u"Member Information - 3"_s);
        QCOMPARE(explorer.column(0), (QStringList{u"1"_s, u"3"_s, u"2"_s})); // as the index on the name gives them
        QCOMPARE(explorer.list().ListItems(3).Tag, u"2"_s);
        QCOMPARE(explorer.column(2), (QStringList{u"Ann"_s, QString(), u"bea"_s}));
        QVERIFY(explorer.column(1).at(1).isEmpty()); // a type that does not exist
        explorer.clickGroup(u"B"_s);
        QCOMPARE(explorer.information(), u"Member Information - "_s);
        QCOMPARE(explorer.list().ListItems.Count(), 0);
    }

    // Beside the nodes a click finds no node before one is selected, and keeps the selected one afterwards.
    void aClickBesideTheNodes()
    {
        m_folder->execute("DELETE FROM NodeInformation WHERE NodeName > 'M'"); // leaves room below the last node
        CaughtErrors errors;
        Explorer explorer;
        const QPoint beside(20, explorer.tree().viewport()->height() - 3);
        QVERIFY(!explorer.tree().itemAt(beside));
        QTest::mouseClick(explorer.tree().viewport(), Qt::LeftButton, {}, beside);
        QCOMPARE(errors.takeNumber(), 91);
        explorer.clickGroup(u"C"_s);
        QTest::mouseClick(explorer.tree().viewport(), Qt::LeftButton, {}, beside);
        QCOMPARE(explorer.tree().SelectedItem()->Tag, u"C"_s);
        QCOMPARE(explorer.list().ListItems.Count(), 2);
    }

    void theKeyboardListsAGroupToo()
    {
        CaughtErrors errors;
        Explorer explorer;
        explorer.tree().setFocus(Qt::TabFocusReason);
        QTRY_VERIFY(explorer.tree().hasFocus());
        QTest::keyClick(&explorer.tree(), Qt::Key_Down);
        QTest::keyClick(&explorer.tree(), Qt::Key_Down);
        QCOMPARE(explorer.column(4), (QStringList{u"Cole"_s, u"Cox"_s}));
    }

    void theStoreSorts()
    {
        CaughtErrors errors;
        Explorer explorer;
        explorer.clickGroup(u"A"_s);
        explorer.clickHeader(7);
        QCOMPARE(explorer.column(6), (QStringList{QString(), u"Aachen"_s, u"Zurich"_s}));
        QCOMPARE(explorer.information(), u"Member Information - 3 : Currently the list is sorted by the field City in "
                                         u"ascending order"_s);
        explorer.clickHeader(7);
        QCOMPARE(explorer.column(6), (QStringList{u"Zurich"_s, u"Aachen"_s, QString()}));
        explorer.clickHeader(7);
        QCOMPARE(explorer.column(6), (QStringList{QString(), u"Aachen"_s, u"Zurich"_s})); // and up again
        explorer.clickHeader(7);
        explorer.clickGroup(u"C"_s); // a sort once chosen applies to every group
        QCOMPARE(explorer.column(6), (QStringList{u"Y"_s, QString()}));
    }

    // The store refuses the stray bracket; the headline has changed already and the list stays.
    void theSortOnCellPhoneFailsQuietly()
    {
        CaughtErrors errors;
        Explorer explorer;
        explorer.clickGroup(u"A"_s);
        explorer.clickHeader(11);
        QCOMPARE(explorer.list().ListItems.Count(), 3);
        QVERIFY(explorer.information().endsWith(u"sorted by the field Cell Phone in ascending order"));
        explorer.clickHeader(3);
        QCOMPARE(explorer.column(2), (QStringList{QString(), u"Ann"_s, u"bea"_s}));
    }

    void aDeletionByTheToolbarEndsInTheReport()
    {
        CaughtErrors errors;
        BoxAnswers boxes({QMessageBox::Yes});
        Explorer explorer;
        explorer.clickGroup(u"A"_s);
        explorer.select(u"1"_s);
        explorer.select(u"3"_s);
        explorer.clickDelete();
        QCOMPARE(boxes.seen.size(), 1);
        QCOMPARE(boxes.seen[0].text, u"You are about to delete the selected members\nDo you want to proceed?"_s);
        QCOMPARE(boxes.seen[0].title, u"Tolmark"_s);
        QCOMPARE(boxes.seen[0].buttons, QMessageBox::Yes | QMessageBox::No);
        QCOMPARE(errors.takeNumber(), 35602);
        QCOMPARE(explorer.column(0), QStringList{u"2"_s});
        QCOMPARE(
            m_folder->row("SELECT group_concat(MemberId) FROM (SELECT MemberId FROM MemberInformation ORDER BY 1)"),
            u"2,4,5,7,40000"_s);
    }

    void theDeleteKeySwallowsTheSameError()
    {
        CaughtErrors errors;
        BoxAnswers boxes({QMessageBox::Yes});
        Explorer explorer;
        explorer.clickGroup(u"A"_s);
        explorer.select(u"2"_s);
        QTest::keyClick(&explorer.list(), Qt::Key_Delete);
        QCOMPARE(explorer.column(0), (QStringList{u"1"_s, u"3"_s}));
        QCOMPARE(explorer.listing(), u"Members - 6 (Click to Refresh)"_s); // until it is clicked
        QTest::mouseClick(child<Label>(explorer.window(), "LblMemberListing"), Qt::LeftButton);
        QCOMPARE(explorer.listing(), u"Members - 5 (Click to Refresh)"_s);
        QCOMPARE(explorer.tree().Nodes(1).Text(), u"A     (2)"_s);
        QCOMPARE(explorer.list().ListItems.Count(), 2);
    }

    void noDeletesNothingAndAnEmptyListIsAskedOnlyByTheKey()
    {
        CaughtErrors errors;
        Explorer explorer;
        explorer.clickDelete(); // an empty list: not even a question
        {
            BoxAnswers boxes({QMessageBox::No});
            QTest::keyClick(&explorer.list(), Qt::Key_Delete);
        }
        BoxAnswers boxes({QMessageBox::No});
        explorer.clickGroup(u"A"_s);
        explorer.select(u"2"_s);
        explorer.clickDelete();
        QCOMPARE(m_folder->row("SELECT count(*) FROM MemberInformation"), u"7"_s);
    }

    void dossiersOpenByDoubleClickAndEnter()
    {
        CaughtErrors errors;
        desktop::MdiForm frame(u"Frame");
        frame.Show();
        const auto dossiers = [&frame] { return frame.findChildren<DisplayMembers *>(); };
        Explorer explorer;
        explorer.clickGroup(u"A"_s);
        explorer.list().selectAll();
        QTest::keyClick(&explorer.list(), Qt::Key_Return);
        QCOMPARE(dossiers().size(), 3);
        QCOMPARE(dossiers()[0]->Caption(), u"Tolmark Member Information : Ann  Abel"_s);
        QCOMPARE(child<desktop::TextBox>(*dossiers()[0], "txtLastName")->text(), u"Abel"_s);
        const QPoint second = explorer.list().visualItemRect(&explorer.list().ListItems(2)).center();
        QTest::mouseDClick(explorer.list().viewport(), Qt::LeftButton, {}, second);
        QCOMPARE(dossiers().size(), 4);
        QCOMPARE(dossiers()[3]->MemberId, qint16(3));
        // Beside the lines a double click opens nothing, whatever was clicked before.
        QTest::mouseDClick(explorer.list().viewport(), Qt::LeftButton, {},
                           explorer.list().viewport()->rect().bottomRight());
        QCOMPARE(dossiers().size(), 4);
        // The answer to a box is pressed there and released over the list: no dossier.
        QTest::keyRelease(&explorer.list(), Qt::Key_Return);
        QCOMPARE(dossiers().size(), 4);
    }

    void aKeyBeyond16BitsOverflows()
    {
        CaughtErrors errors;
        Explorer explorer;
        explorer.clickGroup(u"C"_s);
        const QPoint second = explorer.list().visualItemRect(&explorer.list().ListItems(2)).center();
        QTest::mouseDClick(explorer.list().viewport(), Qt::LeftButton, {}, second);
        QCOMPARE(errors.takeNumber(), 6);
        explorer.list().setCurrentItem(&explorer.list().ListItems(2));
        QTest::keyClick(&explorer.list(), Qt::Key_Return); // the keys swallow it
    }

    // The tree's width and 25 twips have to be above 80 and may reach up to 335 from the window's right edge.
    void theSplitterMovesBothPanesWithinItsLimits()
    {
        CaughtErrors errors;
        Explorer explorer;
        auto *bar = child<desktop::PictureBox>(explorer.window(), "Picture1");
        const double limit = explorer.window().Width() - 335 - 25;
        double width = 2475;
        for (const double wanted : {3000.0, 55.0, 60.0, limit, limit + 15}) {
            Q_EMIT bar->MouseMove(1, float(wanted - width), 0);
            if (wanted != 55 && wanted <= limit)
                width = wanted;
            QCOMPARE(explorer.tree().Width(), width);
            QCOMPARE(explorer.list().Left(), width + 45 + 30 + 25);
            QCOMPARE(explorer.list().Width(), std::abs(width + 45 + 30 + 25 + 200 - explorer.window().Width()));
        }
        Q_EMIT bar->MouseMove(3, -300, 0); // two buttons
        Q_EMIT bar->MouseMove(0, -300, 0); // none
        QCOMPARE(explorer.tree().Width(), width);
        QCOMPARE(bar->cursor().shape(), Qt::SizeHorCursor);
    }

    void theAdministratorSeesUsersNestedUnderTheirGroup()
    {
        m_folder->execute("DELETE FROM Security; INSERT INTO Security (SecurityId, UserFirstName, UserMiddleName, "
                          "UserLastName) VALUES (5, 'Ann', NULL, 'Bell'), (6, 'Bo', 'X', 'Brown')");
        CaughtErrors errors;
        Explorer explorer(99);
        QCOMPARE(explorer.tree().Nodes.Count(), 33);
        const Node &bell = explorer.tree().Nodes(3);
        QCOMPARE(bell.Text(), u"Bell, Ann "_s);
        QCOMPARE(bell.Tag, u"5"_s);
        QCOMPARE(bell.Key, u"Bell0"_s);
        QCOMPARE(explorer.tree().Nodes(4).parent(), &bell);
        QCOMPARE(explorer.listing(), u"Members - 0 (Click to Refresh)"_s);
        QCOMPARE(explorer.information(), u"Description"_s);
    }

    void loadFailures_data()
    {
        QTest::addColumn<QByteArray>("damage");
        QTest::addColumn<int>("number");
        QTest::newRow("no group") << QByteArray("DELETE FROM NodeInformation") << 91;
        QTest::newRow("a group with an apostrophe")
            << QByteArray("INSERT INTO NodeInformation (NodeName, NodeActive) VALUES ('O''', 1)") << -2147217900;
        QTest::newRow("more members than a 16-bit number counts")
            << QByteArray("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i < 32768)"
                          "INSERT INTO MemberInformation (LastName) SELECT 'Q' FROM n")
            << 6;
        QTest::newRow("a group twice") << QByteArray(
                                              "INSERT INTO NodeInformation (NodeName, NodeActive) VALUES ('A', 1)")
                                       << 35602;
    }
    void loadFailures()
    {
        QFETCH(QByteArray, damage);
        QFETCH(int, number);
        m_folder->execute(damage.constData());
        CaughtErrors errors;
        desktop::guarded([] { Explorer explorer; });
        QCOMPARE(errors.takeNumber(), number);
    }

private:
    std::optional<DataStoreFolder> m_folder;
};

QTEST_MAIN(tst_MemberExplorer)
#include "tst_memberexplorer.moc"
