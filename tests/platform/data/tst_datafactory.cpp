#include "platform/data/DataFactory.h"
#include "support/DataFolder.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using data::FieldDefinition;
using data::Recordset;
using runtime::Value;

namespace {

const std::vector<FieldDefinition> hits{{u"DocumentId"_s, data::adInteger, -1, false},
                                        {u"DocumentName"_s, data::adChar, 255, true},
                                        {u"Version"_s, data::adInteger, -1, true}};

Recordset made(const std::vector<FieldDefinition> &columns = hits)
{
    return data::DataFactory().CreateRecordset(columns);
}

void add(Recordset &rows, qint32 id, const QString &name)
{
    rows.AddNew();
    rows.Fields(0).setValue(Value(id));
    rows.Fields(1).setValue(name);
    rows.Update();
}

} // namespace

class DataFactoryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesRows()
    {
        Recordset rows = made();
        QVERIFY(rows.Eof());
        QCOMPARE(rows.RecordCount(), 0);
        add(rows, 70'000, u"it's a.doc"_s);
        add(rows, 2, QString());
        add(rows, 70'000, u" b "_s); // nothing is unique, nothing is padded
        QVERIFY(!rows.Eof());
        QCOMPARE(rows[u"documentname"].Value(), Value(u" b "_s)); // the last one added is current
        rows.MoveFirst();
        QCOMPARE(rows[u"DocumentId"].Value(), Value(qint32(70'000)));
        QVERIFY(rows[u"Version"].Value().isNull());
        QCOMPARE(textsOf(rows, u"DocumentName"), (QStringList{u"it's a.doc"_s, u""_s, u" b "_s}));
        QVERIFY(rows.Eof());
        add(rows, 3, u"after they were read"_s);
        QCOMPARE(rows.RecordCount(), 4);
    }

    void keepsItsRowsForItself()
    {
        Recordset rows = made();
        add(rows, 1, u"a"_s);
        Recordset other = made();
        QCOMPARE(other.RecordCount(), 0);
        other = std::move(rows); // the rows go along
        QCOMPARE(other.RecordCount(), 1);
        other.Close();
        QVERIFY(errorOf([&] { other.Eof(); }).startsWith(u"3704 "));
    }
};

QTEST_GUILESS_MAIN(DataFactoryTest)
#include "tst_datafactory.moc"
