// Any text as a statement. What the dialect refuses has a number of the dialect's; what it accepts, SQLite prepares and
// runs, or the store refuses it with a number and a text of its own.
#include "platform/data/engine/RowSource.h"
#include "platform/data/engine/StatementError.h"
#include "platform/runtime/ProviderError.h"
#include "proof/fuzz/Fuzz.h"

#include <QSet>

using namespace Qt::Literals::StringLiterals;

namespace {

const QSet<int> refusals{provider::SyntaxError, provider::MultipleStep};
const QSet<int> storeRefusals{provider::SyntaxError,  provider::MultipleStep,     provider::NoSuchTable,
                              provider::NoSuchColumn, provider::CriteriaMismatch, provider::DataOverflow,
                              provider::Unspecified};

int questions = 0;

std::shared_ptr<data::Database> tables()
{
    auto file = std::make_shared<data::Database>();
    file->createInMemory();
    for (const char *name : {"T", "U"})
        file->execute(
            "CREATE TABLE "_ba + name +
            " (Id INTEGER PRIMARY KEY, N INTEGER, R DOUBLE, D DATETIME, F BOOLEAN, C CURRENCY,"
            " W TEXT COLLATE NOCASE, M LONGTEXT COLLATE NOCASE, B BLOB); INSERT INTO "_ba +
            name +
            " VALUES (1, 1, 1.5, '2001-01-31 17:07:00', -1, 1.25, 'Smith', 'x', x'01'), (2, 0, 0,"
            " '1999-01-31 00:00:00', 0, 12, '', 'y', NULL), (3, NULL, NULL, NULL, NULL, NULL, NULL, NULL, NULL)");
    // Ends statements that would run too long, which is no finding.
    file->stopWhen([] { return ++questions > 20; });
    return file;
}

void run(const std::shared_ptr<data::Database> &file, const std::shared_ptr<const sql::Translation> &translation)
{
    if (translation->kind == sql::StatementKind::Select) {
        data::RowSource rows(file, translation);
        rows.readAll();
        rows.count();
        return;
    }
    file->execute("BEGIN");
    try {
        data::runAction(*file, *translation);
    } catch (...) {
        file->execute("ROLLBACK");
        throw;
    }
    file->execute("ROLLBACK");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *bytes, size_t size)
{
    static const std::shared_ptr<data::Database> file = tables();
    const QString statement = QString::fromUtf8(reinterpret_cast<const char *>(bytes), qsizetype(size));
    std::shared_ptr<const sql::Translation> translation;
    try {
        translation = std::make_shared<const sql::Translation>(sql::translate(statement));
    } catch (const runtime::RuntimeError &error) {
        if (!refusals.contains(error.number()))
            found(u"refused by %1 %2: %3"_s.arg(error.number()).arg(error.description(), statement));
        return 0;
    }
    questions = 0;
    try {
        run(file, translation);
    } catch (const data::StoreError &error) {
        constexpr int interrupted = 9;
        if (!error.isConstraint() && error.extendedCode() != interrupted)
            found(u"SQLite: %1: %2 -> %3"_s.arg(error.description(), statement, QString::fromUtf8(translation->sql)));
    } catch (const runtime::RuntimeError &error) {
        if (!storeRefusals.contains(error.number()))
            found(u"the store: %1 %2: %3"_s.arg(error.number()).arg(error.description(), statement));
    }
    return 0;
}
