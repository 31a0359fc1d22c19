#include "platform/data/sql/Translation.h"
#include "platform/runtime/RuntimeError.h"

#include <QFile>
#include <QTest>

#include <functional>

using namespace Qt::Literals::StringLiterals;

class TranslationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void acceptsOrRefusesWhatTheWindowsCompose_data();
    void acceptsOrRefusesWhatTheWindowsCompose();
    void writesForSqlite_data();
    void writesForSqlite();
    void refuses_data();
    void refuses();
    void setsLiteralsApart();
    void tellsComparisonsWithLiterals();
    void tellsTheSourceOfMaxAndMin();
    void carriesTheRowIdOfOneTable_data();
    void carriesTheRowIdOfOneTable();
    void asksForLikeOnlyWhereItIsCalled();
    void keepsTranslationsByTheirText();
};

namespace {

constexpr int syntaxErrorNumber = -2147217900;

// "<number> <text>" of the error that the statement raises; empty when it raises none.
QString errorOf(const QString &statement)
{
    try {
        sql::translate(statement);
    } catch (const runtime::RuntimeError &error) {
        return QString::number(error.number()) + u' ' + error.description();
    }
    return {};
}

QString sqlOf(const QString &statement)
{
    return QString::fromUtf8(sql::translate(statement).sql);
}

using AddRow = std::function<void(const char *name, const QString &statement, const QString &expected)>;

void addLikeRows(const AddRow &condition)
{
    condition("prefix", u"a LIKE 'Smi%'"_s, u"\"a\" COLLATE NOCASE >= 'smi' AND \"a\" COLLATE NOCASE < 'smj'"_s);
    condition("prefix that ends in z", u"a LIKE 'Z%%'"_s,
              u"\"a\" COLLATE NOCASE >= 'z' AND \"a\" COLLATE NOCASE < '{'"_s);
    condition("prefix with an apostrophe", u"a LIKE 'O''B%'"_s,
              u"\"a\" COLLATE NOCASE >= 'o''b' AND \"a\" COLLATE NOCASE < 'o''c'"_s);
    condition("bound that is an apostrophe", u"a LIKE 'x&%'"_s,
              u"\"a\" COLLATE NOCASE >= 'x&' AND \"a\" COLLATE NOCASE < 'x'''"_s);
    condition("prefix that ends in an at sign", u"a LIKE 'x@%'"_s,
              u"\"a\" COLLATE NOCASE >= 'x' AND \"a\" COLLATE NOCASE < 'y' AND store_like('x@%', \"a\")"_s);
    condition("prefix beyond ASCII", u"a LIKE 'Jos\u00e9%'"_s,
              u"\"a\" COLLATE NOCASE >= 'jos' AND \"a\" COLLATE NOCASE < 'jot' AND store_like('Jos\u00e9%', \"a\")"_s);
    condition("no prefix", u"a LIKE '%x%'"_s, u"store_like('%x%', \"a\")"_s);
    condition("wildcard in a set", u"a LIKE '[%]x%'"_s, u"store_like('[%]x%', \"a\")"_s);
    condition("one character", u"a LIKE 'x_'"_s,
              u"\"a\" COLLATE NOCASE >= 'x' AND \"a\" COLLATE NOCASE < 'y' AND store_like('x_', \"a\")"_s);
    condition("any run", u"a LIKE '%'"_s, u"\"a\" IS NOT NULL"_s);
    condition("no run", u"a NOT LIKE '%'"_s, u"NOT (\"a\" = \"a\")"_s);
    condition("plain characters of other dialects", u"a LIKE 'x*?'"_s, u"\"a\" = 'x*?' COLLATE NOCASE"_s);
    condition("empty pattern", u"a LIKE ''"_s, u"\"a\" = '' COLLATE NOCASE"_s);
    condition("pattern put together", u"a LIKE b & '%'"_s,
              u"store_like(COALESCE(\"b\", '') || COALESCE('%', ''), \"a\")"_s);
    condition("two ranges", u"a LIKE 'x%' OR NOT a LIKE 'y%'"_s,
              u"(\"a\" COLLATE NOCASE >= 'x' AND \"a\" COLLATE NOCASE < 'y') OR (NOT (\"a\" COLLATE NOCASE >= 'y' AND "
              u"\"a\" COLLATE NOCASE < 'z'))"_s);
}

void addComparisonRows(const AddRow &condition)
{
    condition("equal text", u"'x' = a"_s, u"'x' = \"a\" COLLATE NOCASE"_s);
    condition("equal text beyond ASCII", u"a <> '\u00e9'"_s, u"\"a\" <> '\u00e9' COLLATE STORE"_s);
    condition("text in order", u"a >= 'x'"_s, u"\"a\" >= 'x' COLLATE STORE"_s);
    condition("text in double quotes", u"a = \"it's \"\"x\"\"\""_s, u"\"a\" = 'it''s \"x\"' COLLATE NOCASE"_s);
    condition("between", u"a BETWEEN 'x' AND 'a'"_s,
              u"(\"a\" COLLATE STORE BETWEEN 'x' AND 'a' OR \"a\" COLLATE STORE BETWEEN 'a' AND 'x')"_s);
    condition("in", u"a NOT IN ('x', 'y')"_s, u"\"a\" COLLATE NOCASE NOT IN ('x', 'y')"_s);
    condition("Yes", u"a = Yes"_s, u"\"a\" <> 0"_s);
    condition("not Yes", u"a <> True"_s, u"\"a\" = 0"_s);
    condition("No", u"Off = a"_s, u"\"a\" = 0"_s);
    condition("flag as number", u"a > Yes"_s, u"\"a\" > -1"_s);
    condition("Null", u"a IS NOT NULL AND b IS NULL"_s, u"(\"a\" IS NOT NULL) AND (\"b\" IS NULL)"_s);
    condition("And binds more than Or", u"a = 1 OR b = 2 AND NOT c = 3"_s,
              u"(\"a\" = 1) OR ((\"b\" = 2) AND (NOT (\"c\" = 3)))"_s);
    condition("arithmetic", u"a = 1 + 2 * -b / 4"_s, u"\"a\" = (1 + (CAST((2 * (-\"b\")) AS REAL) / 4))"_s);
    condition("date, month first", u"a > #2/1/2001#"_s, u"\"a\" > '2001-02-01 00:00:00'"_s);
    condition("date, impossible month", u"a > #31/1/99 5:07 PM#"_s, u"\"a\" > '1999-01-31 17:07:00'"_s);
    condition("date, year first", u"a > #2001-01-31 17:07:09#"_s, u"\"a\" > '2001-01-31 17:07:09'"_s);
    condition("names", u"[a]!`b c` = [x\"y]"_s, u"\"a\".\"b c\" = \"x\"\"y\""_s);
    condition("minus Yes", u"a + b = -Yes"_s, u"(\"a\" + \"b\") = (-(-1))"_s);
}

void addStatementRows(const AddRow &row)
{
    row("star", u"select * from [my T];"_s, u"SELECT *, \"my T\"._rowid_ FROM \"my T\""_s);
    row("alias of a table", u"SELECT x.a AS [first] FROM T x ORDER BY a, 1 DESC"_s,
        u"SELECT \"x\".\"a\" AS \"first\", \"x\"._rowid_ FROM \"T\" AS \"x\" ORDER BY \"x\".\"a\" COLLATE STORE, "
        u"1 COLLATE STORE DESC"_s);
    row("distinct", u"SELECT DISTINCT T.a, b FROM T WHERE c = 1"_s,
        u"SELECT \"T\".\"a\", \"b\" FROM \"T\" WHERE \"c\" = 1 GROUP BY \"T\".\"a\" COLLATE STORE, \"b\" COLLATE STORE"_s);
    row("distinct rows", u"SELECT DISTINCT * FROM T"_s, u"SELECT DISTINCT * FROM \"T\""_s);
    row("top", u"SELECT TOP 3 a FROM T ORDER BY a"_s,
        u"SELECT \"a\", \"T\"._rowid_ FROM \"T\" ORDER BY \"T\".\"a\" COLLATE STORE LIMIT 3"_s);
    row("groups", u"SELECT a, Count(*), Max(T.b) AS b FROM T GROUP BY a HAVING Sum(c) > 1"_s,
        u"SELECT \"a\", COUNT(*) AS \"Expr1000\", MAX(\"T\".\"b\" COLLATE STORE) AS \"b\" FROM \"T\" GROUP BY \"a\" "
        u"COLLATE STORE HAVING SUM(\"c\") > 1"_s);
    row("two tables", u"SELECT * FROM A, B"_s, u"SELECT * FROM \"A\", \"B\""_s);
    row("table in brackets", u"SELECT a FROM (T)"_s, u"SELECT \"a\", \"T\"._rowid_ FROM \"T\""_s);
    row("three tables", u"SELECT a FROM (A INNER JOIN B ON A.x = B.x) RIGHT OUTER JOIN C ON (B.y = C.y)"_s,
        u"SELECT \"a\" FROM (\"A\" INNER JOIN \"B\" ON \"A\".\"x\" = \"B\".\"x\") RIGHT JOIN \"C\" ON \"B\".\"y\" = "
        u"\"C\".\"y\""_s);
    row("join on the right side", u"SELECT a FROM A LEFT JOIN (B LEFT JOIN C ON B.y = C.y) ON A.x = B.x"_s,
        u"SELECT \"a\" FROM \"A\" LEFT JOIN \"B\" ON \"A\".\"x\" = \"B\".\"x\" LEFT JOIN \"C\" ON \"B\".\"y\" = \"C\".\"y\""_s);
    row("join on the right side that must stay",
        u"SELECT a FROM A LEFT JOIN (B LEFT JOIN C ON B.y = C.y) ON A.x = C.x"_s,
        u"SELECT \"a\" FROM \"A\" LEFT JOIN (\"B\" LEFT JOIN \"C\" ON \"B\".\"y\" = \"C\".\"y\") ON \"A\".\"x\" = \"C\".\"x\""_s);

    row("delete by a column", u"DELETE T.a, b FROM T WHERE (T.a =4)"_s, u"DELETE FROM \"T\" WHERE \"T\".\"a\" = 4"_s);
    row("delete all", u"delete * from T"_s, u"DELETE FROM \"T\""_s);
    row("update", u"UPDATE T SET T.a = 'x', [T].[b] = [b] + 1 WHERE (T.a=4);"_s,
        u"UPDATE \"T\" SET \"a\" = ?1, \"b\" = \"b\" + 1 WHERE \"T\".\"a\" = 4"_s);
    row("insert", u"INSERT INTO T (a, T.b)values (Date(), 'x')"_s,
        u"INSERT INTO \"T\" (\"a\", \"b\") VALUES (strftime('%Y-%m-%d 00:00:00', 'now', 'localtime'), ?1)"_s);
}

using AddRefusal = std::function<void(const QString &statement, const QString &description)>;

void addRefusedLists(const AddRefusal &row)
{
    const QString unknown =
        u"Invalid SQL statement; expected 'DELETE', 'INSERT', 'PROCEDURE', 'SELECT', or 'UPDATE'."_s;
    row(u""_s, unknown);
    row(u" ;"_s, unknown);
    row(u"selec * from T"_s, unknown);
    row(u"SELECT a FROM T;;"_s, u"Characters found after end of SQL statement."_s);

    const QString list = u"The SELECT statement includes a reserved word or an argument name that is misspelled or "
                         u"missing, or the punctuation is incorrect."_s;
    row(u"SELECT FROM T"_s, list);
    row(u"SELECT a, FROM T"_s, list);
    row(u"SELECT * a FROM T"_s, list);
    row(u"SELECT a AS FROM T"_s, list);
    row(u"SELECT a b FROM T"_s, u"Syntax error (missing operator) in query expression 'a b'."_s);
    row(u"SELECT a + AS x FROM T"_s, u"Syntax error (missing operator) in query expression 'a +'."_s);

    const QString from = u"Syntax error in FROM clause."_s;
    row(u"SELECT a FROM"_s, from);
    row(u"SELECT a FROM Order"_s, from);
    row(u"SELECT a FROM A JOIN B ON A.x = B.x"_s, from);
    row(u"SELECT a FROM A INNER B"_s, from);
    row(u"SELECT a FROM T LIMIT 1, x y"_s, from);
    row(u"SELECT a FROM [T"_s, u"Invalid bracketing of name '[T'."_s);
    row(u"SELECT a FROM A INNER JOIN B WHERE 1"_s, u"Syntax error in JOIN operation."_s);
    row(u"SELECT a FROM A INNER JOIN B ON A.x = B.x INNER JOIN C ON B.y = C.y WHERE 1 = 1"_s,
        u"Syntax error (missing operator) in query expression 'A.x = B.x INNER JOIN C ON B.y = C.y'."_s);
}

void addRefusedConditions(const AddRefusal &row)
{
    const auto condition = [&row](const QString &written, const QString &description) {
        row(u"SELECT a FROM T WHERE "_s + written, description);
    };
    row(u"SELECT a FROM T WHERE"_s, u"Syntax error in WHERE clause."_s);
    condition(u"a = 'x"_s, u"Syntax error in string in query expression 'a = 'x'."_s);
    condition(u"a = #13/32/2001#"_s, u"Syntax error in date in query expression 'a = #13/32/2001#'."_s);
    condition(u"a = #x"_s, u"Syntax error in date in query expression 'a = #x'."_s);
    condition(u"a = 1..2 ORDER BY a"_s, u"Syntax error in number in query expression 'a = 1..2'."_s);
    condition(u"(a = 1, b)"_s, u"Syntax error (comma) in query expression '(a = 1, b)'."_s);
    condition(u"(a = 1 ORDER BY a"_s, u"Missing ), ], or Item in query expression '(a = 1'."_s);
    condition(u"a NOT = 1"_s, u"Syntax error (missing operator) in query expression 'a NOT = 1'."_s);
    condition(u"a = ?"_s, u"Syntax error (missing operator) in query expression 'a = ?'."_s);
    condition(u"Left(a, 1) = 'x'"_s, u"Undefined function 'Left' in expression."_s);
    condition(u"Max(a) = 1"_s, u"Cannot have aggregate function in WHERE clause (Max(a) = 1)."_s);
    row(u"SELECT Max(a, b) FROM T"_s,
        u"Wrong number of arguments used with function in query expression 'Max(a, b)'."_s);
    condition(u"a = 1 "_s + u"OR a = 1 "_s.repeated(3000), u"Query is too complex."_s);
    condition(u"("_s.repeated(3000), u"Query is too complex."_s);
}

void addRefusedClauses(const AddRefusal &row)
{
    row(u"SELECT a FROM T GROUP a"_s, u"Syntax error in GROUP BY clause."_s);
    row(u"SELECT a FROM T GROUP BY a HAVING"_s, u"Syntax error in HAVING clause."_s);
    row(u"SELECT a FROM T ORDER a"_s, u"Syntax error in ORDER BY clause."_s);
    row(u"SELECT a FROM T ORDER BY a,"_s, u"Syntax error in ORDER BY clause."_s);
    row(u"SELECT a FROM T ORDER BY a b"_s, u"Syntax error (missing operator) in query expression 'a b'."_s);
    row(u"SELECT a AS x, b AS X FROM T"_s, u"Duplicate output alias 'X'."_s);
    row(u"SELECT Max(a) AS a FROM T"_s, u"Circular reference caused by alias 'a' in query definition's SELECT list."_s);
    row(u"SELECT DISTINCT a FROM T ORDER BY b"_s, u"ORDER BY clause (b) conflicts with DISTINCT."_s);

    const QString insert = u"Syntax error in INSERT INTO statement."_s;
    row(u"INSERT T (a) VALUES (1)"_s, insert);
    row(u"INSERT INTO T VALUES (1)"_s, insert);
    row(u"INSERT INTO T (a) VALUES (1"_s, insert);
    row(u"INSERT INTO T (a, b) VALUES (1)"_s, u"Number of query values and destination fields are not the same."_s);
    row(u"INSERT INTO T (a) VALUES (1, 2)"_s, u"Number of query values and destination fields are not the same."_s);
    row(u"INSERT INTO T (a) VALUES (1) x"_s, u"Missing semicolon (;) at end of SQL statement."_s);
    row(u"UPDATE T SET a = "_s, u"Syntax error in UPDATE statement."_s);
    row(u"UPDATE T SET a = , b = 1"_s, u"Syntax error in UPDATE statement."_s);
    row(u"UPDATE T WHERE a = 1"_s, u"Syntax error in UPDATE statement."_s);
    row(u"DELETE T"_s, u"Syntax error in DELETE statement."_s);
    row(u"DELETE * FROM A, B"_s, u"Specify the table containing the records you want to delete."_s);
}

} // namespace

void TranslationTest::acceptsOrRefusesWhatTheWindowsCompose_data()
{
    QTest::addColumn<QString>("statement");
    QTest::addColumn<QString>("error");
    QFile file(QStringLiteral(STATEMENTS_FILE));
    QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(file.errorString()));
    QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
    lines << QString();
    int statements = 0;
    for (qsizetype at = 0; at + 1 < lines.size(); ++at) {
        const QString &line = lines[at];
        const bool isMark = line.startsWith(u"ERROR: ") || line.startsWith(u"STORE ERROR: ");
        if (line.isEmpty() || line.startsWith(u'#') || isMark)
            continue;
        const QString &next = lines[at + 1];
        QTest::addRow("line %lld", static_cast<long long>(at + 1))
            << line << (next.startsWith(u"ERROR: ") ? next.sliced(7) : QString());
        ++statements;
    }
    QVERIFY2(statements > 150, "the fixture is not whole");
}

void TranslationTest::acceptsOrRefusesWhatTheWindowsCompose()
{
    QFETCH(const QString, statement);
    QFETCH(const QString, error);
    QCOMPARE(errorOf(statement), error);
}

void TranslationTest::writesForSqlite_data()
{
    QTest::addColumn<QString>("statement");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, const QString &statement, const QString &expected) {
        QTest::newRow(name) << statement << expected;
    };
    // A condition on column a of the table T, and what becomes of it.
    const auto condition = [&row](const char *name, const QString &written, const QString &expected) {
        row(name, u"SELECT b FROM T WHERE "_s + written, u"SELECT \"b\", \"T\"._rowid_ FROM \"T\" WHERE "_s + expected);
    };

    addLikeRows(condition);
    addComparisonRows(condition);
    addStatementRows(row);
}

void TranslationTest::writesForSqlite()
{
    QFETCH(const QString, statement);
    QFETCH(const QString, expected);
    QCOMPARE(sqlOf(statement), expected);
}

void TranslationTest::refuses_data()
{
    QTest::addColumn<QString>("statement");
    QTest::addColumn<QString>("description");
    const auto row = [](const QString &statement, const QString &description) {
        QTest::newRow(qPrintable(statement.left(90))) << statement << description;
    };
    addRefusedLists(row);
    addRefusedConditions(row);
    addRefusedClauses(row);
}

void TranslationTest::refuses()
{
    QFETCH(const QString, statement);
    QFETCH(const QString, description);
    QCOMPARE(errorOf(statement), QString::number(syntaxErrorNumber) + u' ' + description);
}

void TranslationTest::setsLiteralsApart()
{
    using runtime::Value;
    const sql::Translation insert =
        sql::translate(u"INSERT INTO T (a, b, c, d, e, f, g, h, i) values ('it''s', -3, 4000000000, 1.5, (No), "
                       u"#1/31/2001#, Null, 1 + 2, \"\")"_s);
    const std::vector<std::pair<QString, Value>> expected{
        {u"a"_s, Value(u"it's"_s)}, {u"b"_s, Value(qint32(-3))}, {u"c"_s, Value(4e9)},
        {u"d"_s, Value(1.5)},       {u"e"_s, Value(false)},      {u"f"_s, Value(runtime::Date(QDate(2001, 1, 31)))},
        {u"g"_s, Value()},          {u"i"_s, Value(u""_s)},
    };
    QVERIFY(insert.sql.endsWith("VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7, 1 + 2, ?8)"));
    QCOMPARE(insert.assignments.size(), expected.size());
    for (size_t at = 0; at < expected.size(); ++at) {
        QCOMPARE(insert.assignments[at].column, expected[at].first);
        QVERIFY2(insert.assignments[at].literal == expected[at].second, qPrintable(expected[at].first));
    }
}

void TranslationTest::tellsComparisonsWithLiterals()
{
    const sql::Translation select = sql::translate(
        u"SELECT x.a FROM T AS x INNER JOIN U ON x.k = U.k WHERE x.a = 'x' AND -1 < b AND U.c IN (1, 'y') "
        u"AND d = Yes AND e = #1/1/2001# AND f LIKE 'z%' AND g IS NULL"_s);
    QStringList told;
    for (const sql::Comparison &comparison : select.comparisons)
        told << comparison.column.table + u'.' + comparison.column.column +
                    (comparison.withText ? u" text"_s : u" number"_s);
    QCOMPARE(told, QStringList({u"T.a text"_s, u".b number"_s, u"U.c number"_s, u"U.c text"_s}));
}

void TranslationTest::tellsTheSourceOfMaxAndMin()
{
    const sql::Translation select =
        sql::translate(u"SELECT Max(x.a) AS a, Min(b), Max(a + 1) AS c, Count(d) AS d2, Sum(e) AS e2 FROM T AS x"_s);
    QStringList told;
    for (const sql::ComputedColumn &column : select.computed)
        told << column.name + u'=' + column.source.table + u'.' + column.source.column;
    QCOMPARE(told, QStringList({u"a=T.a"_s, u"Expr1000=.b"_s}));
}

void TranslationTest::carriesTheRowIdOfOneTable_data()
{
    QTest::addColumn<QString>("statement");
    QTest::addColumn<QString>("table");
    QTest::addColumn<QByteArray>("list");
    const auto row = [](const QString &statement, const QString &table, const QByteArray &list) {
        QTest::newRow(qPrintable(statement)) << statement << table << list;
    };
    row(u"SELECT * FROM T"_s, u"T"_s, "*, \"T\"._rowid_"_ba);
    row(u"SELECT a FROM T AS x"_s, u"T"_s, "\"a\", \"x\"._rowid_"_ba);
    row(u"SELECT DISTINCT a FROM T"_s, u"T"_s, "\"a\""_ba);
    row(u"SELECT a FROM T GROUP BY a"_s, u"T"_s, "\"a\""_ba);
    row(u"SELECT 1 + Count(*) AS n FROM T"_s, u"T"_s, "1 + COUNT(*) AS \"n\""_ba);
    row(u"SELECT * FROM T, U"_s, QString(), "*"_ba);
}

void TranslationTest::carriesTheRowIdOfOneTable()
{
    QFETCH(const QString, statement);
    QFETCH(const QString, table);
    QFETCH(const QByteArray, list);
    const sql::Translation select = sql::translate(statement);
    QCOMPARE(select.table, table);
    QCOMPARE(select.sql.mid(select.listBegin, select.listLength), list);
    QCOMPARE(select.carriesRowId, list.endsWith("_rowid_"));
}

void TranslationTest::asksForLikeOnlyWhereItIsCalled()
{
    QVERIFY(!sql::translate(u"SELECT * FROM T WHERE a LIKE 'x%'"_s).callsLike);
    QVERIFY(sql::translate(u"SELECT * FROM T WHERE a LIKE '%x'"_s).callsLike);
}

void TranslationTest::keepsTranslationsByTheirText()
{
    const QString first = u"SELECT * FROM T WHERE a = 0"_s;
    const auto kept = sql::cachedTranslation(first);
    QCOMPARE(sql::cachedTranslation(first), kept);
    QVERIFY(sql::cachedTranslation(u"SELECT * FROM T WHERE a = 1"_s)->sql != kept->sql);
    for (int key = 1; key < 10'000; ++key)
        sql::cachedTranslation(u"SELECT * FROM T WHERE a = "_s + QString::number(key));
    QCOMPARE(kept.use_count(), 1); // it was dropped to make room
    QCOMPARE(sql::cachedTranslation(first)->sql, kept->sql);
}

QTEST_APPLESS_MAIN(TranslationTest)
#include "tst_translation.moc"
