// Older data files: brought to the present schema with their rows, or left as they were.
#include "datafile/Check.h"
#include "datafile/Schema.h"
#include "datafile/Upgrade.h"
#include "support/DataFolder.h"
#include "support/Outcome.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto rows = "SELECT MemberId, LastName FROM MemberInformation";

// Tables, columns in any order, and the columns of the indexes in theirs.
QStringList layoutOf(const QString &path)
{
    data::Database file;
    file.open(path);
    return rowsOf(file, "SELECT t.name, c.name, c.type, c.dflt_value, c.pk FROM sqlite_master AS t, "
                        "pragma_table_info(t.name) AS c WHERE t.type = 'table' ORDER BY 1, 2") +
           rowsOf(file, "SELECT i.tbl_name, i.name, c.seqno, c.name, c.coll FROM sqlite_master AS i, "
                        "pragma_index_xinfo(i.name) AS c WHERE i.type = 'index' ORDER BY 2, 3") +
           rowsOf(file, "PRAGMA user_version");
}

// A file of a former version with a member whose initial has no group, changed by a statement.
QString makeOldFile(const DataFolder &folder, const QByteArray &change)
{
    const QString path = folder.file();
    data::Database file;
    file.create(path);
    file.execute(contentOf(QStringLiteral(TOLMARK_SCHEMAS "/schema-1.sql")));
    file.execute(datafile::builtIn(u"seed.sql"_s));
    file.execute("INSERT INTO MemberInformation (LastName) VALUES ('Åkesson'); " + change);
    return path;
}

} // namespace

class tst_upgrade : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void olderFiles_data()
    {
        QTest::addColumn<QByteArray>("change");
        QTest::newRow("version 1") << QByteArray();
        QTest::newRow("version 0") << QByteArray("PRAGMA user_version = 0");
        QTest::newRow("text missing") << QByteArray("ALTER TABLE EmployerInformation DROP COLUMN Extension");
        QTest::newRow("text of an index missing")
            << QByteArray("DROP INDEX Attachments_AttachmentExtension; "
                          "ALTER TABLE Attachments DROP COLUMN AttachmentExtension");
        QTest::newRow("default missing") << QByteArray("ALTER TABLE TabInfo DROP COLUMN TabEdit");
        QTest::newRow("indexes missing") << QByteArray(
            "DROP INDEX Attachments_MemberId; DROP INDEX Resources_ObjectIndex");
    }

    void olderFiles()
    {
        const DataFolder folder(DataFolder::Content::None);
        QFETCH(QByteArray, change);
        const QString path = makeOldFile(folder, change);
        QVERIFY(datafile::faultsOf(path).value(0).contains(u"tolmark-datafile upgrade "_s + path));

        const QString old = datafile::upgrade(path, m_progress);
        datafile::createDataFile(folder.path(u"new.mdb"_s));
        QCOMPARE(layoutOf(path), layoutOf(folder.path(u"new.mdb"_s)));
        QCOMPARE(datafile::faultsOf(path), QStringList());
        QCOMPARE(folder.row(rows), u"1|Åkesson"_s);
        data::Database kept;
        kept.open(old);
        QCOMPARE(rowsOf(kept, rows), QStringList{u"1|Åkesson"_s});
        QVERIFY(datafile::versionOf(kept) < datafile::presentVersion());
    }

    void refusedFiles_data()
    {
        QTest::addColumn<QByteArray>("change");
        QTest::addColumn<QString>("reason");
        QTest::newRow("newer") << QByteArray("PRAGMA user_version = 99") << u"version 99"_s;
        QTest::newRow("no such table") << QByteArray("DROP TABLE Contributions") << u"table [Contributions]"_s;
        QTest::newRow("computed default, behind a column that was added")
            << QByteArray("ALTER TABLE EmployerInformation DROP COLUMN Extension; "
                          "ALTER TABLE Resources RENAME COLUMN DocumentDate TO Day")
            << u"[Resources].[DocumentDate]"_s;
        QTest::newRow("the last step fails")
            << QByteArray("CREATE TRIGGER Stop BEFORE INSERT ON NodeInformation BEGIN SELECT RAISE(ABORT, 'stop'); END")
            << u"stop"_s;
    }

    void refusedFiles()
    {
        const DataFolder folder(DataFolder::Content::None);
        QFETCH(QByteArray, change);
        QFETCH(QString, reason);
        const QString path = makeOldFile(folder, change);
        const QByteArray before = contentOf(path);
        const QString told = errorOf([&] { datafile::upgrade(path, m_progress); });
        QVERIFY2(told.contains(reason), qPrintable(told));
        QCOMPARE(contentOf(path), before);
        QCOMPARE(folder.names(), QStringList{u"Tolmark.mdb"_s});
    }

    void presentFileIsLeftAlone()
    {
        const DataFolder folder(DataFolder::Content::Empty);
        const QByteArray before = contentOf(folder.file());
        QCOMPARE(datafile::upgrade(folder.file(), m_progress), QString());
        QCOMPARE(contentOf(folder.file()), before);
        QCOMPARE(folder.names(), QStringList{u"Tolmark.mdb"_s});
    }

private:
    datafile::Progress m_progress{{}};
};

QTEST_GUILESS_MAIN(tst_upgrade)
#include "tst_upgrade.moc"
