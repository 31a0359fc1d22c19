#include "platform/data/engine/StatementError.h"

#include "platform/data/engine/ColumnType.h"
#include "platform/runtime/ProviderError.h"

using namespace Qt::Literals::StringLiterals;

namespace data {

namespace {

ColumnType typeOf(const Database &database, const sql::Translation &translation, const sql::ColumnReference &column)
{
    const QString &table = column.table.isEmpty() ? translation.table : column.table;
    const auto declared = database.declaredType(table.toUtf8(), column.column.toUtf8());
    return declared ? columnTypeOfDeclaration(*declared) : ColumnType::Unknown;
}

// SQLite has no code of its own for a statement that is too large for it in some way: too deep an expression, too many
// tables, columns or terms.
bool exceedsLimit(const QString &message)
{
    return message.startsWith(u"Expression tree is too large") || message.startsWith(u"parser stack overflow") ||
           message.startsWith(u"too many ") || message.startsWith(u"at most ");
}

// Raises the error in the dialect's own words. One for which the dialect has none is raised as it is.
[[noreturn]] void raiseDialectError(const StoreError &error)
{
    const QString &message = error.description();
    const QString name = message.section(u": "_s, 1);
    if (message.startsWith(u"no such table"))
        throw provider::error(provider::NoSuchTable,
                              u"The Microsoft Jet database engine cannot find the input table or query "
                              u"'%1'.  Make sure it exists and that its name is spelled correctly."_s.arg(
                                  name.startsWith(u"main.") ? name.sliced(5) : name));
    if (message.startsWith(u"no such column"))
        throw provider::error(provider::NoSuchColumn, u"No value given for one or more required parameters."_s);
    if (message.startsWith(u"ambiguous column name"))
        throw provider::error(provider::Unspecified,
                              u"The specified field '%1' could refer to more than one table listed in the "
                              u"FROM clause of your SQL statement."_s.arg(name));
    if (exceedsLimit(message))
        throw provider::error(provider::SyntaxError, u"Query is too complex."_s);
    throw; // the error itself, which the caller is handling
}

} // namespace

QByteArray sqlFor(const Database &database, const sql::Translation &translation)
{
    QByteArray sql = translation.sql;
    if (translation.key)
        sql.replace(translation.key->begin, translation.key->length, "?1");
    for (auto like = translation.likeRanges.crbegin(); like != translation.likeRanges.crend(); ++like) {
        if (const ColumnType type = typeOf(database, translation, like->column);
            type != ColumnType::Unknown && !isText(type))
            sql.replace(like->begin, like->length, like->comparison);
    }
    return sql;
}

Statement prepareChecked(Database &database, const sql::Translation &translation, QByteArrayView sql)
{
    if (translation.callsLike)
        database.provideLike();
    try {
        Statement statement = database.prepare(sql, translation.mayBeKept ? Reuse::Allowed : Reuse::Never);
        if (translation.key)
            statement.bind(1, qint64(translation.key->number));
        return statement;
    } catch (const StoreError &error) {
        raiseDialectError(error);
    }
}

void checkComparisons(const Database &database, const sql::Translation &translation)
{
    for (const sql::Comparison &comparison : translation.comparisons) {
        const ColumnType type = typeOf(database, translation, comparison.column);
        if (type == ColumnType::Unknown || type == ColumnType::Binary)
            continue;
        if (isText(type) != comparison.withText)
            throw provider::error(provider::CriteriaMismatch, u"Data type mismatch in criteria expression."_s);
    }
}

} // namespace data
