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

// Which of its two states the tab is in, by the controls that are enabled in one of them alone.
bool isEntering(const desktop::Frame &tab, const char *entering, const char *browsing)
{
    const auto isEnabled = [&tab](const QByteArray &name) { return child<QWidget>(tab, name)->isEnabled(); };
    const QByteArrayList inEntry = QByteArray(entering).split(' ');
    const QByteArrayList otherwise = QByteArray(browsing).split(' ');
    const bool enters = std::ranges::all_of(inEntry, isEnabled) && std::ranges::none_of(otherwise, isEnabled);
    const bool browses = std::ranges::none_of(inEntry, isEnabled) && std::ranges::all_of(otherwise, isEnabled);
    if (enters == browses)
        QTest::qFail("the tab is in neither of its states", __FILE__, __LINE__);
    return enters;
}

bool isEntering(const InterestsTab &tab)
{
    return isEntering(tab, "txtInterest txtInterestDescription cmdAddInterest CMdInterestCancel",
                      "lstInterest butAddInterest butCloseInterest");
}

bool isEntering(const ContributionsTab &tab)
{
    return isEntering(tab, "txtContribution txtContributionNote cmdSaveContribution CmdCancelContribution",
                      "lstContributions butAddContributions butCloseContributions");
}

bool isEntering(const AssignedEventsTab &tab)
{
    return isEntering(tab,
                      "lstEventSelect txtEventActualTimeStarted txtEventActualTimeFinished txtEventActualDate "
                      "txtEventComments CmdEventSave cmdEventCancel",
                      "lstEvent butAssignEvent butCloseEvent");
}

} // namespace

class tst_Entries : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        m_folder.emplace(DataStoreFolder::Content::Empty);
        m_folder->execute(oneMember);
    }

    void interestsAreAddedAndChanged()
    {
        CaughtErrors errors;
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
    }

    void anEntryWithoutInterestGoesOnAndCancelForgetsTheKey()
    {
        m_folder->execute("INSERT INTO MemberInterest (MemberId, Interest, InterestDescription) VALUES (1, 'Go', 'x')");
        CaughtErrors errors;
        OpenDossier dossier;
        InterestsTab &tab = *dossier->Frame3;
        select(*tab.lstInterest, 1);
        dossier.choose("mnuInterestEdit");
        QCOMPARE(tab.txtInterest->text() + tab.txtInterestDescription->text(), u"Gox"_s);
        tab.txtInterest->clear();
        {
            BoxAnswers boxes({QMessageBox::Ok});
            tab.cmdAddInterest->click();
            QCOMPARE(boxes.seen[0].text, u"Invalid Interest"_s);
            QCOMPARE(boxes.seen[0].title, u"Tolmark"_s);
            QCOMPARE(boxes.seen[0].icon, QMessageBox::Critical);
        }
        QVERIFY(isEntering(tab));
        QCOMPARE(tab.cmdAddInterest->Tag, u"1"_s);
        tab.CMdInterestCancel->click();
        tab.butAddInterest->click();
        QVERIFY(tab.txtInterest->text().isEmpty() && tab.txtInterestDescription->text().isEmpty());
        tab.txtInterest->setText(u"New"_s);
        tab.cmdAddInterest->click();
        QCOMPARE(m_folder->rows("SELECT Interest FROM MemberInterest"), (QStringList{u"Go"_s, u"New"_s}));
    }

    void contributions_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("stored"); // ten-thousandths
        QTest::addColumn<QString>("shown");
        const auto row = [](const char *typed, const char *message, const char *stored, const char *shown) {
            QTest::newRow(*typed ? typed : "nothing") << QString::fromLatin1(typed) << QString::fromLatin1(message)
                                                      << QString::fromLatin1(stored) << QString::fromLatin1(shown);
        };
        row("", "Invalid contribution", "", "");
        row("twelve", "Invalid contribution amount", "", "");
        row("12.3456", "", "123456", "$12.35");
        row("$1,200.50", "", "12005000", "$1,200.50");
        row("-3", "", "-30000", "($3.00)");
    }
    void contributions()
    {
        const UnitedStates region;
        QFETCH(QString, typed);
        QFETCH(QString, message);
        QFETCH(QString, stored);
        QFETCH(QString, shown);
        CaughtErrors errors;
        OpenDossier dossier;
        ContributionsTab &tab = *dossier->Frame5;
        tab.butAddContributions->click();
        QVERIFY(isEntering(tab));
        tab.txtContribution->setText(typed);
        tab.txtContributionNote->setText(u"gift"_s);
        BoxAnswers boxes(message.isEmpty() ? QList<QMessageBox::StandardButton>() : QList{QMessageBox::Ok});
        tab.cmdSaveContribution->click();
        QCOMPARE(boxes.seen.isEmpty() ? QString() : boxes.seen[0].text, message);
        QCOMPARE(isEntering(tab), !message.isEmpty());
        QCOMPARE(m_folder->row("SELECT CAST(round(ContributionAmount * 10000) AS INTEGER) FROM Contributions"), stored);
        const QString today = runtime::toText(runtime::Value(runtime::Date(QDate::currentDate())));
        QCOMPARE(tab.lstContributions->ListItems.Count() ? line(*tab.lstContributions, 1) : QString(),
                 shown.isEmpty() ? QString() : today + u'|' + shown + u"|gift"_s);
        tab.CmdCancelContribution->click();
        QVERIFY(!isEntering(tab));
        QCOMPARE(tab.txtContribution->text(), typed); // the next entry begins with it
    }

    // No control leads to it; the handler changes the row all the same.
    void aKeyInTheTagTurnsTheSaveIntoAChange()
    {
        m_folder->execute("INSERT INTO Contributions (MemberId, ContributionAmount) VALUES (1, 1), (1, 2)");
        CaughtErrors errors;
        OpenDossier dossier;
        ContributionsTab &tab = *dossier->Frame5;
        tab.txtContribution->setText(u"3"_s);
        tab.txtContributionNote->setText(u"late"_s);
        tab.cmdSaveContribution->Tag = u"2"_s;
        tab.cmdSaveContribution_Click();
        QVERIFY(tab.cmdSaveContribution->Tag.isEmpty());
        QCOMPARE(m_folder->rows("SELECT ContributionId, CAST(ContributionAmount AS INTEGER), ContributionNotes FROM "
                                "Contributions"),
                 (QStringList{u"1|1|NULL"_s, u"2|3|late"_s}));
    }

    void rowsWithNullsLeaveTheirCellsEmpty()
    {
        const UnitedStates region;
        m_folder->execute("INSERT INTO Contributions (MemberId, ContributionDate, ContributionAmount) VALUES"
                          " (1, NULL, NULL), (1, '2026-01-31 00:00:00', 123456789.1234);"
                          "INSERT INTO MeetingInfo (MemberId, MeetingStartTime) VALUES (1, '1899-12-30 09:00:00');"
                          "INSERT INTO EventMemberInfo (MemberId) VALUES (1);");
        CaughtErrors errors;
        OpenDossier dossier;
        QCOMPARE(lines(*dossier->Frame5->lstContributions), (QStringList{u"||"_s, u"1/31/2026|$123,456,789.12|"_s}));
        QVERIFY(dossier->Frame5->lstContributions->ListItems(1).Tag.isEmpty());
        QCOMPARE(lines(*dossier->Frame6->lstPhoneNotes), QStringList(u"||9:00:00 AM|||||"_s));
        QCOMPARE(lines(*dossier->Frame7->lstEvent), QStringList(u"1|||||"_s));
    }

    void anEventIsAssigned()
    {
        CaughtErrors errors;
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
            QCOMPARE(boxes.seen[0].text, u"Invalid event name"_s);
            QCOMPARE(boxes.seen[0].icon, QMessageBox::Critical);
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
        CaughtErrors errors;
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
        CaughtErrors errors;
        OpenDossier dossier;
        m_folder->execute("INSERT INTO EventInformation (EventName) VALUES ('Later')");
        dossier->Frame7->loadAssignedEvents();
        QCOMPARE(dossier->Frame7->lstEventSelect->count(), 3);
        QCOMPARE(dossier->Frame7->lstEventSelectId->item(2)->text(), u"3"_s);
        m_folder->execute("INSERT INTO EventInformation (EventName) VALUES (NULL)");
        QString error = errorOf([] { OpenDossier second; });
        QVERIFY2(error.startsWith(u"94 "), qPrintable(error));
    }

    void anApostropheEndsInTheReport_data()
    {
        QTest::addColumn<QByteArrayList>("clicks"); // of which the box is filled before the last
        QTest::addColumn<QByteArray>("box");
        QTest::newRow("member") << QByteArrayList{"butEditMember"} << QByteArray("txtAddressTwo");
        QTest::newRow("employer") << QByteArrayList{"butEditEmployer"} << QByteArray("txtWebAddress");
        QTest::newRow("interest") << QByteArrayList{"butAddInterest", "cmdAddInterest"} << QByteArray("txtInterest");
        QTest::newRow("event") << QByteArrayList{"butAssignEvent", "CmdEventSave"} << QByteArray("txtEventActualDate");
        QTest::newRow("contribution") << QByteArrayList{"butAddContributions", "cmdSaveContribution"}
                                      << QByteArray("txtContributionNote");
    }
    void anApostropheEndsInTheReport()
    {
        QFETCH(QByteArrayList, clicks);
        QFETCH(QByteArray, box);
        CaughtErrors errors;
        OpenDossier dossier;
        dossier->Frame7->lstEventSelect->setText(u"Walk"_s);
        dossier->Frame5->txtContribution->setText(u"1"_s);
        if (clicks.size() > 1)
            dossier.click(clicks.first());
        child<QWidget>(*dossier, box)->setProperty(box == "txtContributionNote" ? "plainText" : "text", u"it's"_s);
        dossier.click(clicks.last());
        QCOMPARE(errors.takeNumber(), -2147217900);
        QCOMPARE(m_folder->row("PRAGMA integrity_check"), u"ok"_s);
    }

    void durations_data()
    {
        QTest::addColumn<QString>("start");
        QTest::addColumn<QString>("end");
        QTest::addColumn<QString>("duration");
        QTest::newRow("plain") << u"1899-12-30 09:00:00"_s << u"1899-12-30 10:30:15"_s << u"01:30:15"_s;
        QTest::newRow("minutes by their changes")
            << u"1899-12-30 10:00:50"_s << u"1899-12-30 10:01:10"_s << u"00:01:20"_s;
        QTest::newRow("backwards") << u"1899-12-30 10:30:15"_s << u"1899-12-30 09:00:00"_s << u"-01:-30:-15"_s;
        QTest::newRow("days count") << u"2026-01-01 12:00:00"_s << u"2026-01-06 13:00:00"_s << u"121:00:00"_s;
    }
    void durations()
    {
        QFETCH(QString, start);
        QFETCH(QString, end);
        QFETCH(QString, duration);
        QCOMPARE(durationText(*runtime::Date::fromIsoText(start), *runtime::Date::fromIsoText(end)), duration);
    }

    void notesAreShownAndAdded()
    {
        const UnitedStates region;
        m_folder->execute("INSERT INTO MeetingInfo (MemberId, MeetingDate, MeetingType, MeetingCatagory, "
                          "MeetingSubject, MeetingStartTime, MeetingEndTime, MeetingNotes) VALUES (1, '2026-01-31 "
                          "00:00:00', 'Call', 'Training', 'Fees', '1899-12-30 09:00:00', '1899-12-30 10:30:15', 'ok')");
        CaughtErrors errors;
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

    void aDoubleClickOnTheEmptyListOfNotesEndsInTheReport()
    {
        CaughtErrors errors;
        OpenDossier dossier;
        dossier.turnTo(dossier->Frame6);
        QTest::mouseDClick(dossier->Frame6->lstPhoneNotes->viewport(), Qt::LeftButton);
        QCOMPARE(errors.takeNumber(), 91);
    }

private:
    std::optional<DataStoreFolder> m_folder;
};

QTEST_MAIN(tst_Entries)
#include "tst_entries.moc"
