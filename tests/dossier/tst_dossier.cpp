#include "dossier/OpenDossier.h"

#include <QContextMenuEvent>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr const char *oneMember =
    "INSERT INTO MemberInformation (MemberId, FirstName, MiddleName, LastName, City, State, Zip, Active) VALUES"
    " (1, 'Ann', NULL, 'Cole', 'Salem', 'Ohio', '97301', -1), (2, 'Gone', 'B', 'Away', 'X', 'Ohio', '1', 0);"
    "INSERT INTO EmployerInformation (MemberId, Name, City, State, Extension) VALUES"
    " (1, 'Works', 'Town', 'virginia ', '12'), (1, 'Second', 'Elsewhere', 'Ohio', '13');"
    "INSERT INTO MemberInterest (MemberId, Interest) VALUES (1, 'Chess'), (1, 'Go'), (2, 'Sailing');"
    "INSERT INTO Contributions (MemberId, ContributionAmount) VALUES (1, 12.5), (1, 7);"
    "INSERT INTO EventMemberInfo (MemberId, EventName) VALUES (1, 'Fair'), (1, 'Walk');"
    "INSERT INTO Attachments (MemberId, AttachmentsName, AttachmentVersion, Attachments) VALUES"
    " (1, 'a.txt', 1, x'6100'), (1, 'b.txt', 1, x'6200');"
    "INSERT INTO MeetingInfo (MemberId, MeetingDate, MeetingSubject) VALUES (1, '2026-01-02 00:00:00', 'Call'),"
    " (1, '2026-01-03 00:00:00', 'Visit');";

} // namespace

class tst_Dossier : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        m_folder.emplace(DataStoreFolder::Content::Empty);
        m_folder->execute(oneMember);
    }

    void showsTheMemberAndTheFirstEmployer()
    {
        CaughtErrors errors;
        OpenDossier dossier;
        const MemberTab &member = *dossier->Frame1;
        QCOMPARE(member.txtFirstName->text() + u'|' + member.txtMiddleName->text() + u'|' + member.txtLastName->text(),
                 u"Ann||Cole"_s);
        QCOMPARE(member.LstState->Text(), u"Ohio"_s);
        QCOMPARE(dossier->Frame2->txtEmployerName->text(), u"Works"_s);
        QCOMPARE(dossier->Frame2->LstEmployerState->Text(), u"Virginia "_s);
        dossier->setMemberIdentification(runtime::Value(u"2"_s));
        QCOMPARE(dossier->MemberId, qint16(2));
    }

    void anInactiveMemberHasEmptyBoxesAndFullLists()
    {
        CaughtErrors errors;
        OpenDossier dossier(2);
        QVERIFY(dossier->Frame1->txtLastName->text().isEmpty());
        QVERIFY(dossier->Frame2->txtEmployerName->text().isEmpty());
        QCOMPARE(lines(*dossier->Frame3->lstInterest), QStringList(u"Sailing|"_s));
    }

    void updateLeavesCityAndStateAsTheyAreStored()
    {
        CaughtErrors errors;
        BoxAnswers boxes({QMessageBox::Ok});
        OpenDossier dossier;
        MemberTab &member = *dossier->Frame1;
        member.txtFirstName->setText(u"Anne"_s);
        member.txtLastName->clear();
        member.txtCity->setText(u"Boston"_s);
        member.LstState->setText(u"Utah"_s);
        member.txtZip->setText(u"02108"_s);
        member.txtEMailAddress->setText(u"a@x.org"_s);
        member.butEditMember->click();
        QCOMPARE(boxes.seen[0].text, u"Changes have been saved"_s);
        QCOMPARE(boxes.seen[0].title, u"Tolmark Lite"_s);
        QCOMPARE(boxes.seen[0].icon, QMessageBox::Information);
        QCOMPARE(m_folder->row("SELECT FirstName, LastName, City, State, Zip, EMailAddress FROM MemberInformation "
                               "WHERE MemberId = 1"),
                 u"Anne||Salem|Ohio|02108|a@x.org"_s);
        QCOMPARE(m_folder->row("SELECT LastName FROM MemberInformation WHERE MemberId = 2"), u"Away"_s);
    }

    void updateOfTheEmployerWritesEveryRowOrNone()
    {
        CaughtErrors errors;
        BoxAnswers boxes({QMessageBox::Ok, QMessageBox::Ok});
        {
            OpenDossier dossier;
            dossier->Frame2->txtEmployerName->setText(u"New"_s);
            dossier->Frame2->LstEmployerState->setText(u"Utah"_s);
            dossier->Frame2->txtEmployerExtension->setText(u"99"_s);
            dossier->Frame2->txtEmail->setText(u"e@x.org"_s);
            dossier->Frame2->butEditEmployer->click();
        }
        OpenDossier without(2);
        without->Frame2->txtEmployerName->setText(u"Nobody"_s);
        without->Frame2->butEditEmployer->click();
        QCOMPARE(m_folder->rows("SELECT Name, City, State, Extension, EMailAddress FROM EmployerInformation"),
                 (QStringList{u"New|Town|virginia |12|e@x.org"_s, u"New|Town|Ohio|13|e@x.org"_s}));
    }

    void anApostropheEndsInTheReport_data()
    {
        QTest::addColumn<QByteArray>("box");
        QTest::addColumn<QByteArray>("button");
        QTest::newRow("member") << QByteArray("txtAddressTwo") << QByteArray("butEditMember");
        QTest::newRow("employer") << QByteArray("txtWebAddress") << QByteArray("butEditEmployer");
    }
    void anApostropheEndsInTheReport()
    {
        QFETCH(QByteArray, box);
        QFETCH(QByteArray, button);
        CaughtErrors errors;
        OpenDossier dossier;
        child<QLineEdit>(*dossier, box.constData())->setText(u"O'Fallon"_s);
        child<QPushButton>(*dossier, button.constData())->click();
        QCOMPARE(errors.takeNumber(), -2147217900);
        QCOMPARE(m_folder->row("PRAGMA integrity_check"), u"ok"_s);
    }

    void aMemberDeletedMeanwhileStaysOnTheScreen()
    {
        CaughtErrors errors;
        BoxAnswers boxes({QMessageBox::Ok});
        OpenDossier dossier;
        m_folder->execute("DELETE FROM MemberInformation WHERE MemberId = 1");
        dossier->Frame1->butEditMember->click();
        QCOMPARE(dossier->Frame1->txtLastName->text(), u"Cole"_s);
        QCOMPARE(m_folder->row("SELECT count(*) FROM MemberInformation"), u"1"_s);
        dossier->Frame6->Command1->click(); // the notes hang on the member's row
        QCOMPARE(dossier->Frame6->lstPhoneNotes->ListItems.Count(), 0);
    }

    void everyCloseButtonClosesWithoutAQuestion_data()
    {
        QTest::addColumn<QByteArray>("button");
        for (const char *button : {"butCloseMember", "butEmployerClose", "butCloseEvent", "butCloseContributions",
                                   "butCLoseAttachment", "butCloseInterest", "butClosePhone"})
            QTest::newRow(button) << QByteArray(button);
    }
    void everyCloseButtonClosesWithoutAQuestion()
    {
        QFETCH(QByteArray, button);
        CaughtErrors errors;
        BoxAnswers boxes;
        OpenDossier dossier;
        dossier->Frame1->txtFirstName->setText(u"unsaved"_s);
        child<QPushButton>(*dossier, button.constData())->click();
        QVERIFY(!dossier->isVisible());
    }

    void deletion_data()
    {
        QTest::addColumn<QByteArray>("list");
        QTest::addColumn<QByteArray>("item");
        QTest::addColumn<QString>("thing");
        QTest::addColumn<QString>("confirmation");
        QTest::addColumn<int>("linesAtConfirmation");
        QTest::addColumn<QByteArray>("table");
        const auto row = [](const char *list, const char *item, const char *thing, const char *confirmation, int left,
                            const char *table) {
            QTest::newRow(item) << QByteArray(list) << QByteArray(item) << QString::fromLatin1(thing)
                                << QString::fromLatin1(confirmation) << left << QByteArray(table);
        };
        row("lstAttachement", "MnuDeleteAttachment", "file", "Attachment deleted", 2, "Attachments");
        row("lstContributions", "mnuDeleteContribution", "contribution", "Contribution deleted", 1, "Contributions");
        row("lstEvent", "mnuDeleteEvent", "event", "Event deleted", 2, "EventMemberInfo");
        row("lstInterest", "MnuDeleteInterest", "file", "Interest deleted", 1, "MemberInterest");
        row("lstPhoneNotes", "mnuDeleteNote", "note", "Note deleted", 1, "MeetingInfo");
    }
    // The first line stands for a No, the second for a Yes: exactly its row goes.
    void deletion()
    {
        QFETCH(QByteArray, list);
        QFETCH(QByteArray, item);
        QFETCH(QString, thing);
        QFETCH(QString, confirmation);
        QFETCH(int, linesAtConfirmation);
        QFETCH(QByteArray, table);
        CaughtErrors errors;
        OpenDossier dossier;
        auto &view = *child<desktop::ListView>(*dossier, list.constData());
        select(view, 2);
        const QString kept = view.ListItems(1).Tag;
        const int rows = m_folder->row("SELECT count(*) FROM " + table).toInt();
        {
            BoxAnswers boxes({QMessageBox::No});
            child<QAction>(*dossier, item.constData())->trigger();
            QCOMPARE(boxes.seen[0].text,
                     u"Warning you are about to delete the selected "_s + thing + u"\r\nDo you want to continue"_s);
            QCOMPARE(boxes.seen[0].title, u"Tolmark Lite"_s);
            QCOMPARE(boxes.seen[0].icon, QMessageBox::NoIcon);
            QCOMPARE(boxes.seen[0].buttons, QMessageBox::Yes | QMessageBox::No);
        }
        QCOMPARE(view.ListItems.Count(), 2);
        BoxAnswers boxes({QMessageBox::Yes, QMessageBox::Ok});
        int linesSeen = 0;
        boxes.atBox = [&] { linesSeen = view.ListItems.Count(); };
        child<QAction>(*dossier, item.constData())->trigger();
        QCOMPARE(boxes.seen[1].text, confirmation);
        QCOMPARE(boxes.seen[1].icon, QMessageBox::Information);
        QCOMPARE(linesSeen, linesAtConfirmation);
        QCOMPARE(view.ListItems.Count(), 1);
        QCOMPARE(view.ListItems(1).Tag, kept);
        QCOMPARE(m_folder->row("SELECT count(*) FROM " + table).toInt(), rows - 1);
    }

    void deletingWithoutASelectedLine()
    {
        CaughtErrors errors;
        BoxAnswers boxes({QMessageBox::Yes, QMessageBox::Ok, QMessageBox::Yes});
        m_folder->execute("DELETE FROM Attachments; DELETE FROM MemberInterest;");
        OpenDossier dossier;
        choose(*dossier->Frame4->MnuViewOptions, "MnuDeleteAttachment");
        QCOMPARE(boxes.seen[1].text, u"Nothing selected"_s);
        QCOMPARE(boxes.seen[1].icon, QMessageBox::Information);
        choose(*dossier->Frame3->mnuInterest, "MnuDeleteInterest");
        QCOMPARE(errors.takeNumber(), 91);
    }

    // The statement without a key fails on the way; what the window does next is not held up by that.
    void aDeletionThatFailsOnTheWayLeavesTheWindowInUse()
    {
        m_folder->execute("UPDATE Attachments SET AttachmentsName = NULL");
        CaughtErrors errors;
        BoxAnswers boxes({QMessageBox::Yes, QMessageBox::Ok, QMessageBox::Ok});
        OpenDossier dossier;
        select(*dossier->Frame4->lstAttachement, 1);
        choose(*dossier->Frame4->MnuViewOptions, "MnuDeleteAttachment");
        QCOMPARE(boxes.seen[1].text, u"Nothing selected"_s);
        dossier->Frame1->butEditMember->click();
        QCOMPARE(boxes.seen.size(), 3); // "Changes have been saved"
    }

    // A row without a date has no key in its line: deleting it fails and takes nothing along.
    void deletingALineWithoutKeyEndsInTheReport()
    {
        m_folder->execute("UPDATE MeetingInfo SET MeetingDate = NULL");
        CaughtErrors errors;
        BoxAnswers boxes({QMessageBox::Yes});
        OpenDossier dossier;
        select(*dossier->Frame6->lstPhoneNotes, 1);
        choose(*dossier->Frame6->MnuMeetingNotesOptions, "mnuDeleteNote");
        QCOMPARE(errors.takeNumber(), -2147217900);
        QCOMPARE(m_folder->row("SELECT count(*) FROM MeetingInfo"), u"2"_s);
    }

    void popUps_data()
    {
        QTest::addColumn<QByteArray>("list");
        QTest::addColumn<QByteArray>("menu");
        QTest::addColumn<QStringList>("items");
        QTest::newRow("events") << QByteArray("lstEvent") << QByteArray("mnuEventsOptions")
                                << QStringList{u"Edit"_s, u"-"_s, u"Delete"_s};
        QTest::newRow("notes") << QByteArray("lstPhoneNotes") << QByteArray("MnuMeetingNotesOptions")
                               << QStringList{u"Delete Note"_s};
        QTest::newRow("interests") << QByteArray("lstInterest") << QByteArray("mnuInterest")
                                   << QStringList{u"Edit Interest"_s, u"-"_s, u"Delete Interest"_s};
        QTest::newRow("attachments") << QByteArray("lstAttachement") << QByteArray("MnuViewOptions")
                                     << QStringList{u"Save As"_s, u"-"_s, u"View"_s, u"Delete Attachment"_s};
        QTest::newRow("contributions") << QByteArray("lstContributions") << QByteArray("mnuContributions")
                                       << QStringList{u"Delete Contribution"_s};
    }
    void popUps()
    {
        QFETCH(QByteArray, list);
        QFETCH(QByteArray, menu);
        QFETCH(QStringList, items);
        CaughtErrors errors;
        OpenDossier dossier;
        auto &view = *child<desktop::ListView>(*dossier, list.constData());
        auto &popup = *child<desktop::PopupMenu>(*dossier, menu.constData());
        dossier.turnTo(view.parentWidget());
        const QPoint second = view.visualItemRect(&view.ListItems(2)).center();
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, second);
        QVERIFY(!popup.isVisible());
        QTest::mouseClick(view.viewport(), Qt::RightButton, {}, second);
        QVERIFY(popup.isVisible());
        QCOMPARE(view.SelectedItem().get(), &view.ListItems(2));
        QStringList shown;
        for (const QAction *action : popup.actions()) {
            if (action->isVisible())
                shown << (action->isSeparator() ? u"-"_s : action->text());
        }
        QCOMPARE(shown, items);
        popup.close();
        QContextMenuEvent byKeyboard(QContextMenuEvent::Keyboard, QPoint(), QPoint());
        QCoreApplication::sendEvent(view.viewport(), &byKeyboard);
        QVERIFY(popup.isVisible());
        popup.close();
        view.ListItems.Clear();
        QTest::mouseClick(view.viewport(), Qt::RightButton, {}, second);
        QVERIFY(!popup.isVisible());
    }

    void tabStopsFollowTheEye_data()
    {
        QTest::addColumn<int>("page");
        for (int page = 0; page < 7; ++page)
            QTest::addRow("page %d", page) << page;
    }
    void tabStopsFollowTheEye()
    {
        QFETCH(int, page);
        CaughtErrors errors;
        OpenDossier dossier;
        QApplication::setActiveWindow(&*dossier);
        QVERIFY(QTest::qWaitForWindowActive(&*dossier));
        dossier->SSTab1->setCurrentIndex(page);
        for (const char *add : {"butAssignEvent", "butAddContributions", "butAddInterest"}) {
            if (auto *button = child<QPushButton>(*dossier, add); button->isVisible())
                button->click();
        }
        dossier->SSTab1->tabBar()->setFocus();
        QStringList stops;
        QPoint before(-1, -1);
        for (QWidget *bar = QApplication::focusWidget();;) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QWidget *stop = QApplication::focusWidget();
            if (stop == bar)
                break;
            stops << stop->objectName();
            QVERIFY2(!stop->objectName().isEmpty() && stops.size() < 20, qPrintable(stops.join(u' ')));
            const QPoint place = stop->mapTo(&*dossier, QPoint());
            const bool follows = place.y() > before.y() + 5 || (place.y() > before.y() - 5 && place.x() > before.x());
            QVERIFY2(follows, qPrintable(stops.join(u' ')));
            before = place;
        }
        QVERIFY(stops.size() >= 3);
    }

private:
    std::optional<DataStoreFolder> m_folder;
};

QTEST_MAIN(tst_Dossier)
#include "tst_dossier.moc"
