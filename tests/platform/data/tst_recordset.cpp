#include "support/FileTest.h"
#include "support/UnitedStates.h"

#include <QTest>

#include <limits>

using namespace Qt::Literals::StringLiterals;
using data::Recordset;
using runtime::Value;

namespace {

const QString noCurrentRecord = u"3021 Either BOF or EOF is True, or the current record has been deleted. Requested "
                                u"operation requires a current record."_s;
const QString refusedValue = u"-2147217887 Multiple-step operation generated errors. Check each status value."_s;
Value text(const char *utf8)
{
    return Value(QString::fromUtf8(utf8));
}

} // namespace

class RecordsetTest : public FileTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() { open(DataFolder::Content::Sample); }
    void cleanup() { close(); }

    void closedOnesGiveNothing()
    {
        const QString closed = u"3704 Operation is not allowed when the object is closed."_s;
        Recordset rows;
        QCOMPARE(errorOf([&] { rows.Close(); }), closed);
        QCOMPARE(errorOf([&] { rows.Eof(); }), closed);
        rows.Open(u"select * from MemberType"_s, m_connection);
        QCOMPARE(errorOf([&] { rows.Open(u"select * from MemberType"_s, m_connection); }),
                 u"3705 Operation is not allowed when the object is open."_s);
        data::Field field = rows[u"MemberType"];
        field.setValue(u"Ordinary"_s);
        QCOMPARE(errorOf([&] { rows.Close(); }), u"3219 Operation is not allowed in this context."_s);
        rows.CancelUpdate();
        rows.Close();
        QCOMPARE(errorOf([&] { field.Value(); }), closed);
        QCOMPARE(errorOf([&] { field.setValue(u"x"_s); }), closed);
        // A failing statement leaves it closed; so does one that has no rows to give.
        QVERIFY(!errorOf([&] { rows.Open(u"select * from Nothing"_s, m_connection); }).isEmpty());
        QCOMPARE(rows.State(), data::adStateClosed);
        rows.Open(u"UPDATE MemberType SET MemberType = 'Ordinary' WHERE MemberTypeId = 1"_s, m_connection);
        QCOMPARE(rows.State(), data::adStateClosed);
        QCOMPARE(m_folder->row("SELECT MemberType FROM MemberType WHERE MemberTypeId = 1"), u"Ordinary"_s);
        rows.Open(u"select * from TabInfo"_s, m_connection);
        QCOMPARE(errorOf([&] { field.Name(); }), closed); // it belongs to the rows of before
        field = rows.Fields(0);
        rows = opened(u"select * from MemberType"_s);
        QCOMPARE(errorOf([&] { field.ActualSize(); }), closed);
        field = rows[u"MemberType"];
        m_connection.Close();
        QCOMPARE(errorOf([&] { field.Value(); }), closed);
    }

    void keepsAmountsExactly()
    {
        Recordset rows = opened(u"select * from Contributions where MemberId = 99"_s);
        for (const qint64 scaled :
             {std::numeric_limits<qint64>::max(), std::numeric_limits<qint64>::min(), qint64(900'719'925'474'099'300),
              qint64(9'007'199'254'740'993), qint64(8'999'999'999'999'999'999), qint64(-1), qint64(120'000)}) {
            const Value amount(runtime::Currency::fromScaled(scaled));
            rows.AddNew();
            rows[u"ContributionAmount"].setValue(amount);
            rows[u"MemberId"].setValue(Value(qint16(99)));
            rows.Update();
            QCOMPARE(rows[u"ContributionAmount"].Value(), amount);
        }
    }

    void walksItsRows()
    {
        Recordset rows =
            opened(u"SELECT MemberTypeId AS id, MemberType AS [type] FROM MemberType order by MemberTypeId"_s);
        QCOMPARE(rows.RecordCount(), 6);
        const data::Field type = rows[u"TYPE"];
        QCOMPARE(type.Value(), text("Regular"));
        rows.MoveLast();
        QCOMPARE(type.Value(), text("Honorary")); // the field follows the moves
        rows.MoveNext();
        QVERIFY(rows.Eof());
        QCOMPARE(errorOf([&] { rows.MoveNext(); }), noCurrentRecord);
        QCOMPARE(errorOf([&] { type.Value(); }), noCurrentRecord);
        rows.MoveFirst();
        QCOMPARE(textsOf(rows, u"id"), (QStringList{u"1"_s, u"2"_s, u"3"_s, u"4"_s, u"5"_s, u"6"_s}));

        QCOMPARE(rows.Fields(1).Name(), u"type"_s);
        const QString noSuchItem =
            u"3265 Item cannot be found in the collection corresponding to the requested name or "
            u"ordinal."_s;
        for (const QString &name : {u"MemberType"_s, QString()})
            QCOMPARE(errorOf([&] { rows[name]; }), noSuchItem);
        for (const int place : {2, -1})
            QCOMPARE(errorOf([&] { rows.Fields(place); }), noSuchItem);
    }

    void keepsTypes()
    {
        m_folder->execute(
            "CREATE TABLE Kinds (Flag BOOLEAN, Small SMALLINT, Whole INTEGER, Real DOUBLE, Amount CURRENCY,"
            "                    Day DATETIME, Word TEXT, Memo LONGTEXT, Bytes BLOB);"
            "INSERT INTO Kinds VALUES (-1, 7, 100000, 1.5, 12.3456, '2001-01-31 17:04:00', 'w', 'm', x'00ff'),"
            "                         (0, 70000, 5000000000, 2, 3, 'soon', 12, 1.5, 'text')");
        Recordset rows = opened(u"select * from Kinds"_s);
        QCOMPARE(rows[u"Flag"].Value(), Value(true));
        QCOMPARE(rows[u"Small"].Value(), Value(qint16(7)));
        QCOMPARE(rows[u"Whole"].Value(), Value(qint32(100'000)));
        QCOMPARE(rows[u"Real"].Value(), Value(1.5));
        QCOMPARE(rows[u"Amount"].Value(), Value(runtime::Currency::fromScaled(123'456)));
        QCOMPARE(rows[u"Day"].Value(), Value(runtime::Date(QDate(2001, 1, 31), QTime(17, 4))));
        QCOMPARE(rows[u"Bytes"].Value(), Value(QByteArray("\0\xff", 2)));

        // What another tool wrote into a column of another kind comes back as what it is.
        rows.MoveNext();
        QCOMPARE(rows[u"Flag"].Value(), Value(false));
        QCOMPARE(rows[u"Small"].Value(), Value(qint32(70'000)));
        QCOMPARE(rows[u"Whole"].Value(), Value(5e9));
        QCOMPARE(rows[u"Real"].Value(), Value(2.0));
        QCOMPARE(rows[u"Amount"].Value(), Value(runtime::Currency::fromScaled(30'000)));
        QCOMPARE(rows[u"Day"].Value(), text("soon"));
        QCOMPARE(rows[u"Word"].Value(), text("12"));
        QCOMPARE(rows[u"Memo"].Value(), text("1.5"));
    }

    void tellsNullFromTheEmptyText()
    {
        Recordset rows = opened(u"select * from MemberInformation where MemberId = 2"_s);
        QCOMPARE(rows[u"MiddleName"].Value(), text(""));
        QVERIFY(rows[u"CellPhone"].Value().isNull());
        QCOMPARE(errorOf([&] { runtime::toText(rows[u"CellPhone"].Value()); }), u"94 Invalid use of Null"_s);
        rows[u"MiddleName"].setValue(Value());
        rows[u"CellPhone"].setValue(QString()); // a text without characters, not Null
        rows.Update();
        QCOMPARE(m_folder->row("SELECT MiddleName, CellPhone FROM MemberInformation WHERE MemberId = 2"), u"NULL|"_s);
        QVERIFY(rows[u"MiddleName"].Value().isNull());
        QCOMPARE(rows[u"CellPhone"].Value(), text(""));
    }

    void addsRows()
    {
        Recordset rows = opened(u"select * from MemberInformation"_s);
        QCOMPARE(rows.RecordCount(), 64);
        rows.AddNew();
        QVERIFY(!rows.Eof());
        QVERIFY(rows[u"MemberId"].Value().isNull());
        rows[u"FirstName"].setValue(u"Zoë"_s);
        rows[u"LastName"].setValue(u"O'Hara; (\"x\")"_s);
        QCOMPARE(rows[u"LastName"].Value(), text("O'Hara; (\"x\")"));
        rows.UpdateBatch();
        QCOMPARE(rows[u"MemberId"].Value(), Value(qint32(65)));
        QCOMPARE(rows[u"Active"].Value(), Value(true)); // the file's default
        QCOMPARE(m_folder->row("SELECT FirstName, LastName, City, Active FROM MemberInformation WHERE MemberId = 65"),
                 u"Zoë|O'Hara; (\"x\")|NULL|-1"_s);
        rows.MoveNext(); // the new row stands at the end
        QVERIFY(rows.Eof());
    }

    void addsSeveral()
    {
        for (const bool readFirst : {false, true}) {
            Recordset rows = opened(u"select * from CategoryInfo order by CategoryName"_s);
            if (readFirst)
                QVERIFY(!rows.Eof());
            const qint32 before = opened(u"select * from CategoryInfo"_s).RecordCount();
            for (const QString &name : {u"1"_s, u"2"_s, u"3"_s}) {
                rows.AddNew(); // writes the one before
                rows[u"CategoryName"].setValue(name);
            }
            rows.Update();
            rows[u"CategoryName"].setValue(u"0"_s); // an edit of the new row
            rows.Update();
            rows.Update(); // nothing more is pending
            QCOMPARE(rows.RecordCount(), before + 3);
            rows.MoveLast();
            QCOMPARE(rows[u"CategoryName"].Value(), text("0")); // wherever the order would put it
        }
        QCOMPARE(m_folder->rows("SELECT CategoryName FROM CategoryInfo WHERE CategoryName < '4' ORDER BY CategoryName"),
                 (QStringList{u"0"_s, u"0"_s, u"1"_s, u"1"_s, u"2"_s, u"2"_s}));
    }

    void editsARowThatIsNoMore()
    {
        Recordset rows = opened(u"select * from MemberType order by MemberTypeId"_s);
        QVERIFY(!rows.Eof());
        m_folder->execute("DELETE FROM MemberType WHERE MemberTypeId = 1");
        rows[u"MemberType"].setValue(u"Ordinary"_s);
        // The user must not believe that this was saved.
        QCOMPARE(errorOf([&] { rows.Update(); }), noCurrentRecord);
        rows.CancelUpdate();
        QCOMPARE(errorOf([&] { rows.Delete(); }), noCurrentRecord);
        rows.MoveNext();
        QCOMPARE(rows[u"MemberType"].Value(), text("Family"));
    }

    void deletesWhileItWalks()
    {
        Recordset rows = opened(u"select * from MemberType order by MemberTypeId"_s);
        while (!rows.Eof()) {
            if (runtime::toLong(rows[u"MemberTypeId"].Value()) % 3 != 1)
                rows.Delete();
            rows.MoveNext();
        }
        QCOMPARE(rows.RecordCount(), 2);
        rows.MoveFirst();
        QCOMPARE(textsOf(rows, u"MemberTypeId"), (QStringList{u"1"_s, u"4"_s}));
        rows.MoveLast();
        QCOMPARE(rows[u"MemberTypeId"].Value(), Value(qint32(4)));
        QCOMPARE(m_folder->row("SELECT group_concat(MemberTypeId) FROM MemberType"), u"1,4"_s);
        rows.Delete();
        rows.MoveFirst();
        rows.Delete();
        QCOMPARE(errorOf([&] { rows.MoveFirst(); }), noCurrentRecord);
        QCOMPARE(rows.RecordCount(), 0);

        Recordset none = opened(u"select * from MemberType"_s);
        QVERIFY(none.Eof());
        QCOMPARE(errorOf([&] { none.MoveLast(); }), noCurrentRecord);
        QCOMPARE(errorOf([&] { none[u"MemberType"].setValue(u"x"_s); }), noCurrentRecord);
    }

    // At the assignment, not at the save; what was pending before stays so. Moving on saves it.
    void refusesValues()
    {
        const UnitedStates region;
        Recordset rows = opened(u"select * from Contributions order by ContributionId"_s);
        rows.MoveLast();
        const Value last = rows[u"ContributionId"].Value();
        rows.MoveFirst();
        rows[u"ContributionNotes"].setValue(u"kept"_s);
        for (const auto &[field, value] :
             {std::pair(u"ContributionAmount", text("twelve")), std::pair(u"ContributionAmount", text("1e15")),
              std::pair(u"ContributionDate", text("")), std::pair(u"ContributionDate", Value(1e9)),
              std::pair(u"ContributionNotes", Value(QByteArray("x")))})
            QCOMPARE(errorOf([&, field = field, value = value] { rows[field].setValue(value); }), refusedValue);
        rows[u"ContributionAmount"].setValue(u"$1,200.50"_s);
        QCOMPARE(rows[u"ContributionNotes"].Value(), text("kept"));
        rows.MoveLast();
        QCOMPARE(rows[u"ContributionId"].Value(), last);
        QCOMPARE(m_folder->row("SELECT ContributionAmount FROM Contributions WHERE ContributionNotes = 'kept'"),
                 u"1200.5"_s);
    }

    void passesOverAPersonThatIsThereAlready()
    {
        Recordset rows = opened(u"select * from [Personal Information]"_s);
        rows.AddNew();
        rows[u"PersonalInformationId"].setValue(Value(qint32(3)));
        rows[u"Last Name"].setValue(u"Second"_s);
        rows.Update();
        QCOMPARE(m_folder->rows("SELECT \"Last Name\" FROM \"Personal Information\" WHERE PersonalInformationId = 3"),
                 QStringList{u"Beaumont"_s});
        QCOMPARE(rows.RecordCount(), 6);
    }

    void keepsThePendingRowWhenItFails()
    {
        m_folder->execute("CREATE TABLE Strict (Id INTEGER PRIMARY KEY, Name TEXT NOT NULL);"
                          "INSERT INTO Strict VALUES (1, 'first')");
        Recordset rows = opened(u"select * from Strict"_s);
        rows.AddNew();
        rows[u"Id"].setValue(Value(qint32(1)));
        QCOMPARE(
            errorOf([&] { rows.Update(); }),
            u"-2147217887 The field 'Strict.Name' cannot contain a Null value because the Required property for this "
            u"field is set to True.  Enter a value in this field."_s);
        rows[u"Name"].setValue(u"second"_s);
        QVERIFY(errorOf([&] { rows.Update(); })
                    .startsWith(u"-2147217887 The changes you requested to the table were not successful because they "
                                u"would create duplicate values"));
        QVERIFY(errorOf([&] { rows.MoveNext(); }).startsWith(u"-2147217887 ")); // nor does it move away
        rows[u"Id"].setValue(Value(qint32(2)));
        rows.Update();
        rows[u"Name"].setValue(Value()); // an edit is kept as an added row is
        QVERIFY(errorOf([&] { rows.Update(); }).contains(u"cannot contain a Null value"));
        QVERIFY(rows[u"Name"].Value().isNull());
        QCOMPARE(m_folder->rows("SELECT * FROM Strict"), (QStringList{u"1|first"_s, u"2|second"_s}));
    }

    // Each call continues a series; another field ends it, another recordset does not.
    void bytesComeAndGoInChunks()
    {
        Recordset rows = opened(u"select * from Attachments where AttachmentsName = 'none'"_s);
        data::Field content = rows[u"Attachments"];
        rows.AddNew();
        content.AppendChunk("dropped");
        rows[u"AttachmentsName"].setValue(u"a"_s);
        for (const char *chunk : {"one,", "two"})
            content.AppendChunk(chunk);
        rows.Update();
        QVERIFY(!opened(u"select * from Attachments"_s)[u"AttachmentsName"].Value().isNull());
        QCOMPARE(content.ActualSize(), 7);
        for (const char *chunk : {"one,", "two"})
            QCOMPARE(content.GetChunk(4), Value(QByteArray(chunk)));
        QVERIFY(content.GetChunk(4).isNull());
        QVERIFY(!rows[u"AttachmentsName"].Value().isNull());
        QCOMPARE(content.GetChunk(9), Value(QByteArray("one,two")));
        content.AppendChunk("new"); // begins anew
        rows.Update();
        QCOMPARE(content.Value(), Value(QByteArray("new")));
        QCOMPARE(errorOf([&] { rows[u"AttachmentsName"].AppendChunk("x"); }),
                 u"3219 Operation is not allowed in this context."_s);
    }
};

QTEST_GUILESS_MAIN(RecordsetTest)
#include "tst_recordset.moc"
