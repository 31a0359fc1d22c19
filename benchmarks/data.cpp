// Connections and recordsets beside the C API under them.
#include "benchmarks/Files.h"
#include "benchmarks/RawStore.h"
#include "benchmarks/Statements.h"
#include "platform/data/Recordset.h"
#include "platform/runtime/Conversion.h"

#include <array>
#include <benchmark/benchmark.h>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString &keyedQuery()
{
    static const QString statement = u"select * from MemberInformation where MemberId = 17"_s;
    return statement;
}

void keyedQueryOurs(benchmark::State &state)
{
    const QString connectionString = files::connectionString(files::organisation());
    for ([[maybe_unused]] auto _ : state) {
        data::Connection connection;
        connection.Open(connectionString);
        data::Recordset member;
        member.Open(keyedQuery(), connection);
        benchmark::DoNotOptimize(runtime::toText(member[u"LastName"].Value()));
        member.Close();
        connection.Close();
    }
}
BENCHMARK(keyedQueryOurs)->Name("keyed_query/ours");

void keyedQueryFloor(benchmark::State &state)
{
    constexpr int lastName = 4;
    const QByteArray path = files::organisation().toUtf8();
    const QByteArray sql = files::emitted(keyedQuery());
    for ([[maybe_unused]] auto _ : state) {
        const raw::File file(path);
        const raw::Statement member(file, sql);
        member.step();
        benchmark::DoNotOptimize(member.text(lastName));
    }
}
BENCHMARK(keyedQueryFloor)->Name("keyed_query/floor");

const QString &rows30000()
{
    static const QString statement = statements::memberList(u"MemberInformation.MemberId <= 30000"_s);
    return statement;
}

void readingOurs(benchmark::State &state)
{
    static constexpr std::array<QStringView, 11> columns{u"MemberId",   u"FirstName", u"MiddleName", u"LastName",
                                                         u"AddressOne", u"City",      u"State",      u"Zip",
                                                         u"HomePhone",  u"CellPhone", u"MemberType"};
    data::Connection connection;
    connection.Open(files::connectionString(files::organisation()));
    qint64 rows = 0;
    for ([[maybe_unused]] auto _ : state) {
        data::Recordset members;
        members.Open(rows30000(), connection);
        for (; !members.Eof(); members.MoveNext(), ++rows) {
            for (const QStringView column : columns) {
                runtime::Value value = members[column].Value();
                if (!value.isNull())
                    benchmark::DoNotOptimize(runtime::toText(std::move(value)));
            }
        }
    }
    if (rows != 30'000 * state.iterations())
        state.SkipWithError("other than 30,000 rows");
}
BENCHMARK(readingOurs)->Name("read_30000/ours")->Unit(benchmark::kMillisecond);

void readingFloor(benchmark::State &state)
{
    const raw::File file(files::organisation());
    const QByteArray sql = files::emitted(rows30000());
    for ([[maybe_unused]] auto _ : state) {
        const raw::Statement members(file, sql);
        const int columns = sqlite3_column_count(members.get());
        while (members.step()) {
            for (int column = 0; column < columns; ++column)
                benchmark::DoNotOptimize(members.text(column));
        }
    }
}
BENCHMARK(readingFloor)->Name("read_30000/floor")->Unit(benchmark::kMillisecond);

// Takes away the row that was added last, outside the measured time.
void removeLast(benchmark::State &state, const raw::File &file)
{
    state.PauseTiming();
    file.execute("DELETE FROM Attachments WHERE AttachmentsId = (SELECT MAX(AttachmentsId) FROM Attachments)");
    state.ResumeTiming();
}

void appending(benchmark::State &state, const QString &path)
{
    data::Connection connection;
    connection.Open(files::connectionString(path));
    const raw::File file(path);
    const QByteArray content(files::attachmentBytes + 1, 'a');
    for ([[maybe_unused]] auto _ : state) {
        data::Recordset attachments;
        attachments.Open(u"select * from [Attachments]"_s, connection);
        attachments.AddNew();
        attachments[u"MemberId"].setValue(runtime::Value(qint32(17)));
        attachments[u"AttachmentsName"].setValue(u"minutes.txt"_s);
        attachments[u"Attachments"].AppendChunk(content);
        attachments.UpdateBatch();
        attachments.Close();
        removeLast(state, file);
    }
}
void appendingToMany(benchmark::State &state)
{
    appending(state, files::organisation());
}
void appendingToFew(benchmark::State &state)
{
    appending(state, files::fewAttachments());
}
BENCHMARK(appendingToMany)->Name("append_row/ours");
BENCHMARK(appendingToFew)->Name("append_row/floor");

} // namespace

BENCHMARK_MAIN();
