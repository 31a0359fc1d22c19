#include "events/frmMeeting.h"
#include "events/frmSelectClient.h"
#include "platform/desktop/MdiForm.h"
#include "platform/desktop/Printer.h"
#include "support/PdfText.h"
#include "support/StoreTest.h"
#include "support/UnitedStates.h"

#include <QPointer>

using namespace Qt::Literals::StringLiterals;

namespace {

frmMeeting *newNote(const QString &memberId)
{
    return desktop::showNew<frmMeeting>([&](frmMeeting &window) {
        window.AddView = true;
        window.MemberId = memberId;
    });
}

QStringList itemsOf(const desktop::ListBox &list)
{
    QStringList items;
    for (int row = 0; row < list.count(); ++row)
        items << list.item(row)->text();
    return items;
}

} // namespace

class tst_Notes : public StoreTest
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { hidePrinters(); }
    void init()
    {
        open(DataFolder::Content::Empty,
             "DELETE FROM CategoryInfo; DELETE FROM EventInformation; INSERT INTO CategoryInfo VALUES "
             "('Membership', -1), ('Archive', 0); INSERT INTO EventInformation (EventName, Active) VALUES "
             "('Picnic', -1), ('Cancelled', 0), (NULL, -1)");
        setTime(u"2026-01-31T14:05:00"_s);
    }
    void cleanup()
    {
        close();
        desktop::setPrintFile({});
    }

    void aNewNoteOffersWhatIsActiveAndItsButtonsTakeTheTime()
    {
        const UnitedStates region;
        const std::unique_ptr<frmMeeting> window(newNote({}));
        QCOMPARE(itemsOf(*window->lstEventType), (QStringList{u"Phone Conversation"_s, u"Member Meeting"_s,
                                                              u"Member Conference"_s, u"Picnic"_s, QString()}));
        QCOMPARE(itemsOf(*window->lstCategory),
                 (QStringList{u"Instructional"_s, u"Event Planning"_s, u"Disciplinary Action"_s, u"Training"_s,
                              u"Membership"_s}));
        QCOMPARE(window->lstEventType->ListIndex(), 0);
        QCOMPARE(window->lstCategory->ListIndex(), 0);
        QCOMPARE(window->txtEventDate->text(), u"1/31/2026"_s);
        QCOMPARE(window->txtEventStartTime->text(), u"2:05 PM"_s);
        QCOMPARE(window->txtEventEndTime->text(), QString());

        window->lstEventType->setText(u"Picnic"_s);
        window->lstCategory->setText(u"Membership"_s);
        window->txtEventPurpose->setText(u"x"_s);
        window->txtEventNotes->setText(u"y"_s);
        window->txtEventDate->setText(u"z"_s);
        setTime(u"2026-02-01T14:30:00"_s);
        window->cmdEndTime->click();
        QCOMPARE(window->txtEventEndTime->text(), u"2:30 PM"_s);
        QCOMPARE(window->txtEventStartTime->text(), u"2:05 PM"_s);
        window->cmdStartTime->click();
        QCOMPARE(window->txtEventStartTime->text(), u"2:30 PM"_s);
        setTime(u"2026-02-01T15:00:00"_s);
        window->cmdClear->click();
        QCOMPARE(
            (QStringList{window->txtEventDate->text(), window->txtEventStartTime->text(),
                         window->txtEventEndTime->text(), window->txtEventPurpose->text(),
                         window->txtEventNotes->text(), window->lstEventType->Text(), window->lstCategory->Text()}),
            (QStringList{u"2/1/2026"_s, u"3:00 PM"_s, QString(), QString(), QString(), u"Picnic"_s, u"Membership"_s}));
    }

    void aNoteOfAMemberIsStored()
    {
        QPointer<frmMeeting> window = newNote(u"7"_s);
        window->lstEventType->setText(u"Picnic"_s);
        window->lstCategory->setText(u"Membership"_s);
        window->txtEventPurpose->setText(u"O'Brien's dues"_s); // no statement is joined here
        window->txtEventNotes->setText(u"First\nSecond"_s);
        setTime(u"2026-01-31T14:20:00"_s);
        window->cmdSave->click();
        QTRY_VERIFY(!window);
        QCOMPARE(m_folder->rows(everyNote),
                 QStringList{u"7|NULL|2026-01-31 00:00:00|1899-12-30 14:05:00|1899-12-30 14:20:00|Picnic|Membership|"
                             "O'Brien's dues|First\nSecond"_s});
    }

    void aSaveThatCannotBe()
    {
        const std::unique_ptr<frmMeeting> window(newNote(u"7"_s));
        const auto saveWith = [&window](const QString &start, const QString &title) {
            window->txtEventStartTime->setText(start);
            window->txtEventPurpose->setText(title);
            BoxAnswers boxes({QMessageBox::Ok});
            window->cmdSave->click();
            return boxes.seen.value(0).whole();
        };
        for (const QString &title : {u""_s, u"x"_s})
            QCOMPARE(saveWith({}, title), u"Halvic: Invalid start time (Critical, Ok)"_s);
        QCOMPARE(saveWith(u"9:00"_s, {}), u"Halvic: Invalid event title (Critical, Ok)"_s);
        QVERIFY(window->isVisible());
        // A time that is none is refused by the column.
        window->txtEventStartTime->setText(u"early"_s);
        window->txtEventPurpose->setText(u"x"_s);
        window->cmdSave->click();
        QCOMPARE(m_errors->takeNumber(), -2147217887);
        QCOMPARE(m_folder->rows(everyNote), QStringList());
        QCOMPARE(m_folder->row("PRAGMA integrity_check"), u"ok"_s);
    }

    void aNoteWithoutMemberGoesThroughThePicker()
    {
        BoxAnswers boxes; // nothing is asked
        m_folder->execute("DELETE FROM \"Personal Information\"; INSERT INTO \"Personal Information\" "
                          "(PersonalInformationId, Active, \"First Name\", \"Middle Name\", \"Last Name\") VALUES "
                          "(11, 1, 'Ann', NULL, 'Cole'), (12, 0, 'Gone', '', 'Away'), (13, 1, 'Bea', 'C', 'Dunn')");
        desktop::MdiForm frame(u"MainWindow");
        frame.resize(1000, 760);
        frame.Show();
        for (const bool confirmed : {false, true}) { // closed by its border, or by Enter
            QPointer<frmMeeting> window = newNote({});
            window->lstEventType->setText(u"Member Meeting"_s);
            window->lstCategory->setText(u"Training"_s);
            window->txtEventPurpose->setText(u"Call"_s);
            window->txtEventNotes->setText(u"Text"_s);
            window->cmdSave->click();
            QTRY_VERIFY(!window);
            const QPointer<frmSelectClient> picker = child<frmSelectClient>(frame, "frmSelectClient");
            QVERIFY(picker->isVisible());
            QCOMPARE(m_folder->rows(everyNote), QStringList());
            QCOMPARE(itemsOf(*picker->lstClient), (QStringList{u"Cole  Ann"_s, u"Dunn C Bea"_s}));
            QCOMPARE(picker->lstClient->ListIndex(), 0);
            QCOMPARE(picker->Width(), 4800.0);
            QCOMPARE(picker->Height(), 5715.0);
            QTest::keyClick(picker->lstClient, Qt::Key_Down);
            if (confirmed)
                QTest::keyClick(picker->lstClient, Qt::Key_Return);
            else
                picker->parentWidget()->close();
            QTRY_VERIFY(!picker);
            const QStringList stored{
                u"NULL|13|2026-01-31 00:00:00|1899-12-30 14:05:00|1899-12-30 14:05:00|Member Meeting|"
                "Training|Call|Text"_s};
            QCOMPARE(m_folder->rows(everyNote), confirmed ? stored : QStringList());
        }
        m_folder->execute("UPDATE \"Personal Information\" SET Active = 0; DELETE FROM MeetingInfo");
        const std::unique_ptr<frmMeeting> window(newNote({}));
        window->txtEventPurpose->setText(u"Call"_s);
        window->cmdSave->click();
        QCOMPARE(m_errors->takeNumber(), 380); // nobody to choose
        QCOMPARE(m_folder->rows(everyNote), QStringList());
    }

    void aStoredNoteIsReadOnlyAndPrinted()
    {
        const std::unique_ptr<frmMeeting> window(desktop::showNew<frmMeeting>([](frmMeeting &note) {
            note.EventDate = u"1/30/2026"_s;
            note.EventType = u"Member Meeting"_s;
            note.EventStartTime = u"10:05 AM"_s;
            note.EventEndTime = u"10:25 AM"_s;
            note.EventPurpose = u"Annual dues"_s;
            note.EventCategory = u"Training"_s;
            note.EventNotes = u"First line\nSecond line, O'Brien & <b>"_s;
            note.setCaption(u"Tolmark View Event"_s);
        }));
        QCOMPARE(itemsOf(*window->lstEventType), QStringList{u"Member Meeting"_s});
        QCOMPARE(itemsOf(*window->lstCategory), QStringList{u"Training"_s});
        const auto texts = [&window] {
            return QStringList{window->txtEventDate->text(), window->txtEventStartTime->text(),
                               window->txtEventEndTime->text(), window->txtEventPurpose->text(),
                               window->txtEventNotes->text()};
        };
        const QStringList shown{u"1/30/2026"_s, u"10:05 AM"_s, u"10:25 AM"_s, u"Annual dues"_s,
                                u"First line\nSecond line, O'Brien & <b>"_s};
        QCOMPARE(texts(), shown);
        for (QWidget *box :
             std::initializer_list<QWidget *>{window->txtEventDate, window->txtEventStartTime, window->txtEventEndTime,
                                              window->txtEventPurpose, window->txtEventNotes}) {
            QTest::keyClicks(box, u"x"_s);
            QTest::keyClick(box, Qt::Key_Backspace);
        }
        QCOMPARE(texts(), shown);
        QStringList usable;
        for (const QPushButton *button : window->findChildren<QPushButton *>()) {
            if (button->isEnabled())
                usable << button->objectName();
        }
        QCOMPARE(usable, (QStringList{u"cmdCancel"_s, u"cmdPrint"_s}));
        window->cmdPrint->click(); // without a printer
        QCOMPARE(m_errors->takeNumber(), 482);
        const QString file = m_folder->path(u"note.pdf"_s);
        desktop::setPrintFile(file);
        window->cmdPrint->click();
        QVERIFY(window->isVisible());
        const QStringList lines =
            pdfText(file).replace(QRegularExpression(u" {2,}"_s), u"  "_s).remove(u'\f').split(u'\n');
        QCOMPARE(lines, (QStringList{u"Annual dues"_s, QString(), u"Date : 1/30/2026"_s, QString(),
                                     u"Start Time : 10:05 AM  End Time : 10:25 AM"_s, QString(), u"Notes:"_s, QString(),
                                     u"First line"_s, u"Second line, O'Brien & <b>"_s, QString()}));
    }

private:
    static constexpr auto everyNote = "SELECT MemberId, PersonalInformationId, MeetingDate, MeetingStartTime, "
                                      "MeetingEndTime, MeetingType, MeetingCatagory, MeetingSubject, MeetingNotes FROM "
                                      "MeetingInfo";
};

QTEST_MAIN(tst_Notes)
#include "tst_notes.moc"
