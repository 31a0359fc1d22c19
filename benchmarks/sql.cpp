// What the dialect costs before SQLite sees the statement, beside what SQLite's own compiler takes for it.
#include "benchmarks/Files.h"
#include "benchmarks/RawStore.h"
#include "benchmarks/Statements.h"
#include "dossier/NewMemberStatements.h"
#include "platform/data/sql/Translation.h"

#include <benchmark/benchmark.h>

using namespace Qt::Literals::StringLiterals;

namespace {

QString listStatement()
{
    return statements::memberListOfGroup(u"S"_s);
}

QString insertStatement()
{
    return insertMemberStatement({u"Ada"_s, u"M."_s, u"Adams"_s, u"12 Main Street"_s, u"Apt. 3"_s, u"Springfield"_s,
                                  u"IL"_s, u"62701"_s, u"217-555-0142"_s, u"217-555-0143"_s, u"ada@example.org"_s});
}

void translating(benchmark::State &state, const QString &statement)
{
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(sql::translate(statement));
}

void asking(benchmark::State &state, const QString &statement)
{
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(sql::cachedTranslation(statement));
}

void preparing(benchmark::State &state, const QString &statement)
{
    const raw::File file(files::organisation());
    const QByteArray sql = files::emitted(statement);
    for ([[maybe_unused]] auto _ : state) {
        const raw::Statement prepared(file, sql);
        benchmark::DoNotOptimize(prepared.get());
    }
}

BENCHMARK_CAPTURE(translating, list, listStatement())->Name("translate_list/ours");
BENCHMARK_CAPTURE(asking, list, listStatement())->Name("cached_list/ours");
BENCHMARK_CAPTURE(preparing, list, listStatement())->Name("translate_list/floor");
BENCHMARK_CAPTURE(translating, insert, insertStatement())->Name("translate_insert/ours");
BENCHMARK_CAPTURE(asking, insert, insertStatement())->Name("cached_insert/ours");
BENCHMARK_CAPTURE(preparing, insert, insertStatement())->Name("translate_insert/floor");

} // namespace

BENCHMARK_MAIN();
