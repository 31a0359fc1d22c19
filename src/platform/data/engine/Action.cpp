// Runs the statements that change rows: converts each literal to its column's type, as the provider does on the way in.
#include "platform/data/engine/RowSource.h"
#include "platform/data/engine/StatementError.h"
#include "platform/runtime/ProviderError.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace data {

namespace {

bool knowsTargets(const Database &database, const sql::Translation &translation)
{
    const QByteArray table = translation.table.toUtf8();
    return database.hasTable(table) &&
           std::all_of(translation.assignments.cbegin(), translation.assignments.cend(),
                       [&](const sql::Assignment &a) { return database.declaredType(table, a.column.toUtf8()); });
}

ColumnType typeOfTarget(const Database &database, const sql::Translation &translation, const QString &column)
{
    if (const auto declared = database.declaredType(translation.table.toUtf8(), column.toUtf8()))
        return columnTypeOfDeclaration(*declared);
    if (translation.kind == sql::StatementKind::Insert)
        throw provider::error(provider::SyntaxError,
                              u"The INSERT INTO statement contains the following unknown field name: '%1'.  "
                              u"Make sure you have typed the name correctly, and try the operation "
                              u"again."_s.arg(column));
    throw provider::error(provider::NoSuchColumn, u"No value given for one or more required parameters."_s);
}

runtime::Value literalFor(ColumnType type, const runtime::Value &literal)
{
    try {
        return convertedTo(type, literal);
    } catch (const runtime::RuntimeError &error) {
        if (error.number() == runtime::Overflow)
            throw provider::error(provider::DataOverflow, u"Overflow"_s);
        throw provider::error(provider::CriteriaMismatch, u"Data type mismatch in criteria expression."_s);
    }
}

} // namespace

void runAction(Database &database, const sql::Translation &translation)
{
    if (!knowsTargets(database, translation)) // another connection may have added the table or the columns
        database.refreshSchema();
    if (translation.kind == sql::StatementKind::Insert && !database.hasTable(translation.table.toUtf8()))
        throw provider::error(provider::NoSuchTable, u"Could not find output table '%1'."_s.arg(translation.table));
    std::vector<runtime::Value> values; // declared before the statement: it must outlive the step
    if (database.hasTable(translation.table.toUtf8())) {
        values.reserve(translation.assignments.size());
        for (const sql::Assignment &assignment : translation.assignments)
            values.push_back(literalFor(typeOfTarget(database, translation, assignment.column), assignment.literal));
    }
    Statement statement = prepareChecked(database, translation, sqlFor(database, translation));
    checkComparisons(database, translation);
    for (size_t at = 0; at < values.size(); ++at)
        statement.bind(int(at) + 1, values[at]);
    statement.step();
}

} // namespace data
