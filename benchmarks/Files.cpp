#include "benchmarks/Files.h"

#include "datafile/Generator.h"
#include "datafile/Schema.h"
#include "platform/data/engine/Database.h"
#include "platform/data/sql/Translation.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <functional>

using namespace Qt::Literals::StringLiterals;

namespace files {

namespace {

QString made(const QString &name, const std::function<void(const QString &)> &make)
{
    const QString path = folder() + u'/' + name;
    if (!QFileInfo::exists(path))
        make(path);
    return path;
}

// The members of the large group who are inactive are listed nowhere.
constexpr int crowdFor2000Listed = 2054;

constexpr const char *fiveHundred =
    "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 500) INSERT INTO ";

void fillDossier(const QString &path)
{
    data::Database file;
    file.open(path);
    file.execute("DELETE FROM MemberInterest WHERE MemberId = 1; DELETE FROM EventMemberInfo WHERE MemberId = 1;"
                 "DELETE FROM Contributions WHERE MemberId = 1; DELETE FROM MeetingInfo WHERE MemberId = 1;"
                 "DELETE FROM Attachments WHERE MemberId = 1;");
    for (const char *rows :
         {"MemberInterest (MemberId, Interest, InterestDescription) SELECT 1, 'Interest ' || i, 'What it is' FROM n",
          "EventMemberInfo (MemberId, EventName, EventActualStartTime, EventActualEndTime, EventActualDate, "
          "EventComments) SELECT 1, 'Event ' || i, '9:00', '10:00', '5/1/2026', 'A comment' FROM n",
          "Contributions (MemberId, ContributionAmount, ContributionNotes) SELECT 1, i + 0.25, 'A note' FROM n",
          "MeetingInfo (MemberId, MeetingDate, MeetingType, MeetingCatagory, MeetingSubject, MeetingStartTime, "
          "MeetingEndTime, MeetingNotes) SELECT 1, '2026-05-01 00:00:00', 'Phone Conversation', 'Training', 'Subject', "
          "'1899-12-30 09:00:00', '1899-12-30 10:00:00', 'What was said' FROM n",
          "Attachments (MemberId, AttachmentsName, AttachmentVersion, Attachments) SELECT 1, 'File ' || i || '.doc', "
          "1, "
          "randomblob(100000) FROM n"})
        file.execute(QByteArray(fiveHundred) + rows);
}

// Libraries under the root, each with its categories behind it. A document in four is of the large node; the nodes
// behind it have ten each, as far as the documents go. Each document has a day and a time of its own.
void fillLibrary(const QString &path)
{
    data::Database file;
    file.open(path);
    file.execute("INSERT INTO ObjectTbl VALUES (1, 0, 'Main Library', 'Root');"
                 "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < 1999)"
                 "INSERT INTO ObjectTbl SELECT i + 2, iif(i % 50, i - i % 50 + 2, 1), 'Subject ' || i,"
                 " iif(i % 50, 'Catagory', 'Library') FROM n;"
                 "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < 19999)"
                 "INSERT INTO Resources (ObjectIndex, DocumentName, DocumentDate, DocuemntVersion, Document)"
                 " SELECT iif(i % 4, 3 + i % 2000 * 3 / 4, 2), 'Document ' || i || '.doc',"
                 " datetime('2001-01-01', (i * 3601) || ' seconds'), 1, randomblob(10240) FROM n;");
}

} // namespace

QString folder()
{
    static const QString given = qEnvironmentVariable("TOLMARK_BENCHMARK_FOLDER");
    if (!given.isEmpty())
        return given;
    static const QTemporaryDir own;
    return own.path();
}

QString organisation()
{
    return made(u"Tolmark.mdb"_s, [](const QString &path) {
        datafile::GeneratorOptions options;
        options.members = 32'767;
        options.interests = 100'000;
        options.attachments = 10'000;
        options.attachmentBytes = attachmentBytes;
        options.crowd = crowdFor2000Listed;
        options.crowdInitial = largeGroup;
        datafile::createGeneratedFile(path, options);
    });
}

QString fewAttachments()
{
    return made(u"few.mdb"_s, [](const QString &path) {
        datafile::GeneratorOptions options;
        options.attachments = 10;
        options.attachmentBytes = attachmentBytes;
        datafile::createGeneratedFile(path, options);
    });
}

QString largeDossier()
{
    QDir(folder()).mkpath(u"dossier"_s);
    return made(u"dossier/Tolmark.mdb"_s, [](const QString &path) {
        datafile::GeneratorOptions options;
        options.members = 32'767;
        options.attachments = 10'000;
        options.attachmentBytes = 100'000;
        datafile::createGeneratedFile(path, options);
        fillDossier(path);
    });
}

QString library()
{
    QDir(folder()).mkpath(u"library"_s);
    return made(u"library/Tolmark.mdb"_s, [](const QString &path) {
        datafile::createDataFile(path);
        fillLibrary(path);
    });
}

QString empty(const QString &name)
{
    return made(name, [](const QString &path) { datafile::createDataFile(path); });
}

QString connectionString(const QString &path)
{
    return u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source="_s + path + u';';
}

QByteArray emitted(const QString &statement)
{
    return sql::translate(statement).sql;
}

QByteArray emittedCount(const QString &statement)
{
    return "SELECT COUNT(*) FROM (" + emitted(statement) + ')';
}

} // namespace files
