// What the event explorer does otherwise than the member explorer; what both share is proved there.
#include "events/FrmAddEvent.h"
#include "explorers/FrmEventExplorer.h"
#include "explorers/OpenExplorer.h"
#include "explorers/UserTree.h"
#include "platform/desktop/Twips.h"
#include "shell/session/Session.h"
#include "shell/users/frmNewUser.h"
#include "support/DataStoreFolder.h"
#include "support/UnitedStates.h"

#include <QPointer>

using namespace Qt::Literals::StringLiterals;

using desktop::Label;
using Explorer = OpenExplorer<FrmEventExplorer>;

namespace {

constexpr const char *knownEvents =
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

class tst_EventExplorer : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        QApplication::setQuitOnLastWindowClosed(false);
        Session::current() = Session();
        m_folder.emplace(DataStoreFolder::Content::Sample);
        m_folder->execute(knownEvents);
    }
    void cleanup()
    {
        for (FrmAddEvent *window : openEvents())
            window->Unload();
    }

    void aClickListsTheGroup()
    {
        const UnitedStates region;
        CaughtErrors errors;
        Explorer explorer;
        QCOMPARE(explorer.window().windowTitle(), u"Tolmark Event Explorer"_s);
        QCOMPARE(explorer.listing(), u"Events - 4 (Click to Refresh)"_s);
        QCOMPARE(explorer.tree().Nodes(1).Text(), u"A     (3)"_s);
        explorer.clickGroup(u"A"_s);
        QCOMPARE(explorer.window().windowTitle(), u"Event Explorer : All event starting with \"A\" are displayed."_s);
        QCOMPARE(explorer.information(), u"Event Information - 3"_s);
        QStringList headers;
        QStringList first;
        for (int column = 0; column < explorer.list().columnCount(); ++column) {
            headers << explorer.list().headerItem()->text(column);
            const QHeaderView *header = explorer.list().header();
            QVERIFY(header->sectionSize(column) >= header->sectionSizeHint(column)); // no header is cut off
            first << explorer.list().ListItems(1).SubItems(column);
        }
        QCOMPARE(headers,
                 (QStringList{u"Event Id"_s, u"Date Added"_s, u"Event Name"_s, u"Event Description"_s, u"Start Date"_s,
                              u"Start Time"_s, u"Am/Pm"_s, u"End Time"_s, u"End Time"_s, u"Am/Pm"_s}));
        QCOMPARE(first, (QStringList{u"1"_s, u"1/6/2003"_s, u"Apple Fair"_s, u"Cider"_s, u"3/15/2003"_s, u"8:0"_s,
                                     u"AM"_s, u"3/16/2003"_s, u"5:30"_s, u"PM"_s}));
        QCOMPARE(explorer.list().ListItems(1).Tag, u"1"_s);
    }

    // Two headers read the same: each sorts by its own column.
    void theStoreSortsByEitherEnd()
    {
        CaughtErrors errors;
        Explorer explorer;
        explorer.clickGroup(u"A"_s);
        explorer.clickHeader(8);
        explorer.clickHeader(8);
        QCOMPARE(explorer.column(0), (QStringList{u"3"_s, u"1"_s, u"2"_s}));
        explorer.clickHeader(9);
        QCOMPARE(explorer.column(0), (QStringList{u"2"_s, u"1"_s, u"3"_s}));
        QCOMPARE(explorer.information(), u"Event Information - 3 : Currently the list is sorted by the field End Time "
                                         u"in ascending order"_s);
    }

    void treeFailures_data()
    {
        QTest::addColumn<QByteArray>("damage");
        QTest::addColumn<int>("nodes");
        QTest::addColumn<int>("number"); // of the load: a tree without nodes has none to expand
        QTest::newRow("a group with an apostrophe")
            << QByteArray("INSERT INTO NodeInformation (NodeName, NodeActive) VALUES ('O''', 1), ('0', 1)") << 31 << 0;
        QTest::newRow("a group twice") << QByteArray("UPDATE NodeInformation SET NodeName = 'a' WHERE NodeName = 'C';"
                                                     "UPDATE NodeInformation SET NodeName = 'A' WHERE NodeName = 'D'")
                                       << 3 << 0;
        QTest::newRow("no group") << QByteArray("DELETE FROM NodeInformation") << 0 << 91;
    }
    // The tree keeps what it has got so far, and the columns of the list come all the same.
    void treeFailures()
    {
        QFETCH(QByteArray, damage);
        QFETCH(int, nodes);
        m_folder->execute(damage);
        CaughtErrors errors;
        std::unique_ptr<Explorer> explorer;
        desktop::guarded([&explorer] { explorer = std::make_unique<Explorer>(); });
        QTEST(errors.takeNumber(), "number");
        if (!explorer)
            return;
        QCOMPARE(explorer->tree().Nodes.Count(), nodes);
        QCOMPARE(explorer->listing(), u"Events (Click to Refresh)"_s);
        QCOMPARE(explorer->list().columnCount(), 10);
    }

    void aListThatFailsStaysAsItWas()
    {
        CaughtErrors errors;
        Explorer explorer;
        explorer.clickGroup(u"A"_s);
        m_folder->execute("ALTER TABLE EventInformation RENAME COLUMN EventName TO Gone");
        explorer.clickGroup(u"B"_s);
        QCOMPARE(explorer.information(), u"Event Information - 1"_s);
        QCOMPARE(explorer.column(0), (QStringList{u"1"_s, u"2"_s, u"3"_s}));
        QTest::mouseClick(child<Label>(explorer.window(), "LblMemberListing"), Qt::LeftButton);
        QCOMPARE(explorer.tree().Nodes.Count(), 0);
        QCOMPARE(explorer.listing(), u"Events - 4 (Click to Refresh)"_s);
        const QPoint beside = explorer.tree().viewport()->rect().center(); // the click itself holds nothing back
        QTest::mouseClick(explorer.tree().viewport(), Qt::LeftButton, {}, beside);
        QCOMPARE(errors.takeNumber(), 91);
    }

    void aDeletionRefreshesTheListAndNotTheTree()
    {
        CaughtErrors errors;
        BoxAnswers boxes({QMessageBox::No, QMessageBox::Yes});
        Explorer explorer;
        explorer.clickDelete(); // an empty list: not even a question
        explorer.clickGroup(u"A"_s);
        explorer.select(u"1"_s);
        explorer.select(u"3"_s);
        explorer.clickDelete();
        QCOMPARE(explorer.list().ListItems.Count(), 3);
        explorer.clickDelete();
        QCOMPARE(boxes.seen[1].text, u"You are about to delete the selected event\nDo you want to proceed?"_s);
        QCOMPARE(boxes.seen[1].title, u"Tolmark"_s);
        QCOMPARE(boxes.seen[1].buttons, QMessageBox::Yes | QMessageBox::No);
        QCOMPARE(explorer.column(0), QStringList{u"2"_s});
        QCOMPARE(m_folder->row("SELECT group_concat(EventIdentification) FROM EventInformation"), u"2,4,5"_s);
        QCOMPARE(explorer.tree().Nodes(1).Text(), u"A     (3)"_s);
        QCOMPARE(explorer.listing(), u"Events - 4 (Click to Refresh)"_s);
        QTest::mouseClick(child<Label>(explorer.window(), "LblMemberListing"), Qt::LeftButton);
        QCOMPARE(explorer.tree().Nodes(1).Text(), u"A     (1)"_s);
        QCOMPARE(explorer.listing(), u"Events - 2 (Click to Refresh)"_s);
    }

    void theDeleteKeyDoesNothing()
    {
        CaughtErrors errors;
        BoxAnswers boxes;
        Explorer explorer;
        explorer.clickGroup(u"A"_s);
        explorer.list().selectAll();
        QTest::keyClick(&explorer.list(), Qt::Key_Delete);
        QCOMPARE(m_folder->row("SELECT count(*) FROM EventInformation"), u"5"_s);
    }

    void enterOpensEverySelectedEvent()
    {
        const UnitedStates region;
        CaughtErrors errors;
        Explorer explorer;
        explorer.clickGroup(u"A"_s);
        explorer.list().selectAll();
        QTest::keyClick(&explorer.list(), Qt::Key_Return);
        const QList<FrmAddEvent *> events = openEvents();
        QCOMPARE(events.size(), 3);
        QCOMPARE(events[0]->Caption(), u"Tolmark Event Information : Apple Fair 3/15/2003 - 3/16/2003"_s);
        QCOMPARE(contents(*events[0]), (QStringList{u"1"_s, u"1/6/2003"_s, u"Apple Fair"_s, u"Cider"_s, u"3/15/2003"_s,
                                                    u"8:0"_s, u"AM"_s, u"3/16/2003"_s, u"5:30"_s, u"PM"_s}));
        // What is empty stands over the window's presets too.
        QCOMPARE(contents(*events[1]), (QStringList{u"2"_s, u"1/7/2003"_s, u"art night"_s, QString(), u"in May"_s,
                                                    QString(), QString(), u"1/1/2003"_s, QString(), QString()}));
        QCOMPARE(events[2]->lstStartTime->Text(), QString()); // "noon" is no item
        QCOMPARE(events[2]->lstEndTime->Text(), u"PM"_s);
    }

    void aDoubleClickOpensOneAndASaveKeepsItsRow()
    {
        CaughtErrors errors;
        Explorer explorer;
        QTest::mouseDClick(explorer.list().viewport(), Qt::LeftButton, {}, QPoint(20, 20)); // an empty list
        explorer.clickGroup(u"A"_s);
        explorer.list().selectAll();
        const QPoint third = explorer.list().visualItemRect(&explorer.list().ListItems(3)).center();
        QTest::mouseDClick(explorer.list().viewport(), Qt::LeftButton, {}, third);
        const QList<FrmAddEvent *> events = openEvents();
        QCOMPARE(events.size(), 1);
        events[0]->txtEventName->setText(u"Auction of books"_s);
        QTest::mouseClick(events[0]->cmdSave, Qt::LeftButton);
        QCOMPARE(m_folder->row("SELECT count(*), (SELECT EventName FROM EventInformation "
                               "WHERE EventIdentification = 3) FROM EventInformation"),
                 u"5|Auction of books"_s);
        QCOMPARE(explorer.column(2).at(2), u"Auction"_s); // until the list is loaded again
    }

    void panesFollowTheWindow_data()
    {
        QTest::addColumn<QSizeF>("window");
        QTest::addColumn<double>("treeHeight");
        QTest::addColumn<double>("listWidth");
        QTest::newRow("large") << QSizeF(15000, 9000) << 7280.0 << 12205.0;
        QTest::newRow("a pixel beside the constants") << QSizeF(2790, 1725) << 5.0 << 5.0;
        QTest::newRow("smaller than the constants") << QSizeF(1500, 1005) << 715.0 << 1295.0;
    }
    void panesFollowTheWindow()
    {
        QFETCH(QSizeF, window);
        QFETCH(double, treeHeight);
        QFETCH(double, listWidth);
        CaughtErrors errors;
        Explorer explorer;
        QVERIFY(Session::current().ResizeReady);
        const double frameWidth = explorer.window().Width() - desktop::twips(explorer.window().width());
        const double frameHeight = explorer.window().Height() - desktop::twips(explorer.window().height());
        explorer.window().setSize(window.width() - frameWidth, window.height() - frameHeight);
        QTRY_COMPARE(explorer.tree().Height(), treeHeight);
        QCOMPARE(explorer.list().Height(), treeHeight);
        QCOMPARE(child<desktop::PictureBox>(explorer.window(), "Picture1")->Height(), treeHeight + 425);
        QCOMPARE(explorer.list().Width(), listWidth);
        QCOMPARE(child<Label>(explorer.window(), "LblMemberInformation")->Width(), listWidth);
        for (const char *panel : {"StatusBar1.Panels(1)", "StatusBar1.Panels(5)"})
            QTRY_COMPARE(child(explorer.window(), panel)->width(), desktop::pixels(window.width() / 5));
    }

    void theListOfUsersAndTheWindowOfOne()
    {
        m_folder->execute(
            "DELETE FROM Security; INSERT INTO Security (SecurityId, UserFirstName, UserLastName, UserName,"
            " UserLevel) VALUES (5, 'Ann', 'Bell', 'abell', 99), (6, 'Bo', 'Cox', 'bcox', 1)");
        desktop::Form window(desktop::Form::Place::InFrame, u"Administration");
        ExplorerPanes panes(window, {});
        desktop::ObjectRef<desktop::Node> last;
        loadUserTree(panes, last);
        panes.TreClassView->setCurrentItem(&panes.TreClassView->Nodes(2));
        loadUserList(panes);
        const desktop::ListView &list = *panes.LstStudenInformation;
        QCOMPARE(list.ListItems.Count(), 1);
        QStringList line;
        for (int column = 1; column <= list.ColumnHeaders.Count(); ++column)
            line << list.ColumnHeaders(column).Text << list.ListItems(1).SubItems(column - 1);
        QCOMPARE(line, (QStringList{u"First Name"_s, u"Ann"_s, u"Middle Name"_s, QString(), u"Last Name"_s, u"Bell"_s,
                                    u"User Name"_s, u"abell"_s, u"User Level"_s, u"99"_s}));

        panes.TreClassView->setCurrentItem(&panes.TreClassView->Nodes(3));
        loadUserList(panes);
        QCOMPARE(list.ListItems.Count(), 1);
        QPointer<frmNewUser> user;
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            if (auto *found = qobject_cast<frmNewUser *>(widget))
                user = found;
        }
        QVERIFY(user && user->isVisible());
        QCOMPARE(user->Caption(), u"User Information for Ann  Bell"_s);
        user->Unload();
        QTRY_VERIFY(!user);
    }

private:
    std::optional<DataStoreFolder> m_folder;
};

QTEST_MAIN(tst_EventExplorer)
#include "tst_eventexplorer.moc"
