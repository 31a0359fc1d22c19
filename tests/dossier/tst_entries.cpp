// The tabs on which lines are entered: interests, contributions and assigned events; and the notes.
#include "dossier/OpenDossier.h"
#include "events/frmMeeting.h"
#include "platform/desktop/MdiForm.h"
#include "support/UnitedStates.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr const char *oneMember =
    "INSERT INTO MemberInformation (MemberId, FirstName, LastName, Active) VALUES (1, 'Ann', 'Cole', -1);"
    "INSERT INTO EventInformation (EventName) VALUES ('Fair'), ('Walk'), ('fair');";

// Which of its two states the tab is in: entering, its boxes and their buttons alone are enabled; otherwise its list
// and the buttons below it. The keys of the events are never in use.
bool isEntering(const QWidget &tab)
{
    static const QRegularExpression names(u"^(txt|cmd|but|lst(?!EventSelectId))"_s,
                                          QRegularExpression::CaseInsensitiveOption);
    QSet<bool> states;
    for (const QWidget *control : tab.findChildren<QWidget *>(names)) {
        const bool browses =
            control->objectName().startsWith(u"but") || qobject_cast<const desktop::ListView *>(control);
        states << (control->isEnabled() != browses);
    }
    if (states.size() != 1)
        QTest::qFail("the tab is in neither of its states", __FILE__, __LINE__);
    return states.contains(true);
}

} // namespace

class tst_Entries : public StoreTest
{
    Q_OBJECT
private Q_SLOTS:
    void init() { open(DataFolder::Content::Empty, oneMember); }
    void cleanup() { close(); }

    void interestsAreAddedAndChanged()
    {
        OpenDossier dossier;
        InterestsTab &tab = *dossier->Frame3;
        dossier.turnTo(&tab);
        QVERIFY(!isEntering(tab) && tab.lblInterest->isHidden());
        for (const QString &description : {u"Sundays"_s, QString()}) { // one name twice: both stay
            tab.butAddInterest->click();
            QVERIFY(isEntering(tab) && tab.lblInterest->isVisible());
            QCOMPARE(tab.cmdAddInterest->text(), u"Save"_s);
            tab.txtInterest->setText(u"Chess"_s);
            tab.txtInterestDescription->setText(description);
            tab.cmdAddInterest->click();
            QVERIFY(!isEntering(tab) && tab.lblInterest->isHidden());
            QCOMPARE(tab.cmdAddInterest->text(), u"Add Interest"_s);
        }
        QCOMPARE(lines(*tab.lstInterest), (QStringList{u"Chess|Sundays"_s, u"Chess|"_s}));
        select(*tab.lstInterest, 2);
        dossier.choose("mnuInterestEdit");
        QVERIFY(isEntering(tab));
        tab.txtInterest->setText(u"Go"_s);
        tab.txtInterestDescription->setText(u"Fridays"_s);
        tab.cmdAddInterest->click();
        QCOMPARE(m_folder->rows("SELECT * FROM MemberInterest"),
                 (QStringList{u"1|1|Chess|Sundays"_s, u"2|1|Go|Fridays"_s}));
        // An entry without interest goes on, and Cancel forgets its key.
        select(*tab.lstInterest, 2);
        dossier.choose("mnuInterestEdit");
        QCOMPARE(tab.txtInterest->text() + tab.txtInterestDescription->text(), u"GoFridays"_s);
        tab.txtInterest->clear();
        BoxAnswers boxes({QMessageBox::Ok});
        tab.cmdAddInterest->click();
        QCOMPARE(boxes.seen[0].whole(), u"Tolmark: Invalid Interest (Critical, Ok)"_s);
        QVERIFY(isEntering(tab));
        QCOMPARE(tab.cmdAddInterest->Tag, u"2"_s);
        tab.CMdInterestCancel->click();
        tab.butAddInterest->click();
        QVERIFY(tab.txtInterest->text().isEmpty() && tab.txtInterestDescription->text().isEmpty());
        tab.txtInterest->setText(u"New"_s);
        tab.cmdAddInterest->click();
        QCOMPARE(m_folder->row("SELECT group_concat(Interest) FROM MemberInterest"), u"Chess,Go,New"_s);
    }

    void contributions()
    {
        struct Row
        {
            QString typed, message, stored, shown; // stored: ten-thousandths
        };
        const Row rows[] = {{{}, u"Invalid contribution"_s, {}, {}},
                            {u"twelve"_s, u"Invalid contribution amount"_s, {}, {}},
                            {u"12.3456"_s, {}, u"123456"_s, u"$12.35"_s},
                            {u"$1,200.50"_s, {}, u"12005000"_s, u"$1,200.50"_s},
                            {u"-3"_s, {}, u"-30000"_s, u"($3.00)"_s}};
        const UnitedStates region;
        const QString today = runtime::toText(runtime::Value(runtime::Date(QDate::currentDate())));
        OpenDossier dossier;
        ContributionsTab &tab = *dossier->Frame5;
        for (const auto &[typed, message, stored, shown] : rows) {
            tab.butAddContributions->click();
            QVERIFY(isEntering(tab));
            tab.txtContribution->setText(typed);
            tab.txtContributionNote->setText(u"gift"_s);
            BoxAnswers boxes(message.isEmpty() ? QList<QMessageBox::StandardButton>() : QList{QMessageBox::Ok});
            tab.cmdSaveContribution->click();
            QCOMPARE(boxes.seen.isEmpty() ? QString() : boxes.seen[0].text, message);
            QCOMPARE(isEntering(tab), !message.isEmpty());
            QCOMPARE(m_folder->row("SELECT CAST(round(ContributionAmount * 10000) AS INTEGER) FROM Contributions"),
                     stored);
            QCOMPARE(tab.lstContributions->ListItems.Count() ? line(*tab.lstContributions, 1) : QString(),
                     shown.isEmpty() ? QString() : today + u'|' + shown + u"|gift"_s);
            tab.CmdCancelContribution->click();
            QVERIFY(!isEntering(tab));
            QCOMPARE(tab.txtContribution->text(), typed); // the next entry begins with it
            m_folder->execute("DELETE FROM Contributions");
        }
    }

    void rowsWithNullsLeaveTheirCellsEmpty()
    {
        const UnitedStates region;
        m_folder->execute("INSERT INTO Contributions (MemberId, ContributionDate, ContributionAmount) VALUES"
                          " (1, NULL, NULL), (1, '2026-01-31 00:00:00', 123456789.1234);"
                          "INSERT INTO MeetingInfo (MemberId, MeetingStartTime) VALUES (1, '1899-12-30 09:00:00');"
                          "INSERT INTO EventMemberInfo (MemberId) VALUES (1);");
        OpenDossier dossier;
        QCOMPARE(lines(*dossier->Frame5->lstContributions), (QStringList{u"||"_s, u"1/31/2026|$123,456,789.12|"_s}));
        QVERIFY(dossier->Frame5->lstContributions->ListItems(1).Tag.isEmpty());
        QCOMPARE(lines(*dossier->Frame6->lstPhoneNotes), QStringList(u"||9:00:00 AM|||||"_s));
        QCOMPARE(lines(*dossier->Frame7->lstEvent), QStringList(u"1|||||"_s));
    }

    void anEventIsAssigned()
    {
        OpenDossier dossier;
        AssignedEventsTab &tab = *dossier->Frame7;
        dossier.turnTo(&tab);
        QVERIFY(tab.lblEventActualTimeFinished->isVisible()); // alone, until the first entry has ended
        QVERIFY(tab.lblEventSelect->isHidden());
        tab.butAssignEvent->click();
        QVERIFY(isEntering(tab) && !tab.lstEventSelectId->isEnabled()); // the keys are never in use
        {
            BoxAnswers boxes({QMessageBox::Ok});
            tab.CmdEventSave->click();
            QCOMPARE(boxes.seen[0].whole(), u"Tolmark: Invalid event name (Critical, Ok)"_s);
        }
        QVERIFY(isEntering(tab));
        tab.lstEventSelect->setText(u"Walk"_s);
        tab.txtEventActualTimeStarted->setText(u"9:00"_s);
        tab.txtEventActualTimeFinished->setText(u"10:30"_s);
        tab.txtEventActualDate->setText(u"5/1/2026"_s);
        tab.txtEventComments->setText(u"rain"_s);
        tab.CmdEventSave->click();
        QVERIFY(!isEntering(tab));
        QVERIFY(tab.lblEventActualTimeFinished->isHidden());
        QVERIFY(tab.txtEventComments->text().isEmpty());
        QCOMPARE(lines(*tab.lstEvent), QStringList(u"1|Walk|9:00|10:30|5/1/2026|rain"_s));
        QCOMPARE(m_folder->row("SELECT * FROM EventMemberInfo"), u"1|1|Walk|9:00|10:30|5/1/2026|rain"_s);
        QCOMPARE(tab.lstEventSelect->Text(), u"Walk"_s); // stays selected
    }

    // Start time and date change places on their way into the boxes: saved as they stand, they are exchanged.
    void changingAnAssignmentCrossesStartAndDate()
    {
        m_folder->execute("INSERT INTO EventMemberInfo (MemberId, EventName, EventActualStartTime, EventActualEndTime, "
                          "EventActualDate, EventComments) VALUES (1, 'fair', '9:00', '10:30', '5/1/2026', 'x'),"
                          " (1, 'Renamed', 's', 'e', 'd', 'c')");
        OpenDossier dossier;
        AssignedEventsTab &tab = *dossier->Frame7;
        select(*tab.lstEvent, 1);
        dossier.choose("mnuEditEvent");
        QCOMPARE(tab.lstEventSelect->Text(), u"Fair"_s); // the first equal name
        tab.txtEventComments->setText(tab.txtEventComments->text() + u'y');
        tab.CmdEventSave->click();
        QCOMPARE(line(*tab.lstEvent, 1), u"1|Fair|5/1/2026|10:30|9:00|xy"_s);
        select(*tab.lstEvent, 2);
        dossier.choose("mnuEditEvent");
        QVERIFY(tab.lstEventSelect->Text().isEmpty()); // no event has that name any more
        tab.cmdEventCancel->click();
        QVERIFY(tab.CmdEventSave->Tag.isEmpty());
        QCOMPARE(m_folder->row("SELECT EventName FROM EventMemberInfo WHERE EventMemberInfoId = 2"), u"Renamed"_s);
    }

    void theEventsOnOfferAreThoseOfTheOpening()
    {
        OpenDossier dossier;
        m_folder->execute("INSERT INTO EventInformation (EventName) VALUES ('Later')");
        dossier->Frame7->loadAssignedEvents();
        QCOMPARE(dossier->Frame7->lstEventSelect->count(), 3);
        QCOMPARE(dossier->Frame7->lstEventSelectId->item(2)->text(), u"3"_s);
        m_folder->execute("INSERT INTO EventInformation (EventName) VALUES (NULL)");
        DisplayMembers second;
        QVERIFY(errorOf([&second] { second.Show(); }).startsWith(u"94 "));
    }

    void anApostropheEndsInTheReport()
    {
        const std::tuple<QByteArray, QByteArray, const char *> pages[] = {
            // the buttons that begin and end an entry, and the box filled between them
            {{}, "butEditMember", "txtAddressTwo"},
            {{}, "butEditEmployer", "txtWebAddress"},
            {"butAddInterest", "cmdAddInterest", "txtInterest"},
            {"butAssignEvent", "CmdEventSave", "txtEventActualDate"},
            {"butAddContributions", "cmdSaveContribution", "txtContributionNote"}};
        OpenDossier dossier;
        dossier->Frame7->lstEventSelect->setText(u"Walk"_s);
        dossier->Frame5->txtContribution->setText(u"1"_s);
        for (const auto &[begin, end, box] : pages) {
            if (!begin.isEmpty())
                dossier.click(begin);
            const bool severalLines = end == "cmdSaveContribution";
            child<QWidget>(*dossier, box)->setProperty(severalLines ? "plainText" : "text", u"it's"_s);
            dossier.click(end);
            QCOMPARE(m_errors->takeNumber(), -2147217900);
        }
        QCOMPARE(m_folder->row("PRAGMA integrity_check"), u"ok"_s);
    }

    void durations()
    {
        for (const auto &[start, end, duration] :
             {std::tuple(u"1899-12-30 09:00:00"_s, u"1899-12-30 10:30:15"_s, u"01:30:15"_s),
              std::tuple(u"1899-12-30 10:00:50"_s, u"1899-12-30 10:01:10"_s, u"00:01:20"_s), // minutes by their changes
              std::tuple(u"1899-12-30 10:30:15"_s, u"1899-12-30 09:00:00"_s, u"-01:-30:-15"_s),
              std::tuple(u"2026-01-01 12:00:00"_s, u"2026-01-06 13:00:00"_s, u"121:00:00"_s)}) {
            const auto time = [](const QString &text) { return *runtime::Date::fromIsoText(text); };
            QCOMPARE(durationText(time(start), time(end)), duration);
        }
    }

    void notesAreShownAndAdded()
    {
        const UnitedStates region;
        m_folder->execute("INSERT INTO MeetingInfo (MemberId, MeetingDate, MeetingType, MeetingCatagory, "
                          "MeetingSubject, MeetingStartTime, MeetingEndTime, MeetingNotes) VALUES (1, '2026-01-31 "
                          "00:00:00', 'Call', 'Training', 'Fees', '1899-12-30 09:00:00', '1899-12-30 10:30:15', 'ok')");
        desktop::MdiForm frame(u"Frame");
        frame.Show();
        OpenDossier dossier;
        NotesTab &tab = *dossier->Frame6;
        QCOMPARE(lines(*tab.lstPhoneNotes),
                 QStringList(u"1/31/2026|Call|9:00:00 AM|10:30:15 AM|01:30:15|Fees|Training|ok"_s));
        select(*tab.lstPhoneNotes, 1);
        Q_EMIT tab.lstPhoneNotes->DblClick();
        auto *view = child<frmMeeting>(frame, "frmMeeting");
        QCOMPARE(view->Caption(), u"Tolmark View Event"_s);
        QCOMPARE(
            (QStringList{view->txtEventDate->text(), view->lstEventType->item(0)->text(),
                         view->txtEventStartTime->text(), view->txtEventEndTime->text(), view->txtEventPurpose->text(),
                         view->lstCategory->item(0)->text(), view->txtEventNotes->text(), view->MemberId}),
            (QStringList{u"1/31/2026"_s, u"Call"_s, u"9:00:00 AM"_s, u"10:30:15 AM"_s, u"Fees"_s, u"Training"_s,
                         u"ok"_s, u"1"_s}));
        delete view->parentWidget();

        tab.butAddPhoneNotes->click();
        auto *add = child<frmMeeting>(frame, "frmMeeting");
        QCOMPARE(add->Caption(), u"Tolmark Add Event Manager"_s);
        QCOMPARE(add->MemberId, u"1"_s);
        add->txtEventPurpose->setText(u"Second"_s);
        add->cmdSave->click();
        QCOMPARE(tab.lstPhoneNotes->ListItems.Count(), 1);
        tab.Command1->click();
        QCOMPARE(tab.lstPhoneNotes->ListItems.Count(), 2);
    }
};

QTEST_MAIN(tst_Entries)
#include "tst_entries.moc"
