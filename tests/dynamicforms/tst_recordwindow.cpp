// The record window as it opens: its pages made from the form, its lists, and the change from one to another.
#include "dynamicforms/OpenRecord.h"
#include "dynamicforms/frmOpenRecord.h"
#include "shell/session/Session.h"
#include "support/StoreTest.h"
#include "support/UnitedStates.h"

using namespace Qt::Literals::StringLiterals;

class tst_RecordWindow : public StoreTest
{
    Q_OBJECT
private Q_SLOTS:
    void init() { open(DataFolder::Content::Sample); }
    void cleanup() { close(); }

    void pagesAreBuiltFromTheForm()
    {
        m_folder->execute("UPDATE FieldInfo SET FieldName = '<b>A</b> & B' WHERE FieldName = 'Availability'");
        OpenRecord record;
        QCOMPARE(record->Caption(), u"Ashworth B. Helen"_s);
        QCOMPARE(record.tabs(), (QStringList{u"Personal Information"_s, u"Volunteer Profile"_s, u"Attachments"_s,
                                             u"Resources"_s, u"Conferences/Meetings"_s}));
        QCOMPARE(record.texts(), u"Ms.|Helen|B.|Ashworth|12 Garden Street||Portland|Maine|04102|207-555-0170||"
                                 "207-555-0171|helen.ashworth@example.org|Coordinates the volunteers"_s);
        record.turnTo(u"Volunteer Profile"_s);
        QCOMPARE(record.texts(), u"Organising; first aid||Yes|1994"_s);
        const auto *label = child<desktop::Label>(*record->Frame1, "Label1(2)");
        QCOMPARE(record.box(2)->geometry(), QRect(213, 67, 187, 25));
        QCOMPARE(label->geometry(), QRect(13, 67, 187, 25));
        QVERIFY(label->isVisible());
        QCOMPARE(desktop::captionOf(label->text()), u"<b>A</b> & B"_s);
        QVERIFY(label->textFormat() == Qt::PlainText && label->buddy() == record.box(2));
        record->resize(300, 200);
        QCOMPARE(record->size(), QSize(962, 733));
        QTRY_COMPARE(Session::current().ActiveRecordId, u"2"_s);
    }

    // By the order of the rows, which need not be that of the places.
    void tabVisitsTheBoxesInTheOrderOfTheRows()
    {
        m_folder->execute("UPDATE FieldInfo SET FieldDisplayOrder = 1 - FieldDisplayOrder");
        OpenRecord record;
        QVERIFY(QTest::qWaitForWindowActive(record.operator->()));
        QCOMPARE(record->focusWidget(), record.box(1));
        for (const QKeyCombination &keys : {Qt::ALT | Qt::Key_V, Qt::CTRL | Qt::Key_PageDown}) {
            record->TabStrip1->setSelectedItem(1);
            record.box(1)->setFocus();
            QTest::keyClick(record.box(1), keys.key(), keys.keyboardModifiers()); // to the page behind it, and its tab
            QCOMPARE(record->focusWidget(), record->TabStrip1);
        }
        QStringList visited;
        while (visited.size() < 8) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            visited << QApplication::focusWidget()->toolTip() + QApplication::focusWidget()->objectName();
        }
        QCOMPARE(visited.join(u' '), u"SinceText1(1) DriverText1(2) AvailabilityText1(3) SkillsText1(4) cmdEdit "
                                     "cmdDelete cmdClose TabStrip1"_s);
    }

    void whatCannotBeShownLeavesABoxEmpty()
    {
        for (const auto &[change, shown] :
             {std::pair("UPDATE [Volunteer Profile] SET Skills = NULL", u"|Evenings|Yes|1994"_s),
              {"ALTER TABLE [Volunteer Profile] DROP COLUMN Skills", u"|Evenings|Yes|1994"_s},
              {"ALTER TABLE [Volunteer Profile] RENAME PersonalInformationId TO Link", u"|||"_s},
              {"DELETE FROM [Volunteer Profile]", u"|||"_s},
              {"DROP TABLE [Volunteer Profile]", u"|||"_s},
              {"UPDATE TabInfo SET TabNam = 'A] & <b>x</b>' WHERE TabId = 2", u"|||"_s}}) {
            m_folder->execute(change);
            OpenRecord record;
            record.turnTo(record.tabs().at(1));
            QCOMPARE(record.texts(), shown);
        }
    }

    void thePageDecidesTheButtons()
    {
        m_folder->execute("INSERT INTO TabInfo (TabNam, TabDescription) VALUES ('No fields', '')");
        OpenRecord record;
        const QStringList commands{u"UpLoad"_s, u"Assign Resource"_s, u"Add Event"_s};
        for (int list = 0; list < 3; ++list) {
            record.turnTo(record.tabs().at(3 + list));
            QCOMPARE(record.buttons(), commands[list] + u" - - &Close"_s);
            QVERIFY(record->ListView1->isVisible());
            record.turnTo(u"No fields"_s);
            QCOMPARE(record.buttons(), u"Edit &Delete - &Close"_s);
            QVERIFY(!record->ListView1->isVisible() && record.texts().isEmpty());
        }
    }

    void theListsShowWhatThePersonHas()
    {
        const UnitedStates region;
        m_folder->execute(
            "DELETE FROM Attachments; DELETE FROM ReferenceInfo; DELETE FROM Resources;"
            "INSERT INTO Attachments (MemberId, PersonalInformationId, AttachmentsName, AttachmentVersion, "
            "AttachmentsDate) VALUES (2, NULL, 'a', 1, NULL), (NULL, 2, 'b', 1, NULL), (NULL, 2, 'a', 2, '2003-01-06 "
            "00:00:00'), (NULL, 2, 'a', 3, NULL), (2, 3, 'c', 1, NULL);"
            "INSERT INTO Resources (DocumentId, ObjectIndex, DocumentName, DocumentDate, DocuemntVersion) VALUES"
            " (90, 3, 'Rules', '2003-01-06 00:00:00', 4), (91, 99, NULL, NULL, NULL);"
            "INSERT INTO ReferenceInfo VALUES (2, 90), (2, 91), (3, 90)");
        OpenRecord record;
        record.turnTo(u"Attachments"_s);
        QCOMPARE(record.lines(), (QStringList{u"a||3"_s, u"a|1/6/2003|2"_s, u"b||1"_s}));
        record.turnTo(u"Resources"_s);
        QCOMPARE(record.lines(), (QStringList{u"Bylaws|90|1/6/2003|Rules|4"_s, u"|91|||"_s}));
        record.turnTo(u"Conferences/Meetings"_s);
        QCOMPARE(record.lines().at(0), u"4/2/2003|Member Conference|9:00:00 AM|10:45:00 AM|01:45|Open house|"
                                       "Volunteering|Who brings what."_s);
        OpenRecord nothing(5);
        nothing.turnTo(u"Resources"_s);
        QCOMPARE(nothing.lines(), QStringList(u"||||"_s));
        nothing.turnTo(u"Conferences/Meetings"_s);
        QCOMPARE(nothing.lines(), QStringList());
        m_folder->execute("INSERT INTO MeetingInfo (PersonalInformationId, MeetingStartTime, MeetingEndTime) VALUES "
                          "(5, '1899-12-30 10:00:50', '1899-12-30 10:01:10'),"
                          "(5, '2003-07-01 22:30:00', '2003-07-06 02:35:00'),"
                          "(5, '1899-12-30 10:45:00', '1899-12-30 09:00:00'),"
                          "(5, '1899-12-30 10:45:00', NULL), (5, NULL, '1899-12-30 10:45:00')");
        nothing.turnTo(u"Conferences/Meetings"_s);
        QStringList durations;
        for (const QString &line : nothing.lines())
            durations << line.section(u'|', 4, 4);
        QCOMPARE(durations.join(u' '), u"00:01 100:05 -01:-45  "_s);
    }

    void whatCannotBeLoadedEndsTheProgram()
    {
        for (const auto &[change, error] : {std::pair("DROP TABLE MeetingInfo", -2147217865),
                                            {"UPDATE TabInfo SET TabDescription = NULL", 94},
                                            {"DELETE FROM FieldInfo; UPDATE TabInfo SET TabDescription = ''", 9},
                                            {"DROP TABLE TabInfo", -2147217865}}) {
            m_folder->execute(change);
            OpenRecord record;
            if (record.isOpen())
                record.turnTo(u"Conferences/Meetings"_s);
            QCOMPARE(m_errors->takeNumber(), error);
        }
    }

    void theRecordToOpenIsChosenAmongTheActive()
    {
        QPointer<frmOpenRecord> picker = desktop::showNew<frmOpenRecord>();
        desktop::ListBox &list = *picker->lstPerson;
        QCOMPARE(list.count(), 5); // the sixth has been deleted
        QCOMPARE(list.Text(), u"Office  General"_s);
        const QPoint place = list.visualItemRect(list.item(1)).center();
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, place);
        const auto record = openedWindow<DisplayInformation>();
        QVERIFY(record);
        QCOMPARE(record->RecordId, qint16(2));
        QCOMPARE(record->Caption(), u"Ashworth B. Helen"_s);
        QTRY_VERIFY(!picker);
        m_folder->execute("UPDATE [Personal Information] SET Active = 0");
        picker = desktop::showNew<frmOpenRecord>();
        QVERIFY(!picker->cmdOpen->isEnabled());
        QTest::keyClick(picker->lstPerson, Qt::Key_Escape);
        QTRY_VERIFY(!picker);
    }
};

QTEST_MAIN(tst_RecordWindow)
#include "tst_recordwindow.moc"
