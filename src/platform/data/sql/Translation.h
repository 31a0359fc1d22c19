// One statement of the store's SQL dialect, turned into SQLite's SQL.
//
// The dialect is read whole into a tree and written anew; what is not understood raises the dialect's own error, never
// a half-translated statement. Whether tables and columns exist is not known here: the engine asks the open file.
#pragma once

#include "platform/runtime/Value.h"

#include <QByteArray>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace sql {

enum class StatementKind { Select, Insert, Update, Delete };

struct ColumnReference
{
    QString table; // the table itself, not its alias; empty when the statement leaves it open
    QString column;
};

// A result column that is computed from one other column by Max or Min and so has that column's type.
struct ComputedColumn
{
    QString name;
    ColumnReference source;
};

// What INSERT or UPDATE stores into a column. The n-th assignment stands in the SQL as the parameter ?n, so that the
// engine can convert the literal to the column's type before it is bound.
struct Assignment
{
    QString column;
    runtime::Value literal;
};

// A column compared with a literal; the engine refuses unlike types (a number column with a text and the reverse).
struct Comparison
{
    ColumnReference column;
    bool withText = false;
};

// A LIKE that is written as a range of texts, which an index can search. The column may hold numbers or dates, which
// are in no such range: then the engine puts the comparison row by row in its place.
struct LikeRange
{
    ColumnReference column;
    qsizetype begin = 0; // in the SQL, in bytes
    qsizetype length = 0;
    QByteArray comparison; // calls store_like
};

// The number n of a SELECT of one table's rows whose whole condition is "column = n". The engine puts a parameter in
// its place, so that one prepared statement serves all numbers.
struct KeyNumber
{
    qsizetype begin = 0; // in the SQL, in bytes
    qsizetype length = 0;
    qint32 number = 0;
};

struct Translation
{
    StatementKind kind = StatementKind::Select;
    QByteArray sql; // SQLite's SQL, UTF-8

    // The one table that a SELECT reads, or that the statement changes; empty for a SELECT of several tables.
    QString table;
    // A SELECT whose rows are rows of `table`: the last result column is the row's _rowid_ and no part of the result.
    bool carriesRowId = false;
    // Where in `sql` the list of the SELECT stands, in bytes; the row id is the last item of it.
    qsizetype listBegin = 0;
    qsizetype listLength = 0;

    std::vector<ComputedColumn> computed;
    std::vector<Assignment> assignments;
    std::vector<Comparison> comparisons;
    std::vector<LikeRange> likeRanges; // in the order of the SQL
    std::optional<KeyNumber> key;      // not where there are LIKE ranges, which move it
    // The SQL calls store_like(PATTERN, VALUE), which the connection has to provide.
    bool callsLike = false;
    // False for a statement on the table Security: it may hold a password, which must not stay in memory.
    bool mayBeKept = true;
};

// Raises the dialect's error for a text that is no statement of it.
Translation translate(const QString &text);

// The same from a cache of at most 1 MB, which drops what was not asked for the longest. It keeps no statement of more
// than 2,000 characters and none on the table Security.
std::shared_ptr<const Translation> cachedTranslation(const QString &text);

} // namespace sql
