// How long a value of 100 MB takes into the store and out of it.
#include "benchmarks/LargeValue.h"

#include <benchmark/benchmark.h>

using namespace Qt::Literals::StringLiterals;

namespace {

void emptyTable(benchmark::State &state, const raw::File &file)
{
    state.PauseTiming();
    file.execute("DELETE FROM Attachments");
    state.ResumeTiming();
}

void appendingOurs(benchmark::State &state)
{
    const QString path = files::empty(u"append.mdb"_s);
    const raw::File file(path);
    data::Connection connection;
    connection.Open(files::connectionString(path));
    const QByteArray content = largevalue::content();
    for ([[maybe_unused]] auto _ : state) {
        largevalue::appendOurs(connection, content);
        emptyTable(state, file);
    }
}
BENCHMARK(appendingOurs)->Name("append_100mb/ours")->Unit(benchmark::kMillisecond);

void appendingFloor(benchmark::State &state)
{
    const raw::File file(files::empty(u"append.mdb"_s));
    const QByteArray content = largevalue::content();
    for ([[maybe_unused]] auto _ : state) {
        largevalue::appendFloor(file, content);
        emptyTable(state, file);
    }
}
BENCHMARK(appendingFloor)->Name("append_100mb/floor")->Unit(benchmark::kMillisecond);

void readingOurs(benchmark::State &state)
{
    data::Connection connection;
    connection.Open(files::connectionString(largevalue::fileWithValue()));
    for ([[maybe_unused]] auto _ : state) {
        if (largevalue::readOurs(connection).size() != largevalue::bytes)
            state.SkipWithError("not the whole value");
    }
}
BENCHMARK(readingOurs)->Name("get_100mb/ours")->Unit(benchmark::kMillisecond);

void readingFloor(benchmark::State &state)
{
    const raw::File file(largevalue::fileWithValue());
    for ([[maybe_unused]] auto _ : state) {
        if (largevalue::readFloor(file).size() != largevalue::bytes)
            state.SkipWithError("not the whole value");
    }
}
BENCHMARK(readingFloor)->Name("get_100mb/floor")->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
