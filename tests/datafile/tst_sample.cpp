// The sample organisation and the generated ones: whole, well typed and the same every time.
#include "datafile/Check.h"
#include "datafile/Generator.h"
#include "datafile/Looking.h"
#include "datafile/Sample.h"
#include "support/Outcome.h"

#include <QDateTime>
#include <QTest>

#include <functional>

using namespace Qt::Literals::StringLiterals;
using namespace datafiletest;

namespace {

using AddRow = std::function<void(const char *query, const char *result)>;

void addValueRows(const AddRow &row)
{
    row("SELECT count(*), max(MemberId) FROM MemberInformation", "64|64");
    // What the windows meet in old files: a type that is gone, none, two employers, none.
    row("SELECT MemberId FROM MemberInformation WHERE MemberTypeId NOT IN (SELECT MemberTypeId FROM MemberType)", "19");
    row("SELECT MemberId, count(*) FROM EmployerInformation GROUP BY MemberId HAVING count(*) <> 1", "31|2");
    row("SELECT MemberId FROM MemberInformation WHERE MemberId NOT IN (SELECT MemberId FROM EmployerInformation)",
        "24");
    row("SELECT group_concat(DISTINCT State) FROM MemberInformation WHERE State LIKE '% ' ORDER BY State",
        "Colorado ,California ,Arizona ,Virginia ");
    row("SELECT count(DISTINCT State) FROM MemberInformation WHERE State <> ''", "50");
    // Null, empty and filled, each in a column that the windows test for Null.
    row("SELECT count(*) - count(HomePhone) > 0, sum(HomePhone = '') > 0 FROM MemberInformation", "1|1");
    row("SELECT count(*), sum(MeetingEndTime IS NULL), sum(MemberId IS NULL) FROM MeetingInfo", "15|2|3");
}

void addConnectionRows(const AddRow &row)
{
    // Every row belongs to somebody.
    for (const char *table :
         {"EmployerInformation", "MemberInterest", "EventMemberInfo", "Contributions", "Attachments", "MeetingInfo"})
        row(qPrintable(u"SELECT count(*) FROM %1 WHERE MemberId NOT IN (SELECT MemberId FROM MemberInformation)"_s.arg(
                QString::fromLatin1(table))),
            "0");
    row("SELECT count(*) FROM Attachments WHERE (MemberId IS NULL) = (PersonalInformationId IS NULL)", "0");
    row("SELECT count(*) FROM ReferenceInfo JOIN Resources USING (DocumentId) JOIN ObjectTbl USING (ObjectIndex) "
        "JOIN \"Personal Information\" USING (PersonalInformationId)",
        "4");
    row("SELECT EventName FROM EventMemberInfo WHERE EventName NOT IN (SELECT EventName FROM EventInformation)",
        "Annual Banquet");
    // Versions run from 1 without a gap: of a name over all owners, of a document within its node.
    row("SELECT count(*) FROM (SELECT 1 FROM Attachments GROUP BY AttachmentsName "
        "HAVING max(AttachmentVersion) <> count(DISTINCT AttachmentVersion) OR count(*) <> max(AttachmentVersion))",
        "0");
    row("SELECT count(*) FROM (SELECT 1 FROM Resources GROUP BY ObjectIndex, DocumentName "
        "HAVING max(DocuemntVersion) <> count(DISTINCT DocuemntVersion) OR count(*) <> max(DocuemntVersion))",
        "0");
    // The tree: numbered from 1 without a gap, parents before children, one root.
    row("SELECT count(*) = max(ObjectIndex), min(ObjectIndex), sum(ObjectParentIndex >= ObjectIndex), "
        "sum(ObjectType = 'Root') FROM ObjectTbl",
        "1|1|0|1");
    row("SELECT ObjectText, ObjectParentIndex FROM ObjectTbl WHERE ObjectIndex = 1", "Main Library|0");
    // A stored file ends in a zero byte and has no other; an empty file is that byte alone.
    row("SELECT count(*) > 10, min(length(Attachments)) FROM Attachments WHERE hex(substr(Attachments, -1)) = '00'",
        "1|1");
    row("SELECT count(*) FROM Attachments WHERE instr(Attachments, x'00') <> length(Attachments)", "0");
    row("SELECT count(*) FROM Resources WHERE instr(Document, x'00') <> length(Document)", "0");
}

} // namespace

class tst_sample : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sampleIsWhole_data();
    void sampleIsWhole();
    void sampleHasNoApostrophes();
    void fieldsDoNotOverlap();
    void samplesAreEqual();
    void generatedFileFollowsItsSeed();
    void generatedFileHasItsCounts();
    void generatorRefuses();
};

void tst_sample::sampleIsWhole_data()
{
    QTest::addColumn<QByteArray>("query");
    QTest::addColumn<QString>("result");
    const auto row = [](const char *query, const char *result) {
        QTest::newRow(query) << QByteArray(query) << QString::fromUtf8(result);
    };
    addValueRows(row);
    addConnectionRows(row);
}

void tst_sample::sampleIsWhole()
{
    const Folder folder;
    QFETCH(QByteArray, query);
    QFETCH(QString, result);
    datafile::createSampleFile(folder.path(u"f.mdb"_s));
    data::Database file;
    file.open(folder.path(u"f.mdb"_s));
    QCOMPARE(valueOf(file, query), result);
}

// The windows put what they write back into quotes as it is, so an apostrophe in the sample would end the program at a
// newcomer's first Update.
void tst_sample::sampleHasNoApostrophes()
{
    const Folder folder;
    datafile::createSampleFile(folder.path(u"f.mdb"_s));
    data::Database file;
    file.open(folder.path(u"f.mdb"_s));
    const QStringList columns =
        rowsOf(file, "SELECT t.name, c.name FROM sqlite_master AS t, pragma_table_info(t.name) AS c "
                     "WHERE t.type = 'table' AND t.name NOT LIKE 'sqlite_%' AND c.type LIKE '%TEXT'");
    QVERIFY(columns.size() > 60);
    for (const QString &line : columns)
        QCOMPARE(valueOf(file, u"SELECT \"%2\" FROM \"%1\" WHERE instr(\"%2\", char(39))"_s
                                   .arg(line.section(u'|', 0, 0), line.section(u'|', 1))
                                   .toUtf8()),
                 QString());
}

// Labels and boxes of a page, 375 twips high and of one width, lie beside each other.
void tst_sample::fieldsDoNotOverlap()
{
    const Folder folder;
    datafile::createSampleFile(folder.path(u"f.mdb"_s));
    data::Database file;
    file.open(folder.path(u"f.mdb"_s));
    const QByteArray boxes = "(SELECT TabId, FieldName, fieldLeft AS x, fieldTop AS y, fieldWidth AS w FROM FieldInfo "
                             "UNION ALL SELECT TabId, FieldName || ' (label)', labelLeft, labelTop, fieldWidth "
                             "FROM FieldInfo)";
    QCOMPARE(valueOf(file, "SELECT a.FieldName, b.FieldName FROM " + boxes + " AS a JOIN " + boxes +
                               " AS b ON a.TabId = b.TabId AND a.FieldName < b.FieldName AND a.x < b.x + b.w "
                               "AND b.x < a.x + a.w AND a.y < b.y + 375 AND b.y < a.y + 375"),
             QString());
}

void tst_sample::samplesAreEqual()
{
    const Folder folder;
    datafile::createSampleFile(folder.path(u"a.mdb"_s));
    const qint64 second = QDateTime::currentSecsSinceEpoch();
    QTRY_VERIFY(QDateTime::currentSecsSinceEpoch() > second); // a moment of "now" in the file would differ
    datafile::createSampleFile(folder.path(u"b.mdb"_s));
    QVERIFY(bytesOf(folder.path(u"a.mdb"_s)).size() > 100'000);
    QVERIFY(bytesOf(folder.path(u"a.mdb"_s)) == bytesOf(folder.path(u"b.mdb"_s)));
}

void tst_sample::generatedFileFollowsItsSeed()
{
    const Folder folder;
    datafile::createGeneratedFile(folder.path(u"a.mdb"_s), {.seed = 7});
    datafile::createGeneratedFile(folder.path(u"b.mdb"_s), {.seed = 7});
    datafile::createGeneratedFile(folder.path(u"c.mdb"_s), {.seed = 8});
    QVERIFY(bytesOf(folder.path(u"a.mdb"_s)) == bytesOf(folder.path(u"b.mdb"_s)));
    data::Database a;
    data::Database c;
    a.open(folder.path(u"a.mdb"_s));
    c.open(folder.path(u"c.mdb"_s));
    for (const char *column :
         {"FirstName FROM MemberInformation", "MemberId FROM MemberInterest", "EventDate FROM EventInformation",
          "MemberId FROM EventMemberInfo", "ContributionAmount FROM Contributions", "MeetingNotes FROM MeetingInfo",
          "hex(Attachments) FROM Attachments"}) {
        const QByteArray query = QByteArray("SELECT ") + column;
        QVERIFY2(rowsOf(a, query) != rowsOf(c, query), column);
    }
    // The same on every system: the first member of seed 7.
    QCOMPARE(valueOf(a, "SELECT FirstName, LastName, AddressOne, City FROM MemberInformation WHERE MemberId = 1"),
             u"Jin|Brown|2935 Broadway|Raleigh"_s);
}

void tst_sample::generatedFileHasItsCounts()
{
    const Folder folder;
    datafile::createGeneratedFile(folder.path(u"f.mdb"_s), {.members = 3000,
                                                            .inactivePercent = 10,
                                                            .crowd = 2000,
                                                            .crowdInitial = 'Q',
                                                            .interests = 17,
                                                            .contributions = 16,
                                                            .assignedEvents = 15,
                                                            .notes = 14,
                                                            .attachments = 600,
                                                            .attachmentBytes = 12'345,
                                                            .events = 12});
    data::Database file;
    file.open(folder.path(u"f.mdb"_s));
    QCOMPARE(valueOf(file, "SELECT (SELECT count(*) FROM MemberInformation), (SELECT count(*) FROM MemberInterest), "
                           "(SELECT count(*) FROM Contributions), (SELECT count(*) FROM EventMemberInfo), "
                           "(SELECT count(*) FROM MeetingInfo), (SELECT count(*) FROM EventInformation)"),
             u"3000|17|16|15|14|12"_s);
    QCOMPARE(valueOf(file, "SELECT count(*), min(length(Attachments)), max(length(Attachments)), "
                           "max(hex(substr(Attachments, -1))) FROM Attachments"),
             u"600|12346|12346|00"_s);
    QCOMPARE(valueOf(file, "SELECT count(*) FROM MemberInformation WHERE MemberId <= 2000 AND LastName NOT LIKE 'Q%'"),
             u"0"_s);
    QCOMPARE(valueOf(file, "SELECT count(DISTINCT substr(LastName, 1, 1)) > 15 FROM MemberInformation"), u"1"_s);
    QCOMPARE(valueOf(file, "SELECT sum(Active = 0) BETWEEN 240 AND 360 FROM MemberInformation"), u"1"_s);
    // As uploads count them: the rows of a name are its versions 1, 2, ...
    QCOMPARE(valueOf(file, "SELECT count(*) FROM (SELECT 1 FROM Attachments GROUP BY AttachmentsName "
                           "HAVING max(AttachmentVersion) <> count(*))"),
             u"0"_s);
}

void tst_sample::generatorRefuses()
{
    const Folder folder;
    for (const datafile::GeneratorOptions &options :
         {datafile::GeneratorOptions{.members = 0}, datafile::GeneratorOptions{.members = 32'768},
          datafile::GeneratorOptions{.members = 5, .crowd = 6}, datafile::GeneratorOptions{.crowdInitial = 's'},
          datafile::GeneratorOptions{.notes = -1}})
        QCOMPARE(errorNumberOf([&] { datafile::createGeneratedFile(folder.path(u"f.mdb"_s), options); }),
                 int(runtime::InvalidProcedureCall));
    QCOMPARE(folder.names(), QStringList());
}

QTEST_GUILESS_MAIN(tst_sample)
#include "tst_sample.moc"
