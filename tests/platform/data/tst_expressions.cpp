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
    void initTestCase();
    void choosesRows_data();
    void choosesRows();
    void arrangesRows();
    void keepsTheTypeOfAnExtreme();

private:
    DataFolder m_folder{DataFolder::Content::Empty};
    Connection m_connection;
};

void ExpressionsTest::initTestCase()
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

void ExpressionsTest::choosesRows_data()
{
    QTest::addColumn<QString>("condition");
    QTest::addColumn<QString>("rows");
    const auto row = [](const char *condition, const char *rows) {
        QTest::newRow(condition) << QString::fromUtf8(condition) << QString::fromLatin1(rows);
    };
    row("N LIKE '12%'", "2 3"); // a range of texts holds no number
    row("R LIKE '12%'", "2");
    row("R LIKE '%2'", "2"); // 12, not 12.0
    row("D LIKE '2001%'", "1 2 5");
    row("N + 0 LIKE '12%'", "2 3");
    row("W LIKE 'x@%'", "3");
    row("W LIKE '%'", "1 2 3 5");
    row("NOT (W LIKE '%')", "");
    row("F = Yes", "1 3"); // 1 is what another tool writes
    row("W IS NOT NULL AND N <> 0", "1 2 3");
    row("N = 1 OR N = 12 AND NOT R = 12", "1");
    row("N / 5 = 2.4", "2");
    row("N \\ 5 = 2", "2");
    row("R \\ 1 = 2", "1"); // rounds first
    row("R + 1 * 2 = 3.5", "1");
    row("N = --12", "2");
    row("W & N = 'SMITH1'", "1");
    row("W & Null = ''", "4 5");
    row("W + 'x' = 'smithx'", "1");
    row("W = \"sm\" & 'ith'", "1");
    row("D = #1/31/2001 5:07 PM#", "1");
    row("D = #31/1/99 5:07 PM#", "3"); // there is no 31st month
    row("N BETWEEN 12 AND 1", "1 2");
    row("N NOT BETWEEN 1 AND 12", "3 5");
    row("W BETWEEN 'T' AND 'S'", "1 2");
    row("N NOT IN (1, 12, 120)", "5");
    row("W IN ('SMITH', '\u00c9')", "1");
    row("W > 'SMITH'", "2 3");
    row("[T]![N] = 1", "1");
}

void ExpressionsTest::choosesRows()
{
    QFETCH(QString, condition);
    QFETCH(QString, rows);
    const QStringList found =
        textsOf(m_connection, u"SELECT Id FROM T WHERE "_s + condition + u" ORDER BY Id;"_s, u"Id");
    QCOMPARE(found.join(u' '), rows);
}

void ExpressionsTest::arrangesRows()
{
    const auto arranged = [this](const QString &statement) {
        return textsOf(m_connection, statement, u"X").join(u' ');
    };
    QCOMPARE(arranged(u"SELECT TOP 2 Id AS X FROM T ORDER BY N DESC"_s), u"3 2"_s);
    QCOMPARE(arranged(u"SELECT Id AS N, Id AS X FROM T ORDER BY N"_s), u"4 5 1 2 3"_s); // the column, not the alias
    QCOMPARE(arranged(u"SELECT y.Id AS X FROM T y WHERE y.N = 12"_s), u"2"_s);
    QCOMPARE(arranged(u"SELECT Count(*) AS X FROM T GROUP BY F HAVING Count(*) > 1"_s), u"2"_s);
    QCOMPARE(arranged(u"SELECT Count(*), Sum(N), Max(N) AS X FROM T"_s), u"120"_s);
    QCOMPARE(arranged(u"SELECT a.Id AS X FROM T AS a, T AS b WHERE a.N = b.R ORDER BY a.Id"_s), u"2 5"_s);
    QCOMPARE(
        arranged(u"SELECT b.Id AS X FROM T AS a RIGHT JOIN T AS b ON a.N = b.R WHERE a.Id Is Null ORDER BY b.Id"_s),
        u"1 3 4"_s);
    const QString nested = u"SELECT c.Id AS X FROM T AS a LEFT JOIN (T AS b LEFT JOIN T AS c ON %1) ON %2 "
                           u"ORDER BY a.Id"_s;
    QCOMPARE(arranged(nested.arg(u"b.R = c.R"_s, u"a.N = b.R"_s)), u" 2   5"_s);
    QCOMPARE(arranged(nested.arg(u"b.Id = c.Id"_s, u"a.N = c.R"_s)), u" 2   5"_s);
    QCOMPARE(arranged(nested.arg(u"b.N = 1 OR c.N = 1"_s, u"a.Id = b.Id"_s)), u"1 2 3 4 5 1 1 1 1"_s);
}

void ExpressionsTest::keepsTheTypeOfAnExtreme()
{
    Recordset rows;
    rows.Open(u"SELECT Max(x.D) AS D, Min(N) FROM T AS x"_s, m_connection);
    QCOMPARE(rows[u"D"].Value(), runtime::Value(runtime::Date(QDate(2001, 2, 1))));
    QCOMPARE(rows[u"Expr1000"].Value(), runtime::Value(qint32(0)));
}

QTEST_GUILESS_MAIN(ExpressionsTest)
#include "tst_expressions.moc"
