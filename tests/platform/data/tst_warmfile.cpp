#include "support/DataFolder.h"
#include "support/OrdinaryUser.h"

#include <QDir>
#include <QTest>

#include <csignal>
#include <cstdlib>
#include <functional>
#include <optional>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

using namespace Qt::Literals::StringLiterals;
using data::Connection;
using data::Recordset;
using Change = std::function<void(const DataFolder &folder)>;

namespace {

// Errors are compared by their beginnings; tst_connection has them whole.
const QString unrecognized = u"-2147467259 Unrecognized database format"_s;

// How often this process has the file open.
int handlesOn(const QString &path)
{
    const auto handles = QDir(u"/proc/self/fd"_s).entryInfoList(QDir::AllEntries | QDir::System);
    return int(std::count_if(handles.cbegin(), handles.cend(),
                             [&](const QFileInfo &handle) { return handle.symLinkTarget() == path; }));
}

// Runs a statement and gives what the type of member 5 then is, or the error.
QString query(const QString &path, const QString &statement = u"DELETE * FROM MemberType WHERE MemberTypeId = 0"_s)
{
    QString outcome;
    const QString error = errorOf([&] {
        Connection connection;
        connection.Open(DataFolder::connectionStringFor(path));
        Recordset().Open(statement, connection);
        outcome = textsOf(connection, u"select * from MemberType where MemberTypeId = 5"_s, u"MemberType").value(0);
    });
    return outcome + error;
}

// Changes the file as another tool would.
Change edit(const QByteArray &sql)
{
    return [sql](const DataFolder &folder) { folder.execute(sql); };
}

// Overwrites the file from a place on; its size stays.
Change damageFrom(qint64 place)
{
    return [place](const DataFolder &folder) {
        QFile file(folder.file());
        QVERIFY(file.open(QIODevice::ReadWrite) && file.seek(place));
        file.write(QByteArray(file.size() - place, '\xff'));
    };
}

// Runs the steps in a process of its own; how it ended, 0 when all was well.
int inAnotherProcess(const std::function<void()> &steps)
{
    const pid_t process = fork();
    if (process == 0)
        steps();
    int status = 0;
    waitpid(process, &status, 0);
    return status;
}

} // namespace

class WarmFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder.emplace(); }

    // The first test: this process has not opened anything that the others would inherit.
    void endsWithItsProcess()
    {
        static const QString path = m_folder->file();
        QCOMPARE(inAnotherProcess([] {
                     std::atexit([] { _exit(handlesOn(path)); }); // runs behind the ends of what is made from here on
                     query(path);
                     handlesOn(path) == 1 ? std::exit(99) : _exit(98);
                 }),
                 0);
        QCOMPARE(inAnotherProcess([] {
                     query(path, u"UPDATE MemberType SET MemberType = 'Kept'"_s);
                     raise(SIGKILL);
                 }),
                 SIGKILL);
        QCOMPARE(m_folder->names(), QStringList{u"Tolmark.mdb"_s});
        QCOMPARE(m_folder->row("PRAGMA integrity_check"), u"ok"_s);
        QCOMPARE(query(path), u"Kept"_s);
    }

    void waitsAsOftenAsItWasOpen()
    {
        int waiting = 0;
        for (const int opened : {1, 3, 2, 6, 1}) {
            std::vector<Connection> connections;
            for (int count = 0; count < opened; ++count)
                m_folder->open(connections.emplace_back());
            QCOMPARE(handlesOn(m_folder->file()), std::max(opened, waiting)); // those that waited serve first
            connections.clear();
            waiting = std::min(4, std::max(opened, waiting));
            QCOMPARE(handlesOn(m_folder->file()), waiting);
        }
        const DataFolder other;
        query(other.file());
        QCOMPARE(handlesOn(m_folder->file()), 0);
    }

    // It holds a password.
    void aStatementOnTheUsersDoesNotWait()
    {
        const auto bytesAfter = [this](const QString &condition) {
            query(m_folder->file(), u"SELECT * FROM "_s + condition);
            return sqlite3_memory_used();
        };
        bytesAfter(u"Security"_s); // from here on the file is open
        const auto first = bytesAfter(u"Security WHERE UserPassword = 'aaaa'"_s);
        QCOMPARE(bytesAfter(u"Security WHERE UserPassword = 'bbbb'"_s), first);
        QVERIFY(bytesAfter(u"MemberType WHERE MemberType = 'aaaa'"_s) > first);
    }

    void meetsTheFileAsItIs()
    {
        const QByteArray toFair = "UPDATE MemberType SET MemberType = 'Fair' WHERE MemberTypeId = 5";
        const auto replace = [&](const DataFolder &folder) {
            const DataFolder other;
            other.execute(toFair);
            QVERIFY(QFile::remove(folder.file()) && QFile::copy(other.file(), folder.file()));
        };
        const auto cutOff = [](const DataFolder &folder) { QFile::resize(folder.file(), 5000); };
        const auto remove = [](const DataFolder &folder) { QFile::remove(folder.file()); };
        for (const auto &[change, outcome] : std::initializer_list<std::pair<Change, QString>>{
                 {edit("SELECT 1"), u"Life"_s},
                 {remove, u"-2147467259 Could not find file"_s},
                 {replace, u"Fair"_s},
                 {cutOff, unrecognized},
                 {damageFrom(100), unrecognized},
                 {damageFrom(4096), unrecognized},
                 {edit(toFair), u"Fair"_s},
                 {edit("ALTER TABLE MemberType RENAME COLUMN MemberTypeId TO Number"), u"-2147217904 No value given"_s},
                 {edit("DROP TABLE MemberType"), u"-2147217865 The Microsoft Jet database engine cannot find"_s}}) {
            const DataFolder folder;
            QCOMPARE(query(folder.file()), u"Life"_s);
            QCOMPARE(handlesOn(folder.file()), 1);
            change(folder);
            QCOMPARE(query(folder.file()).left(outcome.size()), outcome);
        }
    }

    // Also by a statement that waited, and within one tick of the clock, in which the times of the file stay the same.
    void seesEachChangeOfAnother()
    {
        Connection kept;
        m_folder->open(kept);
        for (const bool isText : {false, true, false, true, false, true, false, true}) {
            m_folder->execute(QByteArray("DROP TABLE IF EXISTS Turn; CREATE TABLE Turn (Value ") +
                              (isText ? "TEXT" : "INTEGER") + "); INSERT INTO Turn VALUES (1)");
            textsOf(kept, u"select * from MemberType"_s, u"MemberType"); // here it learns of the change
            Connection reopened;
            m_folder->open(reopened);
            for (Connection *connection : {&kept, &reopened}) {
                Recordset rows;
                rows.Open(u"select * from Turn"_s, *connection);
                QCOMPARE(rows[u"Value"].Value(), isText ? runtime::Value(u"1"_s) : runtime::Value(1));
            }
        }
    }

    void meetsNewPermissions()
    {
        QFile::setPermissions(m_folder->folder(), QFile::Permissions::fromInt(0x7777));
        for (const auto &[permissions, outcome] :
             {std::pair(0x6666, u"1"_s), std::pair(0x4444, u"-2147467259 Operation must use"_s),
              std::pair(0, u"-2147467259 The Microsoft Jet database engine cannot open"_s),
              std::pair(0x6666, u"1"_s)}) {
            QFile::setPermissions(m_folder->file(), QFile::Permissions::fromInt(permissions));
            const OrdinaryUser user;
            if (!user.isInEffect())
                QSKIP("The system lets this user write every file.");
            QCOMPARE(query(m_folder->file(), u"UPDATE MemberType SET MemberType = '1'"_s).left(outcome.size()),
                     outcome);
        }
    }

    void hasNoHoldOnTheFile()
    {
        Connection connection;
        m_folder->open(connection);
        Recordset unread; // has its statement still
        unread.Open(u"select * from MemberType"_s, connection);
        query(m_folder->file(), u"DELETE * FROM MemberType WHERE MemberTypeId = 4"_s);
        connection.Close();
        unread = Recordset();
        QCOMPARE(handlesOn(m_folder->file()), 1); // the other one waits

        const DataFolder copy(DataFolder::Content::None);
        QVERIFY(QFile::copy(m_folder->file(), copy.file()));
        QCOMPARE(copy.rows("PRAGMA integrity_check; ") + copy.rows("SELECT 1 FROM MemberType WHERE MemberTypeId = 4"),
                 QStringList{u"ok"_s});
        data::Database other;
        other.open(m_folder->file());
        other.execute("BEGIN EXCLUSIVE");
        QVERIFY(errorOf([&] { m_folder->open(connection); }).endsWith(u"file already in use."));
        other.execute("ROLLBACK; PRAGMA journal_mode = WAL");
        other.close();
        QCOMPARE(query(m_folder->file()), u"Life"_s); // the last one to close the file clears its log away
        QCOMPARE(m_folder->names(), QStringList{u"Tolmark.mdb"_s});
    }

    void doesNotWaitAfterAFault()
    {
        Connection connection;
        m_folder->open(connection);
        damageFrom(4096)(*m_folder);
        QVERIFY(!errorOf([&] { Recordset().Open(u"DELETE * FROM MemberType"_s, connection); }).isEmpty());
        connection.Close();
        QCOMPARE(handlesOn(m_folder->file()), 0);
    }

    void remembersLittle()
    {
        m_folder->execute("WITH RECURSIVE n(i) AS (SELECT 100 UNION ALL SELECT i + 1 FROM n WHERE i < 20000) INSERT "
                          "INTO MemberType SELECT i, hex(zeroblob(100)) FROM n");
        query(m_folder->file());
        const qint64 least = sqlite3_memory_used();
        Connection connection;
        m_folder->open(connection);
        for (int turn = 0; turn < 400; ++turn)
            textsOf(connection, u"select * from MemberType where MemberTypeId = %1"_s.arg(turn), u"MemberType");
        textsOf(connection, u"select * from MemberType"_s, u"MemberType");
        connection.Close();
        QCOMPARE(handlesOn(m_folder->file()), 1);
        QVERIFY2(sqlite3_memory_used() - least < 1'000'000, QByteArray::number(sqlite3_memory_used() - least));

        m_folder->execute("CREATE TABLE T (A TEXT DEFAULT '" + QByteArray(4'000'000, 'a') + "')");
        query(m_folder->file());
        QCOMPARE(handlesOn(m_folder->file()), 0); // the definitions alone take too much
    }

private:
    std::optional<DataFolder> m_folder;
};

QTEST_GUILESS_MAIN(WarmFileTest)
#include "tst_warmfile.moc"
