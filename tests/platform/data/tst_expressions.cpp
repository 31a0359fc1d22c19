#include "support/DataFolder.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using data::Connection;
using data::Recordset;

// What the dialect's expressions and clauses mean, by the rows that they find in a table of five.

class ExpressionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_folder.execute("CREATE TABLE T (Id INTEGER PRIMARY KEY, N INTEGER, R DOUBLE, D DATETIME, F BOOLEAN,"
                         " W TEXT COLLATE NOCASE, B BLOB); INSERT INTO T VALUES"
                         " (1, 1, 1.5, '2001-01-31 17:07:00', -1, 'Smith', x'01'),"
                         " (2, 12, 12, '2001-02-01 00:00:00', 0, 'smYth', NULL),"
                         " (3, 120, -0.5, '1999-01-31 17:07:00', 1, 'x@b', NULL),"
                         " (4, NULL, NULL, NULL, NULL, NULL, NULL),"
                         " (5, 0, 0, '2001-01-31 17:07:09', 0, '', NULL)");
        m_folder.open(m_connection);
    }

    void choosesRows()
    {
        const QList<std::pair<QString, QString>> choices{
            {u"N LIKE '12%'"_s, u"2 3"_s}, // a range of texts holds no number
            {u"R LIKE '%2'"_s, u"2"_s},    // 12, not 12.0
            {u"D LIKE '2001%'"_s, u"1 2 5"_s},
            {u"N + 0 LIKE '12%'"_s, u"2 3"_s},
            {u"W LIKE 'x@%'"_s, u"3"_s},
            {u"W LIKE W"_s, u"1 2 3 5"_s},
            {u"NOT (W LIKE '%')"_s, u""_s},
            {u"(W LIKE '%') = No"_s, u""_s}, // a Null is neither
            {u"Yes <> F"_s, u"2 5"_s},       // 1 is Yes too, as another tool writes it
            {u"R \\ 1 = 2"_s, u"1"_s},       // rounds first
            {u"W & N = 'SMITH1'"_s, u"1"_s},
            {u"W & Null = ''"_s, u"4 5"_s},
            {u"W + 'x' = 'smithx'"_s, u"1"_s},
            {u"D = #31/1/99 5:07 PM#"_s, u"3"_s}, // there is no 31st month
            {u"W BETWEEN 'T' AND 'S'"_s, u"1 2"_s},
            {u"N NOT IN (1, 12, 120)"_s, u"5"_s},
            {u"W IN ('SMITH', '\u00c9')"_s, u"1"_s},
            {u"'SMITH' IN (W)"_s, u"1"_s},
            {u"W IN ('SMI' & 'TH')"_s, u"1"_s},
            {u"W & '' BETWEEN 'SMITH' & '' AND 'X'"_s, u"1 2"_s},
            {u"W + '' = ('SMITH' & '') + ''"_s, u"1"_s},
            {u"[T]![N] = 1"_s, u"1"_s},
        };
        for (const auto &[condition, rows] : choices) {
            const QStringList found =
                textsOf(m_connection, u"SELECT Id FROM T WHERE "_s + condition + u" ORDER BY Id;"_s, u"Id");
            QCOMPARE(condition + u": "_s + found.join(u' '), condition + u": "_s + rows);
        }
    }

    void arrangesRows()
    {
        const auto arranged = [this](const QString &statement) {
            return textsOf(m_connection, statement, u"X").join(u' ');
        };
        QCOMPARE(arranged(u"SELECT Id AS N, Id AS X FROM T ORDER BY N"_s), u"4 5 1 2 3"_s); // the column, not the alias
        QCOMPARE(arranged(u"SELECT y.Id AS X FROM T y WHERE y.N = 12"_s), u"2"_s);
        QCOMPARE(arranged(u"SELECT Count(*) AS X FROM T GROUP BY F HAVING Count(*) > 1"_s), u"2"_s);
        QCOMPARE(arranged(u"SELECT a.Id AS X FROM T AS a, T AS b WHERE a.N = b.R ORDER BY a.Id"_s), u"2 5"_s);
        const QString nested = u"SELECT c.Id AS X FROM T AS a LEFT JOIN (T AS b LEFT JOIN T AS c ON %1) ON %2 "
                               u"ORDER BY a.Id"_s;
        QCOMPARE(arranged(nested.arg(u"b.R = c.R"_s, u"a.N = b.R"_s)), u" 2   5"_s);
        QCOMPARE(arranged(nested.arg(u"b.Id = c.Id"_s, u"a.N = c.R"_s)), u" 2   5"_s);
        QCOMPARE(arranged(nested.arg(u"b.N = 1 OR c.N = 1"_s, u"a.Id = b.Id"_s)), u"1 2 3 4 5 1 1 1 1"_s);
    }

    void keepsTheTypeOfAnExtreme()
    {
        Recordset rows;
        rows.Open(u"SELECT Max(x.D) AS D, Min(N) FROM T AS x"_s, m_connection);
        QCOMPARE(rows[u"D"].Value(), runtime::Value(runtime::Date(QDate(2001, 2, 1))));
        QCOMPARE(rows[u"Expr1000"].Value(), runtime::Value(qint32(0)));
    }

private:
    DataFolder m_folder{DataFolder::Content::Empty};
    Connection m_connection;
};

QTEST_GUILESS_MAIN(ExpressionsTest)
#include "tst_expressions.moc"
