// The record window's buttons and list commands: editing, a new person, deleting, attachments, documents and notes.
#include "dynamicforms/OpenRecord.h"
#include "events/frmMeeting.h"
#include "library/frmDocumentExp.h"
#include "support/Launches.h"
#include "support/StoreTest.h"
#include "support/UnitedStates.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString personal = u"Personal Information"_s;
const QString volunteer = u"Volunteer Profile"_s;

enum Personal : int { Title = 1, FirstName, City = 7 };
enum Volunteer : int { Skills = 1, Availability, Driver, Since };

// With a line of the list selected.
void choose(const OpenRecord &record, int line, const char *item)
{
    record->ListView1->setCurrentItem(&record->ListView1->ListItems(line));
    child<QAction>(*record->MnuOptionsView, item)->trigger();
}

// Somewhere in the first line of the list.
void doubleClick(const OpenRecord &record)
{
    QTest::mouseDClick(record->ListView1->viewport(), Qt::LeftButton, {}, QPoint(20, 10));
}

} // namespace

class tst_RecordEditing : public StoreTest
{
    Q_OBJECT
private Q_SLOTS:
    void init() { open(DataFolder::Content::Sample, "DELETE FROM Attachments"); }
    void cleanup() { close(); }

    // The selected page's values come from its boxes, the others' from the rows; of these the change of pages has left
    // out the first one.
    void editingAndSaving()
    {
        OpenRecord record;
        record.type(City, u"Bath"_s);
        QCOMPARE(record.box(City)->text(), u"Portland"_s); // locked
        record->cmdEdit->setFocus();
        QTest::keyClick(record->cmdEdit, Qt::Key_Return);
        QCOMPARE(record->focusWidget(), record.box(1)); // not on "Save"
        QCOMPARE(record.buttons(), u"- Save - -"_s);
        QCOMPARE(record.tabs(), (QStringList{personal, volunteer}));
        record.type(Title, u"Dr."_s);
        record.type(FirstName, u"Hel'en"_s);
        record.turnTo(volunteer);
        record.type(Driver, u"No"_s);
        record.turnTo(personal);
        record.turnTo(volunteer);
        QCOMPARE(record.texts(), u"Organising; first aid|Evenings|No|1994"_s);
        record.type(Since, u"1995"_s);
        OpenRecord::press(record->cmdDelete);
        QCOMPARE(m_folder->rows("SELECT Title, [First Name], Comments FROM [Personal Information] "
                                "WHERE PersonalInformationId IN (2, 3)"),
                 (QStringList{u"Ms.|Hel'en|Coordinates the volunteers"_s, u"Mr.|Émile|"_s}));
        QCOMPARE(m_folder->row("SELECT Skills, Driver, Since FROM [Volunteer Profile] WHERE PersonalInformationId = 2"),
                 u"Organising; first aid|No|1995"_s);
        QCOMPARE(record->EditMode, QString());
        QCOMPARE(record.buttons(), u"Edit Delete - &Close"_s);
        QCOMPARE(record->focusWidget(), record.box(Skills)); // not on "Delete"
        QCOMPARE(record.tabs(), (QStringList{personal, volunteer, u"Attachments"_s, u"Resources"_s}));
        record.turnTo(personal);
        QVERIFY(!record.box(City)->isReadOnly());
        OpenRecord::press(record->cmdEdit); // takes three tabs away, though two fixed pages stand
        QCOMPARE(record.tabs(), QStringList(personal));
        record.type(Since, u"1996"_s); // on the page that is gone: no tab is selected
        OpenRecord::press(record->cmdDelete);
        QCOMPARE(m_folder->row("SELECT City, Since FROM [Personal Information] JOIN [Volunteer Profile] "
                               "USING (PersonalInformationId) WHERE PersonalInformationId = 2"),
                 u"Portland|1995"_s);
        QCOMPARE(record.tabs(), (QStringList{personal, u"Attachments"_s, u"Resources"_s}));
        record.turnTo(personal);
        QCOMPARE(record.box(City)->text(), u"Portland"_s);
    }

    // What nobody touched comes back byte for byte, also what no box of one line can show; Null becomes empty.
    void untouchedValuesStayAsTheyWere()
    {
        m_folder->execute(
            "UPDATE [Personal Information] SET Comments = printf('%.*c', 40000, 'x') || char(13, 10, 160, "
            "8232, 9) || 'end', City = ' a' || char(10) || 'b ' WHERE PersonalInformationId = 4;"
            "UPDATE [Volunteer Profile] SET Skills = 'a' || char(13, 10) || 'b' || char(160) || "
            "printf('%.*c', 33000, 'y') WHERE PersonalInformationId = 4");
        constexpr const char *values = "SELECT length(Comments), hex(substr(Comments, -9)), hex(City), length(Skills), "
                                       "hex(substr(Skills, 1, 5)), [Last Name] FROM [Personal Information] JOIN "
                                       "[Volunteer Profile] USING (PersonalInformationId) WHERE "
                                       "PersonalInformationId = 4";
        const QString before = m_folder->row(values);
        OpenRecord record(4);
        OpenRecord::press(record->cmdEdit);
        record.turnTo(volunteer);
        record.turnTo(personal);
        record.type(Title, u"Ms."_s);
        OpenRecord::press(record->cmdDelete);
        QCOMPARE(m_folder->row(values), before);
        QCOMPARE(m_folder->row("SELECT Title, [Address Two], Driver FROM [Personal Information] JOIN "
                               "[Volunteer Profile] USING (PersonalInformationId) WHERE PersonalInformationId = 4"),
                 u"Ms.||"_s);
    }

    void editingEndsTheProgramWhereARowOrColumnIsMissing()
    {
        constexpr const char *noRow = "DELETE FROM [Volunteer Profile] WHERE PersonalInformationId = 2";
        for (const auto &[change, isWhileEditing, error] :
             {std::tuple("ALTER TABLE [Volunteer Profile] DROP Since", false, 3265),
              {noRow, true, 3021},
              {noRow, false, 3021},
              {"DROP TABLE [Volunteer Profile]", false, -2147217865}}) {
            if (isWhileEditing)
                m_folder.emplace(DataStoreFolder::Content::Sample);
            OpenRecord record;
            if (isWhileEditing)
                OpenRecord::press(record->cmdEdit);
            m_folder->execute(change);
            OpenRecord::press(isWhileEditing ? record->cmdDelete : record->cmdEdit);
            QCOMPARE(m_errors->takeNumber(), error);
        }
    }

    // The boxes of a page stay empty in silence where the file cannot be read.
    void aPageThatWasNotReadIsNotSavedOver()
    {
        OpenRecord record;
        QVERIFY(QFile::rename(m_folder->file(), m_folder->path(u"away"_s)));
        record.turnTo(volunteer);
        QCOMPARE(record.texts(), u"|||"_s);
        QVERIFY(QFile::rename(m_folder->path(u"away"_s), m_folder->file()));
        OpenRecord::press(record->cmdEdit);
        record.turnTo(personal);
        OpenRecord::press(record->cmdDelete);
        QCOMPARE(m_errors->takeNumber(), -2147467259);
        QCOMPARE(m_folder->row("SELECT Skills, Since FROM [Volunteer Profile] WHERE PersonalInformationId = 2"),
                 u"Organising; first aid|1994"_s);
    }

    // The user is locked out of the boxes; what else gets into them is written as in editing.
    void aNewPersonGetsARowOnEveryPage()
    {
        for (const QString &way : {u"typed"_s, u"set"_s, u"set and left"_s}) {
            OpenRecord record(0, u"New"_s);
            QCOMPARE(record.tabs(), (QStringList{personal, volunteer}));
            for (const int field : {int(Title), int(City)})
                way == u"typed" ? record.type(field, u"x"_s) : record.box(field)->setText(u"x"_s);
            if (way == u"set and left")
                record.turnTo(volunteer);
            QCOMPARE(record.buttons(), u"Save - - Cancel"_s);
            OpenRecord::press(record->cmdEdit);
            QVERIFY(!record.isOpen());
        }
        QCOMPARE(m_folder->rows("SELECT PersonalInformationId, Active, Title, City, Since FROM [Personal Information] "
                                "LEFT JOIN [Volunteer Profile] USING (PersonalInformationId) "
                                "WHERE PersonalInformationId > 6"),
                 (QStringList{u"7|1|||"_s, u"8|1|x|x|"_s, u"9|1||x|"_s}));
    }

    void deletingOnlyMarksThePerson()
    {
        BoxAnswers boxes({QMessageBox::No, QMessageBox::Yes, QMessageBox::Yes});
        OpenRecord record;
        OpenRecord::press(record->cmdDelete);
        QVERIFY(record.isOpen());
        QCOMPARE(m_folder->row("SELECT sum(Active) FROM [Personal Information]"), u"5"_s);
        OpenRecord::press(record->cmdDelete);
        QVERIFY(!record.isOpen());
        QCOMPARE(m_folder->row("SELECT sum(Active), sum(Active * (PersonalInformationId = 2)), count(*) FROM [Personal "
                               "Information]"),
                 u"4|0|6"_s);
        QCOMPARE(boxes.seen[0].whole(), u"Quillon: You are about to delete this client from the database\r\n"
                                        "Do you want to continue (NoIcon, Yes|No)"_s);
        OpenRecord nobody(77);
        OpenRecord::press(nobody->cmdDelete);
        QCOMPARE(m_errors->takeNumber(), 3021);
    }

    void versionsCountTheRowsOfANameWhoeverOwnsThem()
    {
        m_folder->execute("INSERT INTO Attachments (MemberId, PersonalInformationId, AttachmentsName, "
                          "AttachmentVersion) VALUES (NULL, 3, 'A.DOC', 1), (1, NULL, 'a.doc', 9)");
        OpenRecord record;
        record.turnTo(u"Attachments"_s);
        FileAnswers files({m_folder->write(u"a.doc"_s, "one"), QString(), m_folder->write(u"it's.doc"_s, "two"),
                           m_folder->write(u"b.doc"_s, "")});
        for (const int error : {0, 0, -2147217900, 0}) { // the second is cancelled
            OpenRecord::press(record->cmdEdit);
            QCOMPARE(m_errors->takeNumber(), error);
        }
        QCOMPARE(files.title, u"OPEN FILE"_s);
        QCOMPARE(files.filters, (QStringList{u"All files (*)"_s, u"DOC files (*.doc)"_s, u"PDF files (*.pdf)"_s}));
        QCOMPARE(record->ListView1->ListItems.Count(), 2);
        QCOMPARE(
            m_folder->rows("SELECT AttachmentsName, AttachmentVersion, MemberId, hex(Attachments), AttachmentsDate "
                           "IS NULL FROM Attachments WHERE PersonalInformationId = 2"),
            (QStringList{u"a.doc|3|NULL|6F6E6500|0"_s, u"b.doc|1|NULL|00|0"_s}));
    }

    void anAttachmentIsViewedAndSaved()
    {
        m_folder->execute("INSERT INTO Attachments (PersonalInformationId, AttachmentsName, AttachmentVersion, "
                          "Attachments) VALUES (3, 'a.txt', 1, x'00'), (2, 'a.txt', 1, x'6F6C6400'), "
                          "(2, 'a.txt', 2, x'6E657700')");
        OpenRecord record;
        record.turnTo(u"Attachments"_s);
        QTest::mouseClick(record->ListView1->viewport(), Qt::RightButton, {}, QPoint(20, 10));
        QVERIFY(record->MnuOptionsView->isVisible());
        Launches launches;
        choose(record, 2, "MnuView");
        QCOMPARE(launches.paths, QStringList(m_folder->path(u"temp/a.txt"_s)));
        QCOMPARE(contentOf(launches.paths[0]), QByteArray("old\0", 4));
        QTest::keyClick(record->ListView1, Qt::Key_Return);
        QCOMPARE(launches.paths.size(), 2);
        FileAnswers files({m_folder->path(u"saved"_s), QString()});
        choose(record, 1, "MnuSaveAs");
        QCOMPARE(files.name, u"a.txt"_s);
        QCOMPARE(contentOf(m_folder->path(u"saved"_s)), QByteArray("new\0", 4));
        choose(record, 1, "MnuSaveAs"); // cancelled
        QVERIFY(QDir(m_folder->path(u"temp"_s)).removeRecursively());
        choose(record, 1, "MnuView");
        QCOMPARE(m_errors->takeNumber(), 76);
        m_folder->execute("DELETE FROM Attachments");
        choose(record, 1, "MnuSaveAs");
        QCOMPARE(m_errors->takeNumber(), 3021);
    }

    void aDocumentIsAssignedAndAnEventShown()
    {
        const UnitedStates region;
        OpenRecord record;
        record.turnTo(u"Resources"_s);
        QTest::mouseClick(record->ListView1->viewport(), Qt::RightButton, {}, QPoint(20, 10));
        QVERIFY(!record->MnuOptionsView->isVisible());
        doubleClick(record);
        OpenRecord::press(record->cmdEdit);
        const auto library = openedWindow<frmDocumentExp>();
        QVERIFY(library && !library->adminFunction);
        QCOMPARE(library->Caption() + library->PersonalInformationId, u"Resource Manager Browser2"_s);
        record.turnTo(u"Conferences/Meetings"_s);
        OpenRecord::press(record->cmdEdit);
        QVERIFY(!openedWindow<frmMeeting>()); // neither of these
        doubleClick(record);
        const auto note = openedWindow<frmMeeting>();
        QVERIFY(note && !note->AddView);
        QCOMPARE((QStringList{note->Caption(), note->EventDate, note->EventType, note->EventStartTime,
                              note->EventEndTime, note->EventPurpose, note->EventCategory, note->EventNotes}),
                 (QStringList{u"View Event"_s, u"4/2/2003"_s, u"Member Conference"_s, u"9:00:00 AM"_s, u"10:45:00 AM"_s,
                              u"Open house"_s, u"Volunteering"_s, u"Who brings what."_s}));
        OpenRecord without(5);
        without.turnTo(u"Conferences/Meetings"_s);
        doubleClick(without);
        QCOMPARE(m_errors->takeNumber(), 91);
    }
};

QTEST_MAIN(tst_RecordEditing)
#include "tst_recordediting.moc"
