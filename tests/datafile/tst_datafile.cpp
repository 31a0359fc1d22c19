// The data file as its tool makes it: what the windows take for granted of its tables, and what must never happen to a
// file that exists.
#include "datafile/Check.h"
#include "datafile/Generator.h"
#include "datafile/Sample.h"
#include "datafile/Schema.h"
#include "platform/runtime/Date.h"
#include "support/DataFolder.h"
#include "support/Outcome.h"

#include <QTest>

#include <optional>

using namespace Qt::Literals::StringLiterals;

class tst_datafile : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void newFilesPassTheCheck()
    {
        const DataFolder folder(DataFolder::Content::None);
        datafile::createDataFile(folder.path(u"empty.mdb"_s));
        datafile::createSampleFile(folder.path(u"sample.mdb"_s));
        datafile::createGeneratedFile(folder.path(u"made.mdb"_s), {.members = 20});
        for (const QString &name : {u"empty.mdb"_s, u"sample.mdb"_s, u"made.mdb"_s})
            QCOMPARE(datafile::faultsOf(folder.path(name)), QStringList());
        QCOMPARE(folder.names(), (QStringList{u"empty.mdb"_s, u"made.mdb"_s, u"sample.mdb"_s})); // and no side file

        const DataFolder empty(DataFolder::Content::Empty);
        QCOMPARE(empty.row("PRAGMA journal_mode"), u"delete"_s);
        QCOMPARE(empty.row("SELECT group_concat(NodeName, '') FROM NodeInformation WHERE NodeActive = 1"),
                 u"ABCDEFGHIJKLMNOPQRSTUVWXYZ"_s);
        QCOMPARE(
            empty.row("SELECT count(*), (SELECT count(*) FROM MemberInformation) FROM Security WHERE UserLevel >= 99"),
            u"1|0"_s);
    }

    // Each change with the beginning of the line that tells it; none where the change is no fault.
    void checkFinds()
    {
        for (const auto &[change, fault] :
             {std::pair("DROP INDEX MeetingInfo_MemberId; ALTER TABLE MeetingInfo DROP COLUMN MeetingCatagory",
                        u"column [MeetingInfo].[MeetingCatagory] is missing"_s),
              {"DROP TABLE ReferenceInfo", u"table [ReferenceInfo] is missing"_s},
              {"DROP INDEX MemberInformation_LastName", u"index [MemberInformation_LastName] is missing"_s},
              {"DROP TABLE CategoryInfo; CREATE TABLE CategoryInfo (CategoryName TEXT, CategoryActive TEXT DEFAULT -1);"
               "INSERT INTO CategoryInfo VALUES ('Other', -1)",
               u"column [CategoryInfo].[CategoryActive] is declared \"TEXT\""_s},
              {"DROP TABLE CategoryInfo; CREATE TABLE CategoryInfo (CategoryName TEXT, CategoryActive BOOLEAN);"
               "INSERT INTO CategoryInfo VALUES ('Other', -1)",
               u"column [CategoryInfo].[CategoryActive] lacks its default -1"_s},
              {"DROP TABLE MemberType; CREATE TABLE MemberType (MemberTypeId INTEGER PRIMARY KEY, MemberType TEXT);"
               "INSERT INTO MemberType VALUES (1, 'Regular')",
               u"column [MemberType].[MemberTypeId] is no key"_s},
              {"INSERT INTO Contributions (ContributionDate) VALUES ('5/1/2003')",
               u"row 1 of [Contributions]: \"5/1/2003\" in column [ContributionDate] is not"_s},
              {"INSERT INTO Attachments (AttachmentsName, AttachmentVersion) VALUES ('a', 32768)",
               u"row 1 of [Attachments]: \"32768\""_s},
              {"INSERT INTO Attachments (AttachmentsName) VALUES ('../Tolmark.mdb')",
               u"row 1 of [Attachments]: the file cannot be opened under its name \"../Tolmark.mdb\""_s},
              {"INSERT INTO Attachments (AttachmentsName) VALUES ('a')",
               u"row 1 of [Attachments]: the file \"a\" has no content; DELETE"_s},
              {"INSERT INTO Resources (DocumentId) VALUES (7)", u"row 7 of [Resources]: the file"_s},
              {"INSERT INTO MemberInformation (LastName) VALUES ('élan'), ('Éclair')",
               u"\"Éclair\" and 1 more are in no group of the explorers; INSERT INTO NodeInformation (NodeName, "
               "NodeActive) VALUES ('É', 1)"_s},
              {"UPDATE NodeInformation SET NodeActive = 0 WHERE NodeName = 'P';"
               "INSERT INTO EventInformation (EventName) VALUES ('Picnic')",
               u"\"Picnic\" is in no group"_s},
              {"INSERT INTO MemberInformation (FirstName) VALUES ('Ann')", u"\"\" is in no group"_s},
              {"INSERT INTO TabInfo (TabNam) VALUES ('Skills')", u"page \"Skills\" has no table"_s},
              {"INSERT INTO TabInfo (TabNam) VALUES ('Security')", u"page \"Security\": its table lacks"_s},
              {"INSERT INTO FieldInfo (TabId, FieldName) VALUES (1, 'Shoe')",
               u"page \"Personal Information\": its table has no column for the field \"Shoe\""_s},
              {"INSERT INTO TabInfo (TabNam) VALUES ('My \"Page');"
               "CREATE TABLE \"My \"\"Page\" (PersonalInformationId INTEGER)",
               u"page \"My \"Page\": no row in its table for 1 of the"_s},
              {"CREATE TABLE More (Id INTEGER); ALTER TABLE Security ADD COLUMN Shoe TEXT", QString()},
              {"DROP TABLE CategoryInfo; CREATE TABLE categoryinfo (CATEGORYNAME VARCHAR(50), CategoryActive BOOL "
               "DEFAULT -1); INSERT INTO CategoryInfo VALUES ('Other', -1)",
               QString()}}) {
            const DataFolder folder(DataFolder::Content::Empty);
            folder.execute(change);
            const QString faults = datafile::faultsOf(folder.file()).join(u'\n');
            QVERIFY2(fault.isEmpty() ? faults.isEmpty() : (u'\n' + faults).contains(u'\n' + fault),
                     qPrintable(fault + u" is not in "_s + faults));
        }
    }

    void checkFindsATornPage()
    {
        const DataFolder folder;
        QFile torn(folder.file());
        QVERIFY(torn.open(QIODevice::ReadWrite) && torn.seek(torn.size() / 4096 / 2 * 4096));
        torn.write(QByteArray(4096, 'x'));
        torn.close();
        QStringList faults;
        if (errorNumberOf([&] { faults = datafile::faultsOf(folder.file()); }) == 0)
            QVERIFY(!faults.isEmpty());
        const QString missing = folder.path(u"none.mdb"_s);
        QVERIFY(errorNumberOf([&] { datafile::faultsOf(missing); }) != 0);
        QVERIFY(!QFile::exists(missing)); // looking makes nothing
    }

    void nothingIsOverwritten()
    {
        const DataFolder folder(DataFolder::Content::None);
        const QString mine = folder.write(u"file"_s, "mine");
        QVERIFY(QDir(folder.folder()).mkdir(u"folder"_s));
        QVERIFY(QFile::link(mine, folder.path(u"link"_s)));
        QVERIFY(QFile::link(folder.path(u"nowhere"_s), folder.path(u"dangling"_s)));
        const QStringList before = folder.names();
        for (const auto &[name, number] : {std::pair(u"file"_s, 58),
                                           {u"folder"_s, 58},
                                           {u"link"_s, 58},
                                           {u"dangling"_s, 58},
                                           {u"no/x.mdb"_s, 76},
                                           {u"file/x.mdb"_s, 76}}) {
            const QString path = folder.path(name);
            QCOMPARE(errorNumberOf([&] { datafile::createDataFile(path); }), number);
            QCOMPARE(errorNumberOf([&] { datafile::createSampleFile(path); }), number);
            QCOMPARE(errorNumberOf([&] { datafile::createGeneratedFile(path, {.members = 1}); }), number);
        }
        QCOMPARE(folder.names(), before);
        QCOMPARE(contentOf(mine), QByteArray("mine"));
    }

    void failedCreationLeavesNothing()
    {
        const DataFolder folder(DataFolder::Content::None);
        const auto fail = [](data::Database &file) { file.execute("INSERT INTO NoSuchTable VALUES (1)"); };
        QVERIFY(errorNumberOf([&] { datafile::createDataFile(folder.file(), fail); }) != 0);
        QCOMPARE(folder.names(), QStringList());

        // Something takes the path while the file is being made.
        const auto takePath = [&folder](data::Database &) { folder.write(u"Tolmark.mdb"_s, "theirs"); };
        QCOMPARE(errorNumberOf([&] { datafile::createDataFile(folder.file(), takePath); }), 58);
        QCOMPARE(folder.names(), QStringList{u"Tolmark.mdb"_s});
        QCOMPARE(contentOf(folder.file()), QByteArray("theirs"));
    }

    // The windows add rows without these columns.
    void defaults()
    {
        const DataFolder folder(DataFolder::Content::Empty);
        folder.execute(
            "DELETE FROM TabInfo; DELETE FROM FieldInfo; DELETE FROM Security; DELETE FROM \"Personal Information\"");
        for (const QByteArray column :
             {"-1 Active MemberInformation", "-1 Active EventInformation", "1 Active \"Personal Information\"",
              "1 TabEdit TabInfo", "1 FieldEdit FieldInfo", "0 UserLevel Security", "today EventDate EventInformation",
              "today ContributionDate Contributions", "now AttachmentsDate Attachments",
              "now MeetingEnteredDate MeetingInfo", "now DocumentDate Resources"}) {
            const QByteArrayList parts = column.split(' ');
            const QByteArray table = column.mid(parts[0].size() + parts[1].size() + 2);
            folder.execute("DELETE FROM " + table + "; INSERT INTO " + table + " DEFAULT VALUES");
            const QString value = folder.row("SELECT " + parts[1] + " FROM " + table);
            if (parts[0] != "today" && parts[0] != "now") {
                QVERIFY2(value == QString::fromLatin1(parts[0]), column);
                continue;
            }
            const std::optional<runtime::Date> moment = runtime::Date::fromIsoText(value);
            QVERIFY2(moment && value.size() == 19 && (parts[0] == "now" || !moment->hasTime()), qPrintable(value));
            QVERIFY(moment->day().daysTo(QDate::currentDate()) <= 1); // midnight may have passed since
        }
    }

    void prefixQueriesUseTheIndex()
    {
        const DataFolder folder(DataFolder::Content::None);
        datafile::createGeneratedFile(folder.file(), {.members = 200});
        for (const auto &[query, index] :
             {std::pair(
                  "SELECT count(*) FROM MemberInformation WHERE LastName >= 'S' AND LastName < 'T' AND Active <> 0",
                  u"COVERING INDEX MemberInformation_LastName"_s),
              {"SELECT * FROM Attachments WHERE AttachmentsName = 'A.txt' ORDER BY AttachmentVersion DESC",
               u"Attachments_AttachmentsName"_s},
              {"SELECT DISTINCT AttachmentExtension FROM Attachments",
               u"COVERING INDEX Attachments_AttachmentExtension"_s},
              {"SELECT DocumentId, ObjectIndex, DocumentName, DocumentDate, DocuemntVersion, NULL FROM Resources WHERE "
               "ObjectIndex = 5",
               u"SEARCH Resources USING COVERING INDEX Resources_ObjectIndex"_s}}) {
            const QString plan = folder.rows(QByteArray("EXPLAIN QUERY PLAN ") + query).join(u'\n');
            QVERIFY2(plan.contains(index) && !plan.contains(u"USE TEMP B-TREE"_s), qPrintable(plan));
        }
    }
};

QTEST_GUILESS_MAIN(tst_datafile)
#include "tst_datafile.moc"
