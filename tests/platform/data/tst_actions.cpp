#include "support/FileTest.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString mismatch = u"-2147217913 Data type mismatch in criteria expression."_s;
const QString overflow = u"-2147217833 Overflow"_s;

} // namespace

class ActionsTest : public FileTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        open(DataFolder::Content::Sample,
             "CREATE TABLE Kinds (Id INTEGER PRIMARY KEY, Small SMALLINT, Whole INTEGER, Real DOUBLE,"
             " Amount CURRENCY, Day DATETIME, Flag BOOLEAN, Word TEXT COLLATE NOCASE,"
             " Bytes BLOB); INSERT INTO Kinds (Id) VALUES (1)");
    }

    void cleanup()
    {
        QLocale::setDefault(QLocale::c());
        close();
    }

    void convertsLiterals_data()
    {
        QTest::addColumn<QString>("column");
        QTest::addColumn<QString>("literal");
        QTest::addColumn<QString>("stored"); // or the error

        const auto row = [](const char *column, const char *literal, const QString &stored) {
            QTest::addRow("%s = %s", column, literal)
                << QString::fromLatin1(column) << QString::fromLatin1(literal) << stored;
        };
        row("Small", "'12'", u"12"_s);
        row("Small", "'12.5'", u"12"_s); // half to even
        row("Small", "32768", overflow);
        row("Small", "Yes", u"-1"_s);
        row("Whole", "'2147483648'", overflow);
        row("Real", "'1e400'", overflow);
        row("Amount", "'$1,200.50'", u"1200.5"_s);
        row("Amount", "'922337203685477.5807'", u"922337203685477.5807 exact"_s); // no number has room for it
        row("Amount", "'922337203685477.5808'", overflow);
        row("Amount", "''", mismatch);
        row("Day", "'1/31/2001'", u"2001-01-31 00:00:00"_s);
        row("Day", "#1/31/2001 5:04 PM#", u"2001-01-31 17:04:00"_s);
        row("Day", "'soon'", mismatch);
        row("Flag", "2", u"-1"_s);
        row("Flag", "'x'", mismatch);
        row("Word", "'it''s'", u"it's"_s);
        row("Real", "4000000000 + 1", u"4000000001.0"_s);
        row("Word", "''", QString());
        row("Bytes", "'x'", mismatch);
    }

    // The same in an INSERT and in an UPDATE.
    void convertsLiterals()
    {
        QFETCH(QString, column);
        QFETCH(QString, literal);
        QFETCH(QString, stored);
        const QString inserted =
            errorOf([&] { run(u"INSERT INTO Kinds (Id, %1) values (2, %2)"_s.arg(column, literal)); });
        const QString updated =
            errorOf([&] { run(u"UPDATE Kinds SET Kinds.%1 = %2 WHERE (Id=1);"_s.arg(column, literal)); });
        if (stored.startsWith(u"-2147")) {
            QCOMPARE(inserted, stored);
            QCOMPARE(updated, stored);
            QCOMPARE(m_folder->row("SELECT COUNT(*) FROM Kinds"), u"1"_s);
            stored = u"NULL"_s;
        } else {
            QCOMPARE(inserted + updated, QString());
            QCOMPARE(m_folder->row("SELECT " + column.toUtf8() + " FROM Kinds WHERE Id = 2"), stored);
        }
        QCOMPARE(m_folder->row("SELECT " + column.toUtf8() + " FROM Kinds WHERE Id = 1"), stored);
    }

    void convertsLiteralsOfAnotherRegion()
    {
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        // Quoted values are the user's, read by the user's settings; unquoted ones are the dialect's own.
        run(u"INSERT INTO Kinds (Amount, Real, Day) values ('1.234,5', 2.5, '2.3.2001')"_s);
        run(u"INSERT INTO Kinds (Amount, Day) values ('12', #2/3/2001#)"_s);
        QCOMPARE(m_folder->rows("SELECT Amount, Real, Day FROM Kinds WHERE Id > 1"),
                 (QStringList{u"1234.5|2.5|2001-03-02 00:00:00"_s, u"12|NULL|2001-02-03 00:00:00"_s}));
    }

    void refusesWhatIsTooComplex()
    {
        const QString tooComplex = u"-2147217900 Query is too complex."_s;
        const auto nested = [](int depth) {
            return u"SELECT * FROM Kinds WHERE Id = "_s + u"(1 + "_s.repeated(depth) + u'1' + QString(depth, u')');
        };
        for (const QString &statement : {u"SELECT * FROM Kinds WHERE Id = 1"_s + u" OR Id = 1"_s.repeated(1199),
                                         nested(250), u"SELECT Id"_s + u", Id"_s.repeated(2999) + u" FROM Kinds"_s})
            QCOMPARE(errorOf([&] { run(statement); }), tooComplex);
    }

    void comparesOnlyLikeWithLike()
    {
        const auto outcomes = [this](const QString &condition) {
            return QStringList{errorOf([&] { run(u"SELECT * FROM Kinds WHERE "_s + condition); }),
                               errorOf([&] { run(u"UPDATE Kinds SET Word = 'x' WHERE "_s + condition); }),
                               errorOf([&] { run(u"DELETE * FROM Kinds WHERE "_s + condition); })};
        };
        for (const QString &condition : {u"Whole = 12"_s, u"Word = '12'"_s, u"Day > #1/1/2001#"_s, u"Flag = Yes"_s,
                                         u"Amount = 12.5"_s, u"Whole = Null"_s})
            QCOMPARE(outcomes(condition), QStringList(3, QString()));
        for (const QString &condition : {u"Whole = ''"_s, u"'12' = Kinds.Whole"_s, u"Word = 12"_s, u"Amount = '12.5'"_s,
                                         u"Day = '1/1/2001'"_s, u"Id = 0 AND (Word = 'x' OR Real = 'x')"_s})
            QCOMPARE(outcomes(condition), QStringList(3, mismatch));
        QCOMPARE(m_folder->row("SELECT COUNT(*), Word FROM Kinds"), u"1|NULL"_s);
    }

    void changesAndDeletesWhatTheConditionNames()
    {
        run(u"UPDATE MemberType SET MemberType.MemberType = 'it''s \"so\"; é' WHERE (MemberType.MemberTypeId=4);"_s);
        QCOMPARE(m_folder->rows("SELECT MemberTypeId FROM MemberType WHERE MemberType = 'it''s \"so\"; é'"),
                 QStringList{u"4"_s});
        run(u"DELETE MemberType.MemberType FROM MemberType WHERE (MemberTypeId =4)"_s); // the whole row goes
        run(u"DELETE * FROM MemberType WHERE (MemberTypeId =4)"_s);                     // nothing left to delete
        QCOMPARE(m_folder->row("SELECT group_concat(MemberTypeId) FROM MemberType"), u"1,2,3,5,6"_s);
        run(u"delete * from MemberType"_s);
        QCOMPARE(m_folder->row("SELECT COUNT(*) FROM MemberType"), u"0"_s);
    }

private:
    void run(const QString &statement) { opened(statement); }
};

QTEST_GUILESS_MAIN(ActionsTest)
#include "tst_actions.moc"
