// Opening the dossier of a member with much of everything.
#include "benchmarks/Files.h"
#include "benchmarks/RawStore.h"
#include "dossier/DisplayMembers.h"
#include "platform/runtime/Application.h"
#include "shell/store/CLsDataBaseConnection.h"

#include <QApplication>
#include <QFileInfo>

#include <benchmark/benchmark.h>

using namespace Qt::Literals::StringLiterals;

namespace {

// What a loader reads: its statement, and the columns that the window shows.
struct Reading
{
    QString statement;
    QList<QByteArray> columns;
};

// In the order of the load.
QList<Reading> readings()
{
    return {
        {u"SELECT * FROM MemberInformation  WHERE ((MemberInformation.Active=Yes) AND "
         "(MemberInformation.MemberId=1))"_s,
         {"FirstName", "MiddleName", "LastName", "AddressOne", "AddressTwo", "City", "State", "Zip", "HomePhone",
          "CellPhone", "EMailAddress"}},
        {u"SELECT Attachments.AttachmentsName, Max(Attachments.AttachmentsDate) AS AttachmentsDate, "
         "Max([Attachments].[attachmentVersion]) AS AttachmentVersion, Max(Attachments.AttachmentsId) AS "
         "AttachmentsId  From Attachments  where MemberId=1 GROUP BY Attachments.AttachmentsName  ORDER BY "
         "Attachments.AttachmentsName Desc"_s,
         {"AttachmentsName", "AttachmentsId", "AttachmentsDate", "AttachmentVersion"}},
        {u"SELECT * FROM EmployerInformation WHERE (MemberId=1)"_s,
         {"Name", "AddressOne", "AddressTwo", "City", "State", "Zip", "PhoneNumber", "Extension", "EMailAddress",
          "WebAddress"}},
        {u"SELECT * FROM MemberInterest WHERE (MemberId=1)"_s, {"MemberInterestId", "Interest", "InterestDescription"}},
        {u"SELECT MeetingInfo.MeetingId, MeetingInfo.MeetingDate, MeetingInfo.MeetingCatagory, "
         "MeetingInfo.MeetingType, MeetingInfo.MeetingSubject, MeetingInfo.MeetingNotes, "
         "MeetingInfo.MeetingStartTime, MeetingInfo.MeetingEndTime, MeetingInfo.MeetingEnteredDate "
         " FROM [MemberInformation] INNER JOIN MeetingInfo ON [MemberInformation].MemberId = MeetingInfo.MemberId"
         " WHERE ((([MemberInformation].MemberId)=1));"_s,
         {"MeetingDate", "MeetingId", "MeetingType", "MeetingStartTime", "MeetingEndTime", "MeetingSubject",
          "MeetingCatagory", "MeetingNotes"}},
        {u"SELECT * FROM Contributions WHERE (MemberId =1)"_s,
         {"ContributionDate", "ContributionId", "ContributionAmount", "ContributionNotes"}},
        {u"SELECT * FROM EventInformation"_s, {"EventName", "EventIdentification"}},
        {u"SELECT * FROM EventMemberInfo WHERE(MemberId=1)"_s,
         {"EventMemberInfoId", "EventName", "EventActualStartTime", "EventActualEndTime", "EventActualDate",
          "EventComments"}},
    };
}

QStringList names(const QList<QByteArray> &columns)
{
    QStringList names;
    for (const QByteArray &column : columns)
        names << QString::fromLatin1(column);
    return names;
}

void statementsOurs(benchmark::State &state)
{
    QList<std::pair<QString, QStringList>> all;
    for (const Reading &reading : readings())
        all.append({reading.statement, names(reading.columns)});
    for ([[maybe_unused]] auto _ : state) {
        for (const auto &[statement, columns] : all) {
            CLsDataBaseConnection store;
            data::Recordset rows = store.CreateRecordset(statement);
            for (; !rows.Eof(); rows.MoveNext()) {
                for (const QString &column : columns)
                    benchmark::DoNotOptimize(rows[column].Value());
            }
            rows.Close();
            store.DbClose();
        }
    }
}
BENCHMARK(statementsOurs)->Name("dossier_data/ours")->Unit(benchmark::kMillisecond);

QList<int> placesOf(const QList<QByteArray> &columns, const raw::Statement &rows)
{
    QList<int> places;
    for (const QByteArray &column : columns) {
        int at = 0;
        while (at < sqlite3_column_count(rows.get()) && qstricmp(column, sqlite3_column_name(rows.get(), at)) != 0)
            ++at;
        if (at < sqlite3_column_count(rows.get()))
            places << at;
    }
    return places;
}

void statementsFloor(benchmark::State &state)
{
    const QByteArray path = files::largeDossier().toUtf8();
    QList<std::pair<QByteArray, QList<QByteArray>>> all;
    for (const Reading &reading : readings()) // a bare file knows no order of texts but SQLite's own
        all.append({files::emitted(reading.statement).replace("COLLATE STORE", "COLLATE NOCASE"), reading.columns});
    for ([[maybe_unused]] auto _ : state) {
        for (const auto &[sql, columns] : all) {
            const raw::File file(path);
            const raw::Statement rows(file, sql);
            const QList<int> places = placesOf(columns, rows);
            if (places.size() != columns.size())
                state.SkipWithError("a column is missing");
            while (rows.step()) {
                for (int place : places)
                    benchmark::DoNotOptimize(rows.text(place));
            }
        }
    }
}
BENCHMARK(statementsFloor)->Name("dossier_data/floor")->Unit(benchmark::kMillisecond);

void windowOurs(benchmark::State &state)
{
    for ([[maybe_unused]] auto _ : state) {
        DisplayMembers dossier;
        dossier.MemberId = 1;
        dossier.Load();
        if (dossier.Frame4->lstAttachement->ListItems.Count() != 500)
            state.SkipWithError("other than 500 attachments");
    }
}
BENCHMARK(windowOurs)->Name("dossier/ours")->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    runtime::App::setPath(QFileInfo(files::largeDossier()).path());
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
