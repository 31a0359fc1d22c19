// The sample organisation and the generated ones: whole, well typed and the same every time.
#include "datafile/Generator.h"
#include "support/DataFolder.h"
#include "support/Outcome.h"

#include <QDateTime>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class tst_sample : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    // Each query looks for what must not be.
    void sampleIsWhole()
    {
        const DataFolder folder;
        for (const QByteArray table : {"EmployerInformation", "MemberInterest", "EventMemberInfo", "Contributions",
                                       "Attachments", "MeetingInfo"})
            QCOMPARE(folder.row("SELECT MemberId FROM " + table +
                                " WHERE MemberId NOT IN (SELECT MemberId FROM MemberInformation)"),
                     QString());
        // Labels and boxes of a page, 375 twips high and of one width, that lie on each other.
        const QByteArray boxes =
            "(SELECT TabId, FieldName, fieldLeft AS x, fieldTop AS y, fieldWidth AS w FROM FieldInfo UNION ALL "
            "SELECT TabId, FieldName || ' (label)', labelLeft, labelTop, fieldWidth FROM FieldInfo)";
        for (const QByteArray &query : QByteArrayList{
                 "SELECT 1 FROM Attachments WHERE (MemberId IS NULL) = (PersonalInformationId IS NULL)",
                 // Versions run from 1 without a gap: of a name over all owners, of a document within its node.
                 "SELECT AttachmentsName FROM Attachments GROUP BY AttachmentsName "
                 "HAVING max(AttachmentVersion) <> count(DISTINCT AttachmentVersion) OR count(*) <> "
                 "max(AttachmentVersion)",
                 "SELECT DocumentName FROM Resources GROUP BY ObjectIndex, DocumentName "
                 "HAVING max(DocuemntVersion) <> count(DISTINCT DocuemntVersion) OR count(*) <> max(DocuemntVersion)",
                 // A stored file ends in a zero byte and has no other; an empty file is that byte alone.
                 "SELECT 1 FROM Attachments WHERE instr(Attachments, x'00') <> length(Attachments)",
                 "SELECT 1 FROM Resources WHERE instr(Document, x'00') <> length(Document)",
                 "SELECT a.FieldName, b.FieldName FROM " + boxes + " AS a JOIN " + boxes +
                     " AS b ON a.TabId = b.TabId AND a.FieldName < b.FieldName AND a.x < b.x + b.w "
                     "AND b.x < a.x + a.w AND a.y < b.y + 375 AND b.y < a.y + 375"})
            QCOMPARE(folder.row(query), QString());
        // The tree: numbered from 1 without a gap, parents before children, one root.
        QCOMPARE(
            folder.row("SELECT count(*) = max(ObjectIndex), min(ObjectIndex), sum(ObjectParentIndex >= ObjectIndex), "
                       "sum(ObjectType = 'Root') FROM ObjectTbl"),
            u"1|1|0|1"_s);
    }

    // The windows put what they write back into quotes as it is, so an apostrophe in the sample would end the program
    // at a newcomer's first Update.
    void sampleHasNoApostrophes()
    {
        const DataFolder folder;
        const QStringList columns =
            folder.rows("SELECT t.name, c.name FROM sqlite_master AS t, pragma_table_info(t.name) AS c "
                        "WHERE t.type = 'table' AND t.name NOT LIKE 'sqlite_%' AND c.type LIKE '%TEXT'");
        QVERIFY(columns.size() > 60);
        for (const QString &line : columns)
            QCOMPARE(folder.row(u"SELECT \"%2\" FROM \"%1\" WHERE instr(\"%2\", char(39))"_s
                                    .arg(line.section(u'|', 0, 0), line.section(u'|', 1))
                                    .toUtf8()),
                     QString());
    }

    void samplesAreEqual()
    {
        const DataFolder folder(DataFolder::Content::None);
        datafile::createSampleFile(folder.path(u"a.mdb"_s));
        const qint64 second = QDateTime::currentSecsSinceEpoch();
        QTRY_VERIFY(QDateTime::currentSecsSinceEpoch() > second); // a moment of "now" in the file would differ
        datafile::createSampleFile(folder.path(u"b.mdb"_s));
        QVERIFY(contentOf(folder.path(u"a.mdb"_s)).size() > 100'000);
        QVERIFY(contentOf(folder.path(u"a.mdb"_s)) == contentOf(folder.path(u"b.mdb"_s)));
    }

    void generatedFileFollowsItsSeed()
    {
        const DataFolder folder(DataFolder::Content::None);
        const DataFolder other(DataFolder::Content::None);
        datafile::createGeneratedFile(folder.file(), {.seed = 7});
        datafile::createGeneratedFile(folder.path(u"again.mdb"_s), {.seed = 7});
        datafile::createGeneratedFile(other.file(), {.seed = 8});
        QVERIFY(contentOf(folder.file()) == contentOf(folder.path(u"again.mdb"_s)));
        for (const char *query : {"SELECT FirstName FROM MemberInformation", "SELECT MemberId FROM MemberInterest",
                                  "SELECT hex(Attachments) FROM Attachments"})
            QVERIFY2(folder.rows(query) != other.rows(query), query);
        // The same on every system: the first member of seed 7.
        QCOMPARE(folder.row("SELECT FirstName, LastName, AddressOne, City FROM MemberInformation WHERE MemberId = 1"),
                 u"Jin|Brown|2935 Broadway|Raleigh"_s);
    }

    void generatedFileHasItsCounts()
    {
        const DataFolder folder(DataFolder::Content::None);
        datafile::GeneratorOptions options{
            .members = 3000, .inactivePercent = 10, .crowd = 2000, .crowdInitial = 'Q', .interests = 17};
        options.contributions = 16;
        options.assignedEvents = 15;
        options.notes = 14;
        options.attachments = 600;
        options.attachmentBytes = 12'345;
        options.events = 12;
        datafile::createGeneratedFile(folder.file(), options);
        QCOMPARE(folder.row("SELECT (SELECT count(*) FROM MemberInterest), (SELECT count(*) FROM Contributions), "
                            "(SELECT count(*) FROM EventMemberInfo), (SELECT count(*) FROM MeetingInfo), "
                            "(SELECT count(*) FROM EventInformation)"),
                 u"17|16|15|14|12"_s);
        QCOMPARE(folder.row("SELECT count(*), min(length(Attachments)), max(length(Attachments)), "
                            "max(hex(substr(Attachments, -1))) FROM Attachments"),
                 u"600|12346|12346|00"_s);
        QCOMPARE(
            folder.row("SELECT count(*), sum(MemberId <= 2000 AND LastName LIKE 'Q%'), sum(Active = 0) BETWEEN 240 "
                       "AND 360, count(DISTINCT substr(LastName, 1, 1)) > 15 FROM MemberInformation"),
            u"3000|2000|1|1"_s);
        // As uploads count them: the rows of a name are its versions 1, 2, ...
        QCOMPARE(folder.row("SELECT 1 FROM Attachments GROUP BY AttachmentsName "
                            "HAVING max(AttachmentVersion) <> count(*)"),
                 QString());
    }

    void generatorRefuses()
    {
        const DataFolder folder(DataFolder::Content::None);
        for (const datafile::GeneratorOptions &options :
             {datafile::GeneratorOptions{.members = 0}, datafile::GeneratorOptions{.members = 32'768},
              datafile::GeneratorOptions{.members = 5, .crowd = 6}, datafile::GeneratorOptions{.crowdInitial = 's'},
              datafile::GeneratorOptions{.notes = -1}})
            QCOMPARE(errorNumberOf([&] { datafile::createGeneratedFile(folder.file(), options); }),
                     int(runtime::InvalidProcedureCall));
        QCOMPARE(folder.names(), QStringList());
    }
};

QTEST_GUILESS_MAIN(tst_sample)
#include "tst_sample.moc"
