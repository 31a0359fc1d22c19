// What the dialect costs before SQLite sees the statement, beside what SQLite's own compiler takes for it.
#include "benchmarks/Files.h"
#include "benchmarks/RawStore.h"
#include "benchmarks/Statements.h"
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
    return u"INSERT INTO MemberInformation (FirstName, MiddleName, LastName, "
           " AddressOne, AddressTwo, City, State, Zip, HomePhone, CellPhone, EMailAddress)"
           "values ('Ada','M.','Adams','12 Main Street','Apt. 3','Springfield','IL','62701','217-555-0142',"
           "'217-555-0143','ada@example.org')"_s;
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
