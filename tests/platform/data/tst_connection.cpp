#include "platform/runtime/Application.h"
#include "shell/store/DataStore.h"
#include "support/DataFolder.h"
#include "support/OrdinaryUser.h"

#include <QDir>
#include <QElapsedTimer>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using data::Connection;
using data::Recordset;

class ConnectionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void refusesToOpen()
    {
        const DataFolder folder;
        QVERIFY(QDir().mkdir(folder.path(u"folder.mdb"_s)));
        folder.write(u"nothing.mdb"_s, {});
        folder.write(u"long.mdb"_s, QByteArray(10'000, 'x'));
        folder.write(u"damaged.mdb"_s, contentOf(folder.file()).replace(100, 900, QByteArray(900, '\xff')));
        const QString unrecognized = u"-2147467259 Unrecognized database format '%1'."_s;
        for (const auto &[name, error] :
             {std::pair(u"none.mdb"_s, u"-2147467259 Could not find file '%1'."_s),
              std::pair(u"none/Tolmark.mdb"_s,
                        u"-2147467259 '%1' is not a valid path.  Make sure that the path name is spelled correctly and "
                        u"that you are connected to the server on which the file resides."_s),
              std::pair(
                  u"folder.mdb"_s,
                  u"-2147467259 The Microsoft Jet database engine cannot open the file '%1'.  It is already opened "
                  u"exclusively by another user, or you need permission to view its data."_s),
              std::pair(u"nothing.mdb"_s, unrecognized), std::pair(u"long.mdb"_s, unrecognized),
              std::pair(u"damaged.mdb"_s, unrecognized)}) {
            const QString path = folder.path(name);
            Connection connection;
            QCOMPARE(errorOf([&] { connection.Open(DataFolder::connectionStringFor(path)); }), error.arg(path));
            QCOMPARE(connection.State(), data::adStateClosed);
        }
    }

    void readsItsString()
    {
        const DataFolder folder;
        const QString missing = u"-2147467259 Could not find file '%1'."_s;
        const QString noProvider = u"3706 Provider cannot be found. It may not be properly installed."_s;
        for (const auto &[string, error] : // %1 is the folder
             {std::pair(u"PROVIDER=P;data source=%1/Tolmark.mdb"_s, QString()),
              std::pair(u"Provider=P;Data Source=%1/TOLMARK.MDB;"_s, missing.arg(u"%1/TOLMARK.MDB"_s)),
              std::pair(u"Provider=P;Data Source=%1\\Tolmark.mdb;"_s, missing.arg(u"%1\\Tolmark.mdb"_s)),
              std::pair(u"Provider=P;Data Source=\"%1/Tolmark.mdb"_s, QString()),
              std::pair(u"Provider = P ; Mode=Share Deny None; Data Source = %1/Tolmark.mdb ;;"_s, QString()),
              std::pair(u"Data Source=%1/Tolmark.mdb;"_s, noProvider), std::pair(QString(), noProvider)}) {
            Connection connection;
            QCOMPARE(
                errorOf([&, written = string] { connection.Open(QString(written).replace(u"%1"_s, folder.folder())); }),
                QString(error).replace(u"%1"_s, folder.folder()));
        }
    }

    // As the windows name their data file: beside the program.
    void opensInAnyFolder()
    {
        const DataFolder source;
        for (const QString &name : {u"plain"_s, u"a=b;Provider="_s, u"\"';\""_s, u"100%20"_s, u"a#b?mode=ro&vfs=x"_s,
                                    u"two\nlines"_s, u" blanks "_s, u"日本é"_s, u"a\\b"_s, u"file:x"_s}) {
            const QString folder = source.path(name);
            QVERIFY(QDir().mkdir(folder));
            QVERIFY(QFile::copy(source.file(), folder + u"/Tolmark.mdb"_s));
            runtime::App::setPath(folder);
            Connection connection;
            const QString error = errorOf([&] { openDataStore(connection); });
            if (name == u"plain")
                QCOMPARE(dataStoreConnectionString(),
                         u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source="_s + folder + u"/Tolmark.mdb;"_s);
            runtime::App::setPath({});
            QCOMPARE(name + error, name);
            QCOMPARE(textsOf(connection, u"select * from MemberType where MemberTypeId = 5"_s, u"MemberType"),
                     QStringList{u"Life"_s});
        }
    }

    void closesItsRecordsets()
    {
        const DataFolder folder;
        Connection connection;
        folder.open(connection);
        Recordset read;
        read.Open(selectMembers, connection);
        QVERIFY(!read.Eof());
        Recordset unread;
        unread.Open(selectMembers, connection);
        Recordset pending;
        pending.Open(selectMembers, connection);
        pending.AddNew();
        pending[u"LastName"].setValue(u"Pending"_s);
        connection.Close();

        const QString closed = u"3704 Operation is not allowed when the object is closed."_s;
        for (Recordset *rows : {&read, &unread, &pending}) {
            QCOMPARE(rows->State(), data::adStateClosed);
            QCOMPARE(errorOf([&] { rows->RecordCount(); }), closed);
            QCOMPARE(errorOf([&] { rows->MoveNext(); }), closed);
            QCOMPARE(errorOf([&] { rows->Fields(u"LastName"); }), closed);
            QCOMPARE(errorOf([&] { rows->Update(); }), closed);
        }
        QCOMPARE(folder.row("SELECT COUNT(*) FROM MemberInformation WHERE LastName = 'Pending'"), u"0"_s);

        folder.open(connection); // they stay closed, and serve again
        QCOMPARE(errorOf([&] { read.Eof(); }), closed);
        read.Open(selectMembers, connection);
        QVERIFY(!read.Eof());
    }

    void seesWhatAnotherWrote()
    {
        const DataFolder folder(DataFolder::Content::Empty);
        Connection writer;
        Connection reader;
        folder.open(writer);
        folder.open(reader);
        Recordset rows;
        rows.Open(u"select * from EventInformation"_s, reader);
        Recordset action;
        action.Open(u"INSERT INTO EventInformation (EventName) values ('Gala')"_s, writer);
        QCOMPARE(rows.RecordCount(), 1); // read when it is first asked, which was after the insertion
        // A table that another tool changes meanwhile is read as it then is.
        folder.execute("ALTER TABLE EventInformation ADD COLUMN Place TEXT");
        // Rows are read by the columns of that moment, not of Open; what is then written goes to its own row.
        Recordset widest;
        widest.Open(u"select * from EventInformation"_s, reader);
        folder.execute("ALTER TABLE EventInformation ADD COLUMN Seats INTEGER DEFAULT 5");
        QVERIFY(!widest.Eof());
        QCOMPARE(widest[u"Seats"].Value(), runtime::Value(qint32(5)));
        widest[u"Place"].setValue(u"Garden"_s);
        widest.Update();
        QCOMPARE(folder.row("SELECT EventIdentification, Place, Seats FROM EventInformation"), u"1|Garden|5"_s);
    }

    void saysThatTheFileIsInUse()
    {
        const DataFolder folder;
        data::Database other;
        other.open(folder.file());
        other.execute("BEGIN EXCLUSIVE");
        Connection connection;
        QElapsedTimer waited;
        waited.start();
        QCOMPARE(errorOf([&] { folder.open(connection); }),
                 u"-2147467259 Could not use '%1'; file already in use."_s.arg(folder.file()));
        QVERIFY(waited.elapsed() > 1000); // the other program may be done in a moment
        other.execute("ROLLBACK");
        folder.open(connection);
    }

    void saysThatTheDiskIsFull()
    {
        const DataFolder folder;
        data::Database file;
        file.open(folder.file());
        file.execute("PRAGMA max_page_count = 1"); // the pages that there are, and no more
        QCOMPARE(errorOf([&] { file.execute("CREATE TABLE T AS SELECT zeroblob(1000000) AS a"); }), u"61 Disk full"_s);
        QCOMPARE(folder.row("PRAGMA integrity_check"), u"ok"_s);
    }

    void readsAFileThatMayNotBeWritten()
    {
        const DataFolder folder;
        QVERIFY(QFile::setPermissions(folder.folder(), QFile::Permissions::fromInt(0x7755)));
        QVERIFY(QFile::setPermissions(folder.file(), QFile::Permissions::fromInt(0x4444)));
        const OrdinaryUser user;
        if (!user.isInEffect())
            QSKIP("The system lets this user write every file.");
        Connection connection;
        folder.open(connection);
        Recordset rows;
        rows.Open(u"select * from MemberType where MemberTypeId = 5"_s, connection);
        rows[u"MemberType"].setValue(u"Lifelong"_s);
        QCOMPARE(errorOf([&] { rows.Update(); }), u"-2147467259 Cannot update.  Database or object is read-only."_s);
        rows.CancelUpdate();
        QCOMPARE(rows[u"MemberType"].Value(), runtime::Value(u"Life"_s));
        QCOMPARE(errorOf([&] { rows.Delete(); }), u"-2147467259 Cannot update.  Database or object is read-only."_s);
        Recordset action;
        QCOMPARE(errorOf([&] { action.Open(u"DELETE * FROM MemberType"_s, connection); }),
                 u"-2147467259 Operation must use an updateable query."_s);
    }

private:
    const QString selectMembers = u"select * from MemberInformation"_s;
};

QTEST_GUILESS_MAIN(ConnectionTest)
#include "tst_connection.moc"
