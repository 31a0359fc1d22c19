#include "dossier/MemberFields.h"
#include "dossier/OpenDossier.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr const char *oneMember =
    "INSERT INTO MemberInformation (MemberId, FirstName, MiddleName, LastName, City, State, Zip, Active) VALUES"
    " (1, 'Ann', NULL, 'Cole', 'Salem', 'Ohio', '97301', -1), (2, 'Gone', 'B', 'Away', 'X', 'Ohio', '1', 0);"
    "INSERT INTO EmployerInformation (MemberId, Name, Extension) VALUES (1, 'Works', '12'), (2, 'Hall', '14');"
    "INSERT INTO MemberInterest (MemberId, Interest) VALUES (1, 'Chess'), (1, 'Go'), (2, 'Sailing');"
    "INSERT INTO Contributions (MemberId, ContributionAmount) VALUES (1, 12.5), (1, 7);"
    "INSERT INTO EventMemberInfo (MemberId, EventName) VALUES (1, 'Fair'), (1, 'Walk');"
    "INSERT INTO Attachments (MemberId, AttachmentsName, AttachmentVersion, Attachments) VALUES"
    " (1, 'a.txt', 1, x'6100'), (1, 'b.txt', 1, x'6200');"
    "INSERT INTO MeetingInfo (MemberId, MeetingDate, MeetingSubject) VALUES (1, '2026-01-02 00:00:00', 'Call'),"
    " (1, '2026-01-03 00:00:00', 'Visit');";

} // namespace

class tst_Dossier : public StoreTest
{
    Q_OBJECT
private Q_SLOTS:
    void init() { open(DataFolder::Content::Empty, oneMember); }
    void cleanup() { close(); }

    // Every column holds another text, so that no two boxes and no two columns can stand for one another.
    void eachBoxShowsItsColumnAndUpdateWritesIt()
    {
        struct Page
        {
            QByteArray table, columns, boxes, notWritten, state, button;
        };
        const Page member{"MemberInformation",
                          "FirstName MiddleName LastName AddressOne AddressTwo City Zip HomePhone CellPhone "
                          "EMailAddress",
                          "txtFirstName txtMiddleName txtLastName txtAddressOne txtAddressTwo txtCity txtZip "
                          "txtHomePhone txtCellPhone txtEMailAddress",
                          "City",
                          "LstState",
                          "butEditMember"};
        const Page employer{"EmployerInformation",
                            "Name AddressOne AddressTwo City Zip PhoneNumber Extension EMailAddress WebAddress",
                            "txtEmployerName txtEmployerAddressOne txtEmployerAddressTwo txtEmployerCity "
                            "txtEmployerZip txtEmployerPhoneNumber txtEmployerExtension txtEmail txtWebAddress",
                            "Extension",
                            "LstEmployerState",
                            "butEditEmployer"};
        for (const Page &page : {member, employer}) {
            const QByteArrayList columns = page.columns.split(' ');
            const QByteArrayList boxes = page.boxes.split(' ');
            for (const MemberField &field : page.state == "LstState" ? memberFields() : employerFields())
                QVERIFY(field.boxInDossier.isEmpty() || field.isState || columns.contains(field.column.toUtf8()));
            for (const QByteArray &column : columns)
                m_folder->execute("UPDATE " + page.table + " SET State = 'ohio', " + column + " = '<" + column + ">'");
            BoxAnswers answers({QMessageBox::Ok});
            OpenDossier dossier;
            QStringList shown;
            QStringList stored;
            QStringList expected;
            for (int at = 0; at < boxes.size(); ++at) {
                desktop::TextBox &box = dossier.box(boxes[at]);
                shown << box.text();
                stored << u'<' + QString::fromLatin1(columns[at]) + u'>';
                expected << (page.notWritten == columns[at] ? stored.last() : QString::fromLatin1(boxes[at]));
                box.setText(QString::fromLatin1(boxes[at]));
            }
            QCOMPARE(shown, stored);
            QCOMPARE(dossier.states(page.state).Text(), u"Ohio"_s);
            dossier.states(page.state).setText(u"Utah"_s);
            dossier.click(page.button);
            QCOMPARE(answers.seen[0].whole(), u"Tolmark Lite: Changes have been saved (Information, Ok)"_s);
            const QByteArray select =
                "SELECT " + columns.join(", ") + ", State FROM " + page.table + " WHERE MemberId = ";
            QCOMPARE(m_folder->row(select + '1'), (expected + QStringList(u"ohio"_s)).join(u'|'));
            QCOMPARE(m_folder->row(select + '2'), (stored + QStringList(u"ohio"_s)).join(u'|'));
        }
    }

    void anInactiveMemberHasEmptyBoxesAndFullLists()
    {
        OpenDossier dossier(2);
        QVERIFY(dossier.box("txtLastName").text().isEmpty());
        QCOMPARE(dossier.box("txtEmployerName").text(), u"Hall"_s);
        QCOMPARE(lines(*dossier->Frame3->lstInterest), QStringList(u"Sailing|"_s));
        dossier.turnTo(dossier->Frame6);
        QTest::mouseDClick(dossier->Frame6->lstPhoneNotes->viewport(), Qt::LeftButton); // no note to open
        QCOMPARE(m_errors->takeNumber(), 91);
    }

    void updateOfTheEmployerWritesEveryRowOrNone()
    {
        m_folder->execute("DELETE FROM EmployerInformation WHERE MemberId = 2; "
                          "INSERT INTO EmployerInformation (MemberId, Name, Extension) VALUES (1, 'Second', '13')");
        BoxAnswers boxes({QMessageBox::Ok, QMessageBox::Ok});
        for (const qint16 member : {qint16(1), qint16(2)}) { // the second has none
            OpenDossier dossier(member);
            QCOMPARE(dossier.box("txtEmployerName").text(), member == 1 ? u"Works"_s : QString());
            dossier.box("txtEmployerName").setText(u"New"_s);
            dossier.click("butEditEmployer");
        }
        QCOMPARE(m_folder->rows("SELECT MemberId, Name, Extension FROM EmployerInformation"),
                 (QStringList{u"1|New|12"_s, u"1|New|13"_s}));
    }

    void aMemberDeletedMeanwhileStaysOnTheScreen()
    {
        BoxAnswers boxes({QMessageBox::Ok});
        OpenDossier dossier;
        m_folder->execute("DELETE FROM MemberInformation WHERE MemberId = 1");
        dossier.click("butEditMember");
        QCOMPARE(dossier.box("txtLastName").text(), u"Cole"_s);
        QCOMPARE(m_folder->row("SELECT count(*) FROM MemberInformation"), u"1"_s);
        dossier->Frame6->Command1->click(); // the notes hang on the member's row
        QCOMPARE(dossier->Frame6->lstPhoneNotes->ListItems.Count(), 0);
    }

    void everyCloseButtonClosesWithoutAQuestion()
    {
        BoxAnswers boxes;
        for (const char *button : {"butCloseMember", "butEmployerClose", "butCloseEvent", "butCloseContributions",
                                   "butCLoseAttachment", "butCloseInterest", "butClosePhone"}) {
            OpenDossier dossier;
            dossier.box("txtFirstName").setText(u"unsaved"_s);
            dossier.click(button);
            QVERIFY2(!dossier->isVisible(), button);
        }
    }

    // The first line stands for a No, the second for a Yes: exactly its row goes.
    void deletion()
    {
        const std::tuple<const char *, const char *, QString, QString, int, QByteArray> tabs[] = {
            {"lstAttachement", "MnuDeleteAttachment", u"file"_s, u"Attachment deleted"_s, 2, "Attachments"},
            {"lstContributions", "mnuDeleteContribution", u"contribution"_s, u"Contribution deleted"_s, 1,
             "Contributions"},
            {"lstEvent", "mnuDeleteEvent", u"event"_s, u"Event deleted"_s, 2, "EventMemberInfo"},
            {"lstInterest", "MnuDeleteInterest", u"file"_s, u"Interest deleted"_s, 1, "MemberInterest"},
            {"lstPhoneNotes", "mnuDeleteNote", u"note"_s, u"Note deleted"_s, 1, "MeetingInfo"}};
        OpenDossier dossier;
        for (const auto &[list, item, thing, confirmation, linesAtConfirmation, table] : tabs) {
            desktop::ListView &view = dossier.list(list);
            select(view, 2);
            const QString kept = view.ListItems(1).Tag;
            const int rows = m_folder->row("SELECT count(*) FROM " + table).toInt();
            BoxAnswers boxes({QMessageBox::No, QMessageBox::Yes, QMessageBox::Ok});
            QList<int> linesSeen;
            boxes.atBox = [&] { linesSeen << view.ListItems.Count(); };
            dossier.choose(item);
            QCOMPARE(boxes.seen[0].whole(), u"Tolmark Lite: Warning you are about to delete the selected "_s + thing +
                                                u"\r\nDo you want to continue (NoIcon, Yes|No)"_s);
            dossier.choose(item);
            QCOMPARE(boxes.seen[2].whole(), u"Tolmark Lite: "_s + confirmation + u" (Information, Ok)"_s);
            QCOMPARE(linesSeen, (QList{2, 2, linesAtConfirmation}));
            QCOMPARE(view.ListItems.Count(), 1);
            QCOMPARE(view.ListItems(1).Tag, kept);
            QCOMPARE(m_folder->row("SELECT count(*) FROM " + table).toInt(), rows - 1);
        }
    }

    // The focus marks a line as the current one without highlighting it: that is no selection.
    void withoutAHighlightedLineNothingIsDeleted()
    {
        BoxAnswers boxes({QMessageBox::Yes, QMessageBox::Ok, QMessageBox::Yes});
        OpenDossier dossier;
        for (QWidget *tab : {static_cast<QWidget *>(dossier->Frame4), static_cast<QWidget *>(dossier->Frame3)}) {
            dossier.turnTo(tab);
            auto *list = tab->findChild<desktop::ListView *>();
            list->setFocus(Qt::OtherFocusReason);
            list->setCurrentItem(&list->ListItems(1), 0, QItemSelectionModel::NoUpdate);
            QTest::mouseClick(list->viewport(), Qt::RightButton, {}, list->viewport()->rect().bottomRight());
            QApplication::activePopupWidget()->close();
        }
        dossier.choose("MnuDeleteAttachment");
        QCOMPARE(boxes.seen[1].whole(), u"Tolmark Lite: Nothing selected (Information, Ok)"_s);
        dossier.choose("MnuDeleteInterest");
        QCOMPARE(m_errors->takeNumber(), 91);
        dossier.choose("mnuInterestEdit");
        QCOMPARE(m_errors->takeNumber(), 91);
        QCOMPARE(m_folder->row("SELECT (SELECT count(*) FROM Attachments) + (SELECT count(*) FROM MemberInterest)"),
                 u"5"_s);
    }

    // A row without a name or a date has no key in its line: deleting it breaks the statement and deletes nothing. What
    // the window does next is not held up by that.
    void aLineWithoutKeyIsNotDeleted()
    {
        m_folder->execute("UPDATE Attachments SET AttachmentsName = NULL; UPDATE MeetingInfo SET MeetingDate = NULL");
        BoxAnswers boxes({QMessageBox::Yes, QMessageBox::Ok, QMessageBox::Ok, QMessageBox::Yes});
        OpenDossier dossier;
        select(dossier.list("lstAttachement"), 1);
        dossier.choose("MnuDeleteAttachment");
        QCOMPARE(boxes.seen[1].text, u"Nothing selected"_s);
        dossier.click("butEditMember");
        QCOMPARE(boxes.seen.size(), 3); // "Changes have been saved"
        select(dossier.list("lstPhoneNotes"), 1);
        dossier.choose("mnuDeleteNote");
        QCOMPARE(m_errors->takeNumber(), -2147217900);
        QCOMPARE(m_folder->row("SELECT (SELECT count(*) FROM Attachments) + (SELECT count(*) FROM MeetingInfo)"),
                 u"4"_s);
    }

    void popUps()
    {
        const QList<std::tuple<const char *, const char *, QString>> menus{
            {"lstEvent", "mnuEventsOptions", u"Edit, , Delete"_s},
            {"lstPhoneNotes", "MnuMeetingNotesOptions", u"Delete Note"_s},
            {"lstInterest", "mnuInterest", u"Edit Interest, , Delete Interest"_s},
            {"lstAttachement", "MnuViewOptions", u"Save As, , View, Delete Attachment"_s},
            {"lstContributions", "mnuContributions", u"Delete Contribution"_s},
        };
        OpenDossier dossier;
        for (const auto &[list, menu, items] : menus) {
            desktop::ListView &view = dossier.list(list);
            auto &popup = *child<desktop::PopupMenu>(*dossier, menu);
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
                    shown << desktop::captionOf(action->text());
            }
            QCOMPARE(shown.join(u", "_s), items);
            popup.close();
            const QPoint beside = view.viewport()->rect().bottomLeft();
            QTest::mouseClick(view.viewport(), Qt::RightButton, {}, beside);
            QCOMPARE(view.SelectedItem().get(), &view.ListItems(2)); // on which this menu works too
            popup.close();
            view.ListItems.Clear();
            QTest::mouseClick(view.viewport(), Qt::RightButton, {}, second);
            QVERIFY(!popup.isVisible());
        }
    }
};

QTEST_MAIN(tst_Dossier)
#include "tst_dossier.moc"
