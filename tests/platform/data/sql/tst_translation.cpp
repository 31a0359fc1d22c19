#include "platform/data/sql/Translation.h"
#include "support/Outcome.h"

#include <QTest>

#include <memory>
#include <vector>

using namespace Qt::Literals::StringLiterals;

class TranslationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void refuses()
    {
        const QList<std::pair<QString, QStringList>> refusals{
            {u"Invalid SQL statement; expected 'DELETE', 'INSERT', 'PROCEDURE', 'SELECT', or 'UPDATE'."_s,
             {u""_s, u" ;"_s, u"selec * from T"_s}},
            {u"The SELECT statement includes a reserved word or an argument name that is misspelled or "
             u"missing, or the punctuation is incorrect."_s,
             {u"SELECT FROM T"_s, u"SELECT a, FROM T"_s, u"SELECT * a FROM T"_s, u"SELECT a AS FROM T"_s,
              u"SELECT *, 1"_s}},
            {u"Syntax error (missing operator) in query expression 'a b'."_s,
             {u"SELECT a b FROM T"_s, u"SELECT a FROM T ORDER BY a b"_s}},
            {u"Syntax error in FROM clause."_s,
             {u"SELECT a FROM"_s, u"SELECT a FROM Order"_s, u"SELECT a FROM A JOIN B ON A.x = B.x"_s,
              u"SELECT a FROM A INNER B"_s}},
            {u"Invalid bracketing of name '[T'."_s, {u"SELECT a FROM [T"_s}},
            {u"Invalid bracketing of name '[T\0]'."_s, {u"SELECT a FROM [T\0]"_s}},
            {u"Syntax error in string in query expression 'a = 'x\0y''."_s, {u"SELECT a FROM T WHERE a = 'x\0y'"_s}},
            {u"Syntax error in JOIN operation."_s, {u"SELECT a FROM A INNER JOIN B WHERE 1"_s}},
            {u"Syntax error (missing operator) in query expression 'A.x = B.x INNER JOIN C ON B.y = C.y'."_s,
             {u"SELECT a FROM A INNER JOIN B ON A.x = B.x INNER JOIN C ON B.y = C.y WHERE 1 = 1"_s}},
            {u"Syntax error in WHERE clause."_s, {u"SELECT a FROM T WHERE"_s}},
            {u"Syntax error in date in query expression 'a = #13/32/2001#'."_s,
             {u"SELECT a FROM T WHERE a = #13/32/2001#"_s}},
            {u"Syntax error in date in query expression 'a = #x'."_s, {u"SELECT a FROM T WHERE a = #x"_s}},
            {u"Syntax error (missing operator) in query expression 'a NOT = 1'."_s,
             {u"SELECT a FROM T WHERE a NOT = 1"_s}},
            {u"Cannot have aggregate function in WHERE clause (Max(a) = 1)."_s,
             {u"SELECT a FROM T WHERE Max(a) = 1"_s}},
            {u"Wrong number of arguments used with function in query expression 'Max(a, b)'."_s,
             {u"SELECT Max(a, b) FROM T"_s}},
            {u"Query is too complex."_s, {u"SELECT a FROM T WHERE "_s + u"("_s.repeated(3000)}},
            {u"Syntax error in GROUP BY clause."_s, {u"SELECT a FROM T GROUP a"_s}},
            {u"Syntax error in HAVING clause."_s, {u"SELECT a FROM T GROUP BY a HAVING"_s}},
            {u"Syntax error in ORDER BY clause."_s, {u"SELECT a FROM T ORDER a"_s, u"SELECT a FROM T ORDER BY a,"_s}},
            {u"Duplicate output alias 'X'."_s, {u"SELECT a AS x, b AS X FROM T"_s}},
            {u"Circular reference caused by alias 'a' in query definition's SELECT list."_s,
             {u"SELECT Max(a) AS a FROM T"_s}},
            {u"ORDER BY clause (b) conflicts with DISTINCT."_s, {u"SELECT DISTINCT a FROM T ORDER BY b"_s}},
            {u"Syntax error in INSERT INTO statement."_s,
             {u"INSERT T (a) VALUES (1)"_s, u"INSERT INTO T VALUES (1)"_s, u"INSERT INTO T (a) VALUES (1"_s}},
            {u"Number of query values and destination fields are not the same."_s,
             {u"INSERT INTO T (a, b) VALUES (1)"_s}},
            {u"Missing semicolon (;) at end of SQL statement."_s, {u"INSERT INTO T (a) VALUES (1) x"_s}},
            {u"Syntax error in UPDATE statement."_s,
             {u"UPDATE T SET a = "_s, u"UPDATE T SET a = , b = 1"_s, u"UPDATE T WHERE a = 1"_s}},
            {u"Syntax error in DELETE statement."_s, {u"DELETE T"_s}},
            {u"Specify the table containing the records you want to delete."_s, {u"DELETE * FROM A, B"_s}}};
        for (const auto &[description, statements] : refusals) {
            for (const QString &statement : statements)
                QCOMPARE(statement + u": "_s + errorOf([&] { sql::translate(statement); }),
                         statement + u": -2147217900 "_s + description);
        }
    }

    // Statements hold keys and texts of the user, so there is no end to them.
    void keepsALimitedNumberOfStatements()
    {
        std::vector<std::weak_ptr<const sql::Translation>> made;
        qsizetype kept = 0;
        for (int key = 0; key < 20'000; ++key)
            made.push_back(sql::cachedTranslation(u"SELECT * FROM T WHERE a = "_s + QString::number(key)));
        for (const auto &translation : made) {
            if (const auto known = translation.lock())
                kept += qsizetype(sizeof(*known)) + 2 * known->sql.size();
        }
        QVERIFY2(kept > 100'000 && kept < 1'000'000, qPrintable(QString::number(kept)));
    }

    void keepsNoSecretsAndNoNotes()
    {
        const auto isKept = [](const QString &statement) {
            const auto first = sql::cachedTranslation(statement);
            return sql::cachedTranslation(statement) == first;
        };
        QVERIFY(isKept(u"SELECT * FROM T WHERE a = 'x'"_s));
        for (const QString &statement : {u"SELECT * FROM SECURITY WHERE UserPassword = 'secret'"_s,
                                         u"UPDATE [Security] SET UserPassword = 'secret'"_s,
                                         u"SELECT * FROM T INNER JOIN Security ON T.a = Security.a"_s,
                                         u"INSERT INTO T (a) VALUES ('%1')"_s.arg(QString(3000, u'x'))})
            QVERIFY2(!isKept(statement), qPrintable(statement.left(90)));
    }
};

QTEST_APPLESS_MAIN(TranslationTest)
#include "tst_translation.moc"
