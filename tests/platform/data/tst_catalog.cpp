#include "platform/data/Catalog.h"
#include "platform/runtime/ProviderError.h"
#include "support/FileTest.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using data::Catalog;
using data::Column;
using data::Recordset;
using data::Table;
using runtime::Value;

namespace {

const QString invalidName = u"-2147217900 '%1' is not a valid name.  Make sure that it does not include invalid "
                            u"characters or punctuation and that it is not too long."_s;

void set(const Column &column, QStringView property, const Value &value)
{
    column.Properties().Item(property).setValue(value);
}

QStringList namesOf(auto &&collection)
{
    QStringList names;
    for (const auto &item : collection)
        names << item.Name();
    return names;
}

} // namespace

class CatalogTest : public FileTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        open(DataFolder::Content::Empty, "CREATE VIEW Names AS SELECT \"Last Name\" FROM \"Personal Information\"");
        m_catalog.setActiveConnection(m_folder->connectionString());
    }
    void cleanup()
    {
        m_catalog = Catalog();
        close();
    }

    void storesAGeneratedTable()
    {
        m_catalog.Tables().Append(described(u"T"_s));
        QCOMPARE(m_folder->rows("SELECT name, type, \"notnull\", dflt_value, pk FROM pragma_table_info('T')"),
                 (QStringList{u"Key|INTEGER|0|NULL|0"_s, u"Link|INTEGER|1|NULL|0"_s,
                              u"Day|DATETIME|1|strftime('%Y-%m-%d 00:00:00', 'now', 'localtime')|0"_s,
                              u"Phone|TEXT|0|NULL|0"_s}));
        QCOMPARE(m_folder->row("SELECT COUNT(*) FROM pragma_index_list('T')"), u"0"_s);

        const Value before{runtime::Date(QDate::currentDate())};
        Recordset rows = opened(u"select * from [T]"_s);
        rows.AddNew();
        QVERIFY(errorOf([&] { rows.Update(); }).contains(u"'T.Link' cannot contain a Null value"));
        const auto added = [&rows](const Value &key = {}) {
            rows.AddNew();
            rows[u"Link"].setValue(Value(17));
            if (!key.isNull())
                rows[u"Key"].setValue(key);
            rows.Update();
            return rows[u"Key"].Value();
        };
        rows.CancelUpdate();
        QCOMPARE(added(), Value(1));
        const Value day = rows[u"Day"].Value();
        QVERIFY(day == before || day == Value(runtime::Date(QDate::currentDate()))); // midnight may have passed
        QCOMPARE(added(), Value(2));
        rows.Delete();
        QCOMPARE(added(), Value(3)); // no number twice
        QCOMPARE(added(Value(40)), Value(40));
        QCOMPARE(added(Value(40)), Value(40)); // by hand, for it is no key
        QCOMPARE(added(), Value(41));
        m_folder->execute("DELETE FROM sqlite_sequence"); // as if by another tool
        QCOMPARE(added(), Value(42));
    }

    void refusesTables()
    {
        const QString exists = u"-2147217857 Table '%1' already exists."_s;
        const QStringList before = layout();
        for (const auto &[name, error] :
             {std::pair(u"PERSONAL information"_s, exists), std::pair(u"Names"_s, exists), // a view
              std::pair(u"FieldInfo_TabId"_s, exists),                                     // an index
              std::pair(QString(), invalidName), std::pair(u"SQLite_x"_s, invalidName)}) {
            Table refused = described(name);
            QCOMPARE(errorOf([&] { m_catalog.Tables().Append(refused); }), error.arg(name));
            refused.setName(u"Other"_s); // it is not taken for stored
        }
        QCOMPARE(layout(), before);
    }

    // In a table that is described as in one that is stored.
    void refusesNamesOfColumns()
    {
        m_folder->execute("CREATE TABLE Stored (Day DATETIME)");
        const QStringList before = layout();
        for (const QString &name : {u""_s, u"[c"_s, u"_ROWID_"_s}) { // the last would hide how rows are found again
            const auto appended = [&](const Table &table) {
                table.Columns().Append(name);
                m_catalog.Tables().Append(table);
            };
            QCOMPARE(errorOf([&] { appended(described(u"T"_s)); }), invalidName.arg(name));
            QCOMPARE(errorOf([&] { appended(stored(u"Stored"_s)); }), invalidName.arg(name));
            QCOMPARE(layout(), before);
        }
    }

    void takesAnyName()
    {
        for (const QString &name :
             {u"O'Brien's"_s, u"say \"so\""_s, u"a.b;--"_s, u"Select"_s, u"Größe"_s, u"?1 %1"_s}) {
            const Table table = described(name);
            table.Columns().Append(name);
            m_catalog.Tables().Append(table);
            QCOMPARE(namesOf(stored(name).Columns()).last(), name);
            Recordset rows = opened(u"select * from ["_s + name + u']');
            rows.AddNew();
            rows[u"Link"].setValue(Value(1));
            rows[name].setValue(name);
            rows.Update();
            QCOMPARE(textsOf(m_connection, u"select * from ["_s + name + u"] where Link = 1"_s, name),
                     QStringList{name});
        }
    }

    void readsWhatIsStored()
    {
        QCOMPARE(namesOf(m_catalog.Tables()),
                 m_folder->rows("SELECT name FROM sqlite_master WHERE type IN ('table', 'view') ORDER BY name"));
        QCOMPARE(stored(u"Names"_s).Type(), u"VIEW"_s);
        QCOMPARE(namesOf(stored(u"Names"_s).Columns()), QStringList{u"Last Name"_s});
        QCOMPARE(stored(u"sqlite_sequence"_s).Type(), u"SYSTEM TABLE"_s);
        QCOMPARE(stored(u"TabInfo"_s).Type(), u"TABLE"_s);
    }

    void addsColumnsToAStoredTable()
    {
        const Table table = described(u"T"_s);
        m_catalog.Tables().Append(table);
        m_folder->execute("INSERT INTO T (Link, Phone) VALUES (17, '555')");
        Recordset before = opened(u"select * from [T]"_s);
        QCOMPARE(before[u"Phone"].Value(), Value(u"555"_s));

        Column fax;
        fax.setName(u"Fax"_s);
        fax.setParentCatalog(m_catalog);
        set(fax, u"nullable", Value(true));
        stored(u"T"_s).Columns().Append(fax, data::adVarWChar, 0);
        QCOMPARE(namesOf(table.Columns()).last(), u"Fax"_s);
        QCOMPARE(errorNumberOf([&] { before[u"Fax"].Value(); }), provider::NoSuchItem); // its rows were read before
        Recordset after = opened(u"select * from [T]"_s);
        QVERIFY(after[u"Fax"].Value().isNull());
        after[u"Fax"].setValue(u"556"_s);
        after.Update();
        QCOMPARE(errorOf([&] { table.Columns().Append(u"FAX"_s); }),
                 u"-2147217858 Field 'FAX' already exists in table 'T'."_s);
        QCOMPARE(
            errorOf([&] { table.Columns().Append(u"c"_s); }), // the row that is there has no value for it
            u"-2147467259 The field 'T.c' cannot contain a Null value because the Required property for this field is "
            u"set to True.  Enter a value in this field."_s);
        QCOMPARE(m_folder->row("SELECT * FROM T").section(u'|', 3), u"555|556"_s);
    }

    void addsAColumnOfTodayToRows()
    {
        m_folder->execute("CREATE TABLE T (A TEXT); INSERT INTO T VALUES ('x')");
        Column since;
        since.setName(u"Since"_s);
        since.setParentCatalog(m_catalog);
        set(since, u"Default", Value(u"=Date()"_s));
        stored(u"T"_s).Columns().Append(since, data::adDate, 0);
        QCOMPARE(
            m_folder->row("SELECT Since LIKE '% 00:00:00' AND Since BETWEEN date('now', 'localtime', '-1 day') AND "
                          "datetime('now', 'localtime') FROM T"), // midnight may have passed
            u"1"_s);
    }

    void leavesNothingOfARefusedChange()
    {
        m_folder->execute("CREATE TRIGGER T AFTER DELETE ON TabInfo BEGIN SELECT 1; END");
        QStringList before = layout();
        QVERIFY(!errorOf([&] { m_catalog.Tables().Append(described(u"T"_s)); }).isEmpty()); // its counter has that name
        QCOMPARE(layout(), before);

        m_folder->execute("CREATE TABLE U (a TEXT); INSERT INTO U VALUES ('x');"
                          "CREATE TRIGGER V BEFORE UPDATE ON U BEGIN SELECT RAISE(ABORT, 'refused'); END");
        before = layout();
        Column day;
        day.setName(u"Day"_s);
        day.setParentCatalog(m_catalog);
        set(day, u"Default", Value(u"Date()"_s));
        QCOMPARE(errorOf([&] { stored(u"U"_s).Columns().Append(day, data::adDate, 0); }), u"-2147467259 refused"_s);
        QCOMPARE(layout(), before);
    }

    void sharesAConnectionToOneFileOnly()
    {
        Catalog second;
        second.setActiveConnection(m_folder->connectionString());
        const DataFolder otherFolder(DataFolder::Content::Empty);
        Catalog other;
        other.setActiveConnection(otherFolder.connectionString());
        second.Tables().Append(described(u"T"_s));
        QVERIFY(namesOf(m_catalog.Tables()).contains(u"T"_s));
        QVERIFY(!namesOf(other.Tables()).contains(u"T"_s));
        m_catalog = Catalog(); // the one that opened it
        QVERIFY(namesOf(second.Tables()).contains(u"T"_s));
    }

private:
    // As the designer describes the table of a tab.
    Table described(const QString &name) const
    {
        Table table;
        table.setName(name);
        table.setParentCatalog(m_catalog);
        table.Columns().Append(u"Key"_s, data::adInteger);
        set(table.Columns().Item(u"Key"), u"AutoIncrement", Value(true));
        table.Columns().Append(u"Link"_s, data::adInteger);
        table.Columns().Append(u"Day"_s, data::adDate);
        set(table.Columns().Item(u"Day"), u"Default", Value(u"Date$()"_s));
        table.Columns().Append(u"Phone"_s, data::adVarWChar);
        set(table.Columns().Item(u"Phone"), u"Required", Value(false));
        return table;
    }
    Table stored(const QString &name) const
    {
        for (const Table &table : m_catalog.Tables()) {
            if (table.Name() == name)
                return table;
        }
        return {};
    }
    QStringList layout() const { return m_folder->rows("SELECT type, name, sql FROM sqlite_master ORDER BY name"); }

    Catalog m_catalog;
};

QTEST_GUILESS_MAIN(CatalogTest)
#include "tst_catalog.moc"
