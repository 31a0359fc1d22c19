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
    // What the fixture of statements has no room for.
    void refuses()
    {
        for (const auto &[statement, description] :
             {std::pair(u""_s, u"Invalid SQL statement; expected 'DELETE', 'INSERT', 'PROCEDURE', 'SELECT', or "
                               u"'UPDATE'."_s),
              {u"SELECT a FROM [T\0]"_s, u"Invalid bracketing of name '[T\0]'."_s},
              {u"SELECT a FROM T WHERE a = 'x\0y'"_s, u"Syntax error in string in query expression 'a = 'x\0y''."_s},
              {u"SELECT a FROM T WHERE "_s + u"("_s.repeated(3000), u"Query is too complex."_s}})
            QCOMPARE(errorOf([&, &text = statement] { sql::translate(text); }), u"-2147217900 "_s + description);
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
