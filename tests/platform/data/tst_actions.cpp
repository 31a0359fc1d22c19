#include "support/DataFolder.h"

#include <QTest>

#include <optional>

using namespace Qt::Literals::StringLiterals;
using data::Connection;
using data::Recordset;
using runtime::Value;

namespace {

const QString mismatch = u"-2147217913 Data type mismatch in criteria expression."_s;
const QString overflow = u"-2147217833 Overflow"_s;
const QString noValueGiven = u"-2147217904 No value given for one or more required parameters."_s;

QString noInputTable(const QString &name)
{
    return u"-2147217865 The Microsoft Jet database engine cannot find the input table or query '%1'.  Make sure it "
           u"exists and that its name is spelled correctly."_s.arg(name);
}

} // namespace

class ActionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder.emplace();
        m_folder->execute("CREATE TABLE Kinds (Id INTEGER PRIMARY KEY, Small SMALLINT, Whole INTEGER, Real DOUBLE,"
                          " Amount CURRENCY, Day DATETIME, Flag BOOLEAN, Word TEXT COLLATE NOCASE,"
                          " Bytes BLOB); INSERT INTO Kinds (Id) VALUES (1)");
        m_folder->open(m_connection);
    }

    void cleanup()
    {
        QLocale::setDefault(QLocale::c());
        m_connection = Connection();
        m_folder.reset();
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
        row("Amount", "0.00005", u"0"_s);
        row("Amount", "'922337203685477.5807'", u"922337203685477.5807 exact"_s); // no number has room for it
        row("Amount", "'-90071992547409.93'", u"-90071992547409.93 exact"_s);
        row("Amount", "'922337203685477.5808'", overflow);
        row("Amount", "''", mismatch);
        row("Day", "'1/31/2001'", u"2001-01-31 00:00:00"_s);
        row("Day", "#1/31/2001 5:04 PM#", u"2001-01-31 17:04:00"_s);
        row("Day", "'soon'", mismatch);
        row("Flag", "2", u"-1"_s);
        row("Flag", "'x'", mismatch);
        row("Word", "'it''s'", u"it's"_s);
        row("Whole", "-3", u"-3"_s);
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

    void refusesStatements()
    {
        const QList<std::pair<QString, QStringList>> refusals{
            {u"-2147217900 The INSERT INTO statement contains the following unknown field name: 'Colour'.  Make sure "
             u"you "
             u"have typed the name correctly, and try the operation again."_s,
             {u"INSERT INTO Kinds (Word, Colour) values ('a', 'b')"_s}},
            {noValueGiven,
             {u"UPDATE Kinds SET Colour = 'b'"_s, u"DELETE * FROM Kinds WHERE Colour = 'b'"_s,
              u"SELECT Colour FROM Kinds"_s, u"SELECT Word FROM Kinds ORDER BY Colour"_s,
              u"SELECT * FROM Kinds WHERE Word = red"_s}},
            {u"-2147217865 Could not find output table 'No Such'."_s, {u"INSERT INTO [No Such] (a) values ('b')"_s}},
            {noInputTable(u"No Such"_s),
             {u"UPDATE [No Such] SET a = 'b'"_s, u"DELETE * FROM [No Such]"_s, u"SELECT * FROM [No Such]"_s,
              u"SELECT * FROM Kinds LEFT JOIN [No Such] ON Kinds.Id = [No Such].Id"_s}},
            {u"-2147217900 Query is too complex."_s,
             {u"SELECT * FROM Kinds WHERE Id = 1"_s + u" OR Id = 1"_s.repeated(1199),
              u"UPDATE Kinds SET Id = 1"_s + u" + 0"_s.repeated(1199),
              u"SELECT * FROM Kinds WHERE Id = "_s + u"(1 + "_s.repeated(150) + u'1' + QString(150, u')'),
              u"SELECT Id"_s + u", Id"_s.repeated(2999) + u" FROM Kinds"_s}},
            {u"-2147467259 The specified field 'MemberId' could refer to more than one table listed in the FROM clause "
             u"of "
             u"your SQL statement."_s,
             {u"SELECT MemberId FROM MemberInformation INNER JOIN EmployerInformation ON MemberInformation.MemberId = "
              u"EmployerInformation.MemberId"_s}}};
        for (const auto &[error, statements] : refusals) {
            for (const QString &statement : statements)
                QCOMPARE(errorOf([&] { run(statement); }), error);
        }
        QCOMPARE(m_folder->row("SELECT COUNT(*), Word FROM Kinds"), u"1|NULL"_s);
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

    void fillsInDefaults()
    {
        const QDate today = QDate::currentDate();
        run(u"INSERT INTO Contributions (ContributionAmount, ContributionNotes, MemberId) values ('12.50','',17)"_s);
        Recordset rows;
        rows.Open(u"SELECT * FROM Contributions WHERE ContributionNotes = '' AND MemberId = 17"_s, m_connection);
        QCOMPARE(rows.RecordCount(), 1);
        QCOMPARE(rows[u"ContributionAmount"].Value(), Value(runtime::Currency::fromScaled(125'000)));
        const QDate day = rows[u"ContributionDate"].Value().get<runtime::Date>().day();
        QVERIFY(day == today || day == QDate::currentDate()); // midnight may have passed
        run(u"INSERT INTO MemberInformation (LastName) values ('Default')"_s);
        QCOMPARE(textsOf(m_connection, u"select * from MemberInformation where LastName = 'Default' and Active = yes"_s,
                         u"MemberId"),
                 QStringList{u"65"_s});
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

    void leavesTheFileWholeWhenItFails_data()
    {
        QTest::addColumn<QString>("statement");
        QTest::addColumn<int>("failsAt"); // the row whose change is refused

        for (const int failsAt : {1, 6}) {
            QTest::addRow("update, row %d", failsAt) << u"UPDATE MemberType SET MemberType = 'x'"_s << failsAt;
            QTest::addRow("delete, row %d", failsAt) << u"DELETE * FROM MemberType"_s << failsAt;
        }
        QTest::newRow("insert") << u"INSERT INTO MemberType (MemberType) values ('x')"_s << 7;
    }

    // A statement that fails in its middle changes nothing, and the recordset that meets the failure keeps its change.
    void leavesTheFileWholeWhenItFails()
    {
        QFETCH(QString, statement);
        QFETCH(int, failsAt);
        const QByteArray raise = " ON MemberType WHEN %1.MemberTypeId = " + QByteArray::number(failsAt) +
                                 " BEGIN SELECT RAISE(ABORT, 'refused'); END;";
        for (const QByteArray event : {"UPDATE", "DELETE", "INSERT"})
            m_folder->execute("CREATE TRIGGER refuse" + event + " AFTER " + event +
                              QByteArray(raise).replace("%1", event == "DELETE" ? "OLD" : "NEW"));
        const QStringList before = m_folder->rows("SELECT * FROM MemberType");

        QCOMPARE(errorOf([&] { run(statement); }), u"-2147467259 refused"_s);
        QCOMPARE(m_folder->rows("SELECT * FROM MemberType"), before);

        Recordset rows;
        rows.Open(u"select * from MemberType where MemberTypeId = %1"_s.arg(failsAt), m_connection);
        if (rows.Eof())
            rows.AddNew();
        rows[u"MemberType"].setValue(u"kept"_s);
        QCOMPARE(errorOf([&] { rows.Update(); }), u"-2147217887 refused"_s);
        QCOMPARE(rows[u"MemberType"].Value(), Value(u"kept"_s));
        QCOMPARE(m_folder->rows("SELECT * FROM MemberType"), before);
        QCOMPARE(m_folder->row("PRAGMA integrity_check"), u"ok"_s);

        m_folder->execute("DROP TRIGGER refuseUPDATE; DROP TRIGGER refuseINSERT");
        rows.Update(); // what was pending is saved after all
        QCOMPARE(m_folder->row("SELECT MemberTypeId FROM MemberType WHERE MemberType = 'kept'"),
                 QString::number(failsAt));
    }

private:
    void run(const QString &statement)
    {
        Recordset action;
        action.Open(statement, m_connection);
    }

    std::optional<DataFolder> m_folder;
    Connection m_connection;
};

QTEST_GUILESS_MAIN(ActionsTest)
#include "tst_actions.moc"
