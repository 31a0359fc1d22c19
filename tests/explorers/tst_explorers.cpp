#include "dossier/DisplayMembers.h"
#include "events/FrmAddEvent.h"
#include "explorers/FrmDataBaseExplorer.h"
#include "explorers/FrmEventExplorer.h"
#include "explorers/OpenExplorer.h"
#include "platform/desktop/MdiForm.h"
#include "platform/desktop/Twips.h"
#include "shell/session/Session.h"
#include "support/DataStoreFolder.h"
#include "support/ShownWork.h"
#include "support/UnitedStates.h"

using namespace Qt::Literals::StringLiterals;

using MemberExplorer = OpenExplorer<FrmDataBaseExplorer>;
using EventExplorer = OpenExplorer<FrmEventExplorer>;

namespace {

// A small organisation in which every count is known.
constexpr const char *knownRows =
    "DELETE FROM MemberInformation;"
    "INSERT INTO MemberInformation (MemberId, MemberTypeId, FirstName, LastName, City, Active) VALUES"
    " (1, 1, 'Ann', 'Abel', 'Zurich', -1), (2, 1, 'bea', 'adams', NULL, -1), (3, 9999, NULL, 'Ack', 'Aachen', -1),"
    " (4, 1, 'Gone', 'Away', 'X', 0), (5, NULL, 'Ed', 'Cole', '', -1), (40000, 1, 'Far', 'Cox', 'Y', -1),"
    " (7, 1, 'Odd', 'Dee', 'Z', 1);"
    "DELETE FROM EventInformation;"
    "INSERT INTO EventInformation (EventIdentification, EventDate, EventName, EventDescription, EventStartDate,"
    " EventEndDate, EventStartTime, EventEndTime, EventStartTimeAmPm, EventEndTimeAmPm, Active) VALUES"
    " (1, '2003-01-06 00:00:00', 'Apple Fair', 'Cider', '3/15/2003', '3/16/2003', '8:0', '5:30', 'AM', 'PM', -1),"
    " (2, '2003-01-07 00:00:00', 'art night', NULL, 'in May', '1/1/2003', '', '', '', '', -1),"
    " (3, '2003-01-08 00:00:00', 'Auction', 'Books', '1/2/2003', '9/9/2003', '7:0', '9:0', 'noon', 'pm', -1),"
    " (4, '2003-01-09 00:00:00', 'Away', 'Gone', '', '', '', '', '', '', 0),"
    " (5, '2003-01-10 00:00:00', 'Ball', 'Waltz', '', '', '', '', '', '', -1);";

QList<FrmAddEvent *> openEvents()
{
    QList<FrmAddEvent *> windows;
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        if (auto *window = qobject_cast<FrmAddEvent *>(widget); window && window->isVisible())
            windows << window;
    }
    std::sort(windows.begin(), windows.end(), [](auto *a, auto *b) { return a->EventId < b->EventId; });
    return windows;
}

QStringList contents(const FrmAddEvent &window)
{
    return {window.EventId,
            window.Tag,
            window.txtEventName->text(),
            window.txtEventDescription->text(),
            window.txtEventStartDate->text(),
            window.txtEventStartTime->text(),
            window.lstStartTime->Text(),
            window.txtEventEndDate->text(),
            window.txtEventEndTime->text(),
            window.lstEndTime->Text()};
}

} // namespace

class tst_Explorers : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        QApplication::setQuitOnLastWindowClosed(false);
        Session::current() = Session();
        m_folder.emplace(DataStoreFolder::Content::Sample);
        m_folder->execute(knownRows);
    }
    void cleanup()
    {
        for (FrmAddEvent *window : openEvents())
            window->Unload();
    }

    void membersAreCountedAndListedByGroup()
    {
        MemberExplorer explorer;
        QCOMPARE(explorer.tree().Nodes.Count(), 31);
        QCOMPARE(explorer.tree().Nodes(1).Text(), u"A     (3)"_s);
        QVERIFY(explorer.tree().Nodes(1).font(0).bold());
        QCOMPARE(explorer.tree().Nodes(2).Text(), u"B"_s);
        QVERIFY(!explorer.tree().Nodes(2).font(0).bold());
        QCOMPARE(explorer.tree().Nodes(4).Text(), u"D     (1)"_s); // a Yes that another tool wrote as 1
        QCOMPARE(explorer.listing(), u"Members - 6 (Click to Refresh)"_s);
        QCOMPARE(explorer.list().ListItems.Count(), 0);
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
        QTRY_VERIFY(explorer.tree().hasFocus());
        QTest::keyClick(&explorer.tree(), Qt::Key_Down);
        QCOMPARE(explorer.column(4), (QStringList{u"Cole"_s, u"Cox"_s}));
    }

    // Beside the nodes a click finds no node before one is selected, and keeps the selected one afterwards.
    void aClickBesideTheNodes()
    {
        m_folder->execute("DELETE FROM NodeInformation WHERE NodeName > 'M'"); // leaves room below the last node
        MemberExplorer explorer;
        const QPoint beside(20, explorer.tree().viewport()->height() - 3);
        QVERIFY(!explorer.tree().itemAt(beside));
        QTest::mouseClick(explorer.tree().viewport(), Qt::LeftButton, {}, beside);
        QCOMPARE(explorer.errors.takeNumber(), 91);
        explorer.clickGroup(u"C"_s);
        QTest::mouseClick(explorer.tree().viewport(), Qt::LeftButton, {}, beside);
        QCOMPARE(explorer.tree().SelectedItem()->Tag, u"C"_s);
        QCOMPARE(explorer.list().ListItems.Count(), 2);
    }

    void theStoreSorts()
    {
        MemberExplorer explorer;
        explorer.clickGroup(u"A"_s);
        const QStringList upwards{QString(), u"Aachen"_s, u"Zurich"_s};
        explorer.clickHeader(7);
        QCOMPARE(explorer.column(6), upwards);
        QCOMPARE(explorer.information(), u"Member Information - 3 : Currently the list is sorted by the field City in "
                                         u"ascending order"_s);
        explorer.clickHeader(7);
        QCOMPARE(explorer.column(6), (QStringList{u"Zurich"_s, u"Aachen"_s, QString()}));
        explorer.clickHeader(7);
        QCOMPARE(explorer.column(6), upwards);
        // The store refuses the stray bracket; the headline has changed already and the list stays.
        explorer.clickHeader(11);
        QCOMPARE(explorer.column(6), upwards);
        QVERIFY(explorer.information().endsWith(u"sorted by the field Cell Phone in ascending order"));
        explorer.clickHeader(7);
        explorer.clickHeader(7);
        explorer.clickGroup(u"C"_s); // a sort once chosen applies to every group
        QCOMPARE(explorer.column(6), (QStringList{u"Y"_s, QString()}));
    }

    // Deletions by the toolbar end in the report; those by the key swallow the same error.
    void membersAreDeleted()
    {
        BoxAnswers boxes({QMessageBox::No, QMessageBox::No, QMessageBox::Yes, QMessageBox::Yes});
        MemberExplorer explorer;
        explorer.clickDelete();                            // an empty list: not even a question
        QTest::keyClick(&explorer.list(), Qt::Key_Delete); // asks all the same
        QCOMPARE(boxes.seen.size(), 1);
        explorer.clickGroup(u"A"_s);
        explorer.select(u"1"_s);
        explorer.select(u"3"_s);
        ShownWork shown;
        explorer.clickDelete();
        QCOMPARE(explorer.list().ListItems.Count(), 3);
        explorer.clickDelete();
        QCOMPARE(shown.takeTexts(), (QStringList{u"Deleting 1 of 2"_s, u"Deleting 2 of 2"_s}));
        QCOMPARE(boxes.seen[2].whole(), u"Tolmark: You are about to delete the selected members\nDo you want to "
                                        "proceed? (NoIcon, Yes|No)"_s);
        QCOMPARE(explorer.errors.takeNumber(), 35602);
        QCOMPARE(explorer.column(0), QStringList{u"2"_s});
        const auto left = [this] { return m_folder->rows("SELECT MemberId FROM MemberInformation ORDER BY 1"); };
        QCOMPARE(left(), (QStringList{u"2"_s, u"4"_s, u"5"_s, u"7"_s, u"40000"_s}));
        explorer.select(u"2"_s);
        QTest::keyClick(&explorer.list(), Qt::Key_Delete);
        QCOMPARE(left(), (QStringList{u"4"_s, u"5"_s, u"7"_s, u"40000"_s}));
        QCOMPARE(explorer.column(0), QStringList());
        QCOMPARE(explorer.tree().Nodes(1).Text(), u"A     (3)"_s); // until the headline is clicked
        QCOMPARE(explorer.listing(), u"Members - 6 (Click to Refresh)"_s);
        explorer.refresh();
        QCOMPARE(explorer.tree().Nodes(1).Text(), u"A"_s);
        QCOMPARE(explorer.listing(), u"Members - 3 (Click to Refresh)"_s);
    }

    void dossiersOpenByDoubleClickAndEnter()
    {
        desktop::MdiForm frame(u"Frame");
        frame.Show();
        const auto dossiers = [&frame] { return frame.findChildren<DisplayMembers *>(); };
        MemberExplorer explorer;
        explorer.clickGroup(u"A"_s);
        explorer.list().selectAll();
        QTest::keyClick(&explorer.list(), Qt::Key_Return);
        QCOMPARE(dossiers().size(), 3);
        QCOMPARE(dossiers()[0]->Caption(), u"Tolmark Member Information : Ann  Abel"_s);
        QCOMPARE(child<desktop::TextBox>(*dossiers()[0], "txtLastName")->text(), u"Abel"_s);
        explorer.doubleClickRow(2);
        QCOMPARE(dossiers().size(), 4);
        QCOMPARE(dossiers()[3]->MemberId, qint16(3));
        // Beside the lines a double click opens nothing, whatever was clicked before.
        QTest::mouseDClick(explorer.list().viewport(), Qt::LeftButton, {},
                           explorer.list().viewport()->rect().bottomRight());
        // The answer to a box is pressed there and released over the list: no dossier.
        QTest::keyRelease(&explorer.list(), Qt::Key_Return);
        explorer.clickGroup(u"C"_s);
        explorer.doubleClickRow(2); // a key beyond 16 bits
        QCOMPARE(explorer.errors.takeNumber(), 6);
        explorer.list().setCurrentItem(&explorer.list().ListItems(2));
        QTest::keyClick(&explorer.list(), Qt::Key_Return); // the keys swallow it
        QCOMPARE(dossiers().size(), 4);
    }

    // The tree's width and 25 twips have to be above 80 and may reach up to 335 from the window's right edge.
    void theSplitterMovesBothPanesWithinItsLimits()
    {
        MemberExplorer explorer;
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
        const QPointF besideBar(0, 5); // two pixels to the left of it
        auto *grip = child<QWidget>(explorer.window(), "Grip");
        QMouseEvent drag(QEvent::MouseMove, besideBar, grip->mapToGlobal(besideBar), Qt::NoButton, Qt::LeftButton,
                         Qt::NoModifier);
        QApplication::sendEvent(grip, &drag);
        width -= 30;
        QCOMPARE(explorer.tree().Width(), width);
        Q_EMIT bar->MouseMove(3, -300, 0); // two buttons
        Q_EMIT bar->MouseMove(0, -300, 0); // none
        QCOMPARE(explorer.tree().Width(), width);
        QCOMPARE(bar->cursor().shape(), Qt::SizeHorCursor);
    }

    // The tree of the events keeps what it has got so far, and the columns of its list come all the same; only a tree
    // without nodes, which has none to expand, ends in the report.
    void treeFailures()
    {
        // More rows than a 16-bit number counts.
        const QByteArray many = "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 32768)";
        const QByteArray tooMany = many + "INSERT INTO MemberInformation (LastName) SELECT 'Q' FROM n;" + many +
                                   "INSERT INTO EventInformation (EventName) SELECT 'Q' FROM n";
        for (const auto &[damage, ofMembers, ofEvents, nodes] :
             {std::tuple("DELETE FROM NodeInformation"_ba, 91, 91, 0),
              {"INSERT INTO NodeInformation (NodeName, NodeActive) VALUES ('O''', 1), ('0', 1)"_ba, -2147217900, 0, 31},
              {tooMany, 6, 0, 16}}) {
            init();
            m_folder->execute(damage);
            CaughtErrors errors;
            desktop::guarded([] { FrmDataBaseExplorer().Show(); });
            QCOMPARE(errors.takeNumber(), ofMembers);
            FrmEventExplorer window;
            desktop::guarded([&window] { window.Show(); });
            QCOMPARE(errors.takeNumber(), ofEvents);
            QCOMPARE(child<desktop::TreeView>(window, "TreClassView")->Nodes.Count(), nodes);
            QCOMPARE(child<desktop::Label>(window, "LblMemberListing")->text(),
                     nodes > 0 ? u"Events (Click to Refresh)"_s : u"Events - 0 (Click to Refresh)"_s);
            QCOMPARE(child<desktop::ListView>(window, "LstStudenInformation")->columnCount(), 10);
        }
    }

    // Two headers read the same: each sorts by its own column.
    void eventsAreListedAndSorted()
    {
        const UnitedStates region;
        EventExplorer explorer;
        QCOMPARE(explorer.window().windowTitle(), u"Tolmark Event Explorer"_s);
        QCOMPARE(explorer.listing(), u"Events - 4 (Click to Refresh)"_s);
        QCOMPARE(explorer.tree().Nodes(1).Text(), u"A     (3)"_s);
        explorer.clickGroup(u"A"_s);
        QCOMPARE(explorer.window().windowTitle(), u"Event Explorer : All event starting with \"A\" are displayed."_s);
        QCOMPARE(explorer.information(), u"Event Information - 3"_s);
        QStringList headers;
        for (int column = 0; column < explorer.list().columnCount(); ++column) {
            headers << explorer.list().headerItem()->text(column);
            const QHeaderView *header = explorer.list().header();
            QVERIFY(header->sectionSize(column) >= header->sectionSizeHint(column)); // no header is cut off
        }
        QCOMPARE(headers.join(u'|'), u"Event Id|Date Added|Event Name|Event Description|Start Date|Start Time|Am/Pm|"
                                     "End Time|End Time|Am/Pm"_s);
        QCOMPARE(line(explorer.list(), 1), u"1|1/6/2003|Apple Fair|Cider|3/15/2003|8:0|AM|3/16/2003|5:30|PM"_s);
        QCOMPARE(explorer.list().ListItems(1).Tag, u"1"_s);
        explorer.clickHeader(8);
        explorer.clickHeader(8);
        QCOMPARE(explorer.column(0), (QStringList{u"3"_s, u"1"_s, u"2"_s}));
        explorer.clickHeader(9);
        QCOMPARE(explorer.column(0), (QStringList{u"2"_s, u"1"_s, u"3"_s}));
        QCOMPARE(explorer.information(), u"Event Information - 3 : Currently the list is sorted by the field End Time "
                                         u"in ascending order"_s);
    }

    void aListThatFailsStaysAsItWas()
    {
        EventExplorer explorer;
        explorer.clickGroup(u"A"_s);
        m_folder->execute("ALTER TABLE EventInformation RENAME COLUMN EventName TO Gone");
        explorer.clickGroup(u"B"_s);
        QCOMPARE(explorer.information(), u"Event Information - 1"_s);
        QCOMPARE(explorer.column(0), (QStringList{u"1"_s, u"2"_s, u"3"_s}));
        explorer.refresh();
        QCOMPARE(explorer.tree().Nodes.Count(), 0);
        QCOMPARE(explorer.listing(), u"Events - 4 (Click to Refresh)"_s);
        const QPoint beside = explorer.tree().viewport()->rect().center(); // the click itself holds nothing back
        QTest::mouseClick(explorer.tree().viewport(), Qt::LeftButton, {}, beside);
        QCOMPARE(explorer.errors.takeNumber(), 91);
    }

    void aDeletionOfEventsRefreshesTheListAndNotTheTree()
    {
        BoxAnswers boxes({QMessageBox::Yes});
        EventExplorer explorer;
        explorer.clickDelete(); // an empty list: not even a question
        explorer.clickGroup(u"A"_s);
        explorer.select(u"1"_s);
        explorer.select(u"3"_s);
        QTest::keyClick(&explorer.list(), Qt::Key_Delete); // means nothing here
        QCOMPARE(boxes.seen.size(), 0);
        explorer.clickDelete();
        QCOMPARE(boxes.seen[0].whole(), u"Tolmark: You are about to delete the selected event\nDo you want to "
                                        "proceed? (NoIcon, Yes|No)"_s);
        QCOMPARE(explorer.column(0), QStringList{u"2"_s});
        QCOMPARE(m_folder->row("SELECT group_concat(EventIdentification) FROM EventInformation"), u"2,4,5"_s);
        QCOMPARE(explorer.tree().Nodes(1).Text(), u"A     (3)"_s);
        QCOMPARE(explorer.listing(), u"Events - 4 (Click to Refresh)"_s);
        explorer.refresh();
        QCOMPARE(explorer.tree().Nodes(1).Text(), u"A     (1)"_s);
        QCOMPARE(explorer.listing(), u"Events - 2 (Click to Refresh)"_s);
    }

    void eventsOpenByDoubleClickAndEnter()
    {
        const UnitedStates region;
        EventExplorer explorer;
        QTest::mouseDClick(explorer.list().viewport(), Qt::LeftButton, {}, QPoint(20, 20)); // an empty list
        explorer.clickGroup(u"A"_s);
        explorer.list().selectAll();
        explorer.doubleClickRow(3);
        QCOMPARE(openEvents().size(), 1);
        openEvents()[0]->Unload();
        explorer.list().selectAll();
        QTest::keyClick(&explorer.list(), Qt::Key_Return);
        const QList<FrmAddEvent *> events = openEvents();
        QCOMPARE(events.size(), 3);
        QCOMPARE(events[0]->Caption(), u"Tolmark Event Information : Apple Fair 3/15/2003 - 3/16/2003"_s);
        QCOMPARE(contents(*events[0]).join(u'|'), u"1|1/6/2003|Apple Fair|Cider|3/15/2003|8:0|AM|3/16/2003|5:30|PM"_s);
        // What is empty stands over the window's presets too.
        QCOMPARE(contents(*events[1]).join(u'|'), u"2|1/7/2003|art night||in May|||1/1/2003||"_s);
        QCOMPARE(events[2]->lstStartTime->Text(), QString()); // "noon" is no item
        QCOMPARE(events[2]->lstEndTime->Text(), u"PM"_s);
    }

    void panesFollowTheWindow()
    {
        EventExplorer explorer;
        QVERIFY(Session::current().ResizeReady);
        const double frameWidth = explorer.window().Width() - desktop::twips(explorer.window().width());
        const double frameHeight = explorer.window().Height() - desktop::twips(explorer.window().height());
        for (const auto &[size, treeHeight, listWidth] :
             {std::tuple(QSizeF(15000, 9000), 7280.0, 12205.0),
              std::tuple(QSizeF(2790, 1725), 5.0, 5.0), // a pixel beside the constants
              std::tuple(QSizeF(1500, 1005), 715.0, 1295.0)}) {
            explorer.window().setSize(size.width() - frameWidth, size.height() - frameHeight);
            QTRY_COMPARE(explorer.tree().Height(), treeHeight);
            QCOMPARE(explorer.list().Height(), treeHeight);
            QCOMPARE(child<desktop::PictureBox>(explorer.window(), "Picture1")->Height(), treeHeight + 425);
            QCOMPARE(explorer.list().Width(), listWidth);
            QCOMPARE(child<desktop::Label>(explorer.window(), "LblMemberInformation")->Width(), listWidth);
            for (const char *panel : {"StatusBar1.Panels(1)", "StatusBar1.Panels(5)"})
                QTRY_COMPARE(child(explorer.window(), panel)->width(), desktop::pixels(size.width() / 5));
        }
    }

    void theAdministratorSeesUsersNestedUnderTheirGroup()
    {
        m_folder->execute(
            "DELETE FROM Security; INSERT INTO Security (SecurityId, UserFirstName, UserMiddleName, UserLastName, "
            "UserName, UserLevel) VALUES (5, 'Ann', NULL, 'Bell', 'abell', 99), (6, 'Bo', 'X', 'Brown', 'b', 1)");
        MemberExplorer explorer(99);
        QCOMPARE(explorer.tree().Nodes.Count(), 33);
        const desktop::Node &bell = explorer.tree().Nodes(3);
        QCOMPARE(bell.Text(), u"Bell, Ann "_s);
        QCOMPARE(bell.Tag, u"5"_s);
        QCOMPARE(bell.Key, u"Bell0"_s);
        QCOMPARE(explorer.tree().Nodes(4).parent(), &bell);
        QCOMPARE(explorer.listing(), u"Members - 0 (Click to Refresh)"_s);
        QCOMPARE(explorer.information(), u"Description"_s);
    }

private:
    std::optional<DataStoreFolder> m_folder;
};

QTEST_MAIN(tst_Explorers)
#include "tst_explorers.moc"
