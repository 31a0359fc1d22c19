#include "support/FileTest.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using data::Recordset;
using runtime::Value;

namespace {

Value bytes(const char *content)
{
    return Value(QByteArray(content));
}

} // namespace

class ChunksTest : public FileTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() { open(DataFolder::Content::Empty); }
    void cleanup() { close(); }

    void storesASeries()
    {
        Recordset rows = attachments();
        rows.AddNew();
        rows[u"AttachmentsName"].setValue(u"a.doc"_s);
        rows[u"Attachments"].AppendChunk("one,");
        rows[u"Attachments"].AppendChunk("two");
        rows[u"Attachments"].AppendChunk(QByteArray(1, '\0'));
        QCOMPARE(rows[u"Attachments"].ActualSize(), 8);
        rows.Update();
        QCOMPARE(rows[u"Attachments"].ActualSize(), 8);
        QCOMPARE(rows[u"Attachments"].Value(), Value(QByteArray("one,two\0", 8)));

        // The first call after the save begins anew.
        rows[u"Attachments"].AppendChunk("new");
        rows.Update();
        QCOMPARE(rows[u"Attachments"].Value(), bytes("new"));
        rows[u"Attachments"].AppendChunk("dropped");
        rows[u"Attachments"].setValue(Value());
        rows[u"Attachments"].AppendChunk("dropped");
        rows.CancelUpdate();
        QCOMPARE(rows[u"Attachments"].Value(), bytes("new"));
    }

    void readsASeries()
    {
        m_folder->execute(
            "INSERT INTO Attachments (AttachmentsName, Attachments) VALUES ('a', CAST('0123456789' AS BLOB)),"
            " ('b', CAST('abc' AS BLOB))");
        Recordset rows = attachments();
        data::Field content = rows[u"Attachments"];
        QCOMPARE(content.GetChunk(4), bytes("0123"));
        QCOMPARE(content.GetChunk(4), bytes("4567"));
        QCOMPARE(content.GetChunk(4), bytes("89"));
        QVERIFY(content.GetChunk(4).isNull());
        rows.MoveNext(); // another row, another series
        QCOMPARE(content.GetChunk(2), bytes("ab"));
        rows.MoveFirst();
        QCOMPARE(content.GetChunk(100), bytes("0123456789"));
        rows.MoveLast();
        rows.MoveNext();
        QVERIFY(errorOf([&] { content.GetChunk(1); }).startsWith(u"3021 "));
    }

    void endsASeriesAtAnotherField()
    {
        m_folder->execute("INSERT INTO Attachments (AttachmentsName, Attachments) VALUES ('a', x'00')");
        Recordset rows = attachments();
        Recordset other = attachments();
        rows[u"Attachments"].AppendChunk("one");
        QVERIFY(!other[u"AttachmentsName"].Value().isNull()); // another recordset does not disturb
        rows[u"Attachments"].AppendChunk("two");
        QCOMPARE(rows[u"Attachments"].Value(), bytes("onetwo"));
        rows[u"AttachmentsName"].setValue(u"b"_s);
        rows[u"Attachments"].AppendChunk("three");
        QCOMPARE(rows[u"Attachments"].Value(), bytes("three"));
        QVERIFY(!rows[u"AttachmentsName"].Value().isNull()); // reading another ends it too
        rows[u"Attachments"].AppendChunk("four");
        rows.Update();
        QCOMPARE(rows[u"Attachments"].Value(), bytes("four"));

        QCOMPARE(rows[u"Attachments"].GetChunk(2), bytes("fo"));
        QVERIFY(!rows[u"AttachmentsName"].Value().isNull());
        QCOMPARE(rows[u"Attachments"].GetChunk(2), bytes("fo"));
        QCOMPARE(rows[u"Attachments"].GetChunk(9), bytes("ur"));
    }

    void readsWhatIsPending()
    {
        m_folder->execute("INSERT INTO Attachments (AttachmentsName, Attachments) VALUES ('a', x'61')");
        Recordset rows = attachments();
        rows[u"AttachmentsName"].setValue(u"b"_s);
        QCOMPARE(rows[u"Attachments"].GetChunk(9), bytes("a")); // an edit that leaves the bytes alone
        rows.Update();
        QCOMPARE(m_folder->row("SELECT hex(Attachments) FROM Attachments"), u"61"_s);
        Recordset joined; // rows that may not be changed have the bytes in them
        joined.Open(u"SELECT x.Attachments FROM Attachments AS x LEFT JOIN MemberType ON x.MemberId = MemberTypeId"_s,
                    m_connection);
        QCOMPARE(joined[u"Attachments"].GetChunk(9), bytes("a"));
        rows[u"Attachments"].setValue(bytes("pending"));
        QCOMPARE(rows[u"Attachments"].GetChunk(4), bytes("pend"));
        rows[u"Attachments"].setValue(Value());
        QVERIFY(rows[u"Attachments"].GetChunk(4).isNull());
        rows.CancelUpdate();
    }

    void tellsNoBytesFromNull()
    {
        Recordset rows = attachments();
        for (const bool isNull : {false, true}) {
            rows.AddNew();
            if (!isNull)
                rows[u"Attachments"].AppendChunk({});
            rows.Update();
            QCOMPARE(rows[u"Attachments"].Value(), isNull ? Value() : Value(QByteArray()));
            QVERIFY(rows[u"Attachments"].GetChunk(10).isNull());
            QCOMPARE(rows[u"Attachments"].ActualSize(), 0);
        }
        QCOMPARE(m_folder->rows("SELECT typeof(Attachments), length(Attachments) FROM Attachments"),
                 (QStringList{u"blob|0"_s, u"null|NULL"_s}));

        const QString notInContext = u"3219 Operation is not allowed in this context."_s;
        QCOMPARE(errorOf([&] { rows[u"AttachmentsName"].AppendChunk("x"); }), notInContext);
        QCOMPARE(errorOf([&] { rows[u"AttachmentsName"].GetChunk(1); }), notInContext);
        rows[u"AttachmentsName"].setValue(u"äöü"_s);
        QCOMPARE(rows[u"AttachmentsName"].ActualSize(), 6); // two bytes a character
    }

private:
    Recordset attachments(const QString &condition = {}) { return opened(u"select * from Attachments"_s + condition); }
};

QTEST_GUILESS_MAIN(ChunksTest)
#include "tst_chunks.moc"
