// The tool as its users run it: what its commands make, refuse and leave behind.
#include "datafile/Copies.h"
#include "datafile/Export.h"
#include "datafile/Generator.h"
#include "datafile/MemberImport.h"
#include "datafile/Sample.h"
#include "datafile/Schema.h"
#include "support/DataFolder.h"
#include "support/Outcome.h"

#include <QProcess>
#include <QRegularExpression>
#include <QTest>

#include <csignal>

using namespace Qt::Literals::StringLiterals;

namespace {

// What a run of the tool wrote, errors behind the rest, with its exit code before it.
QString outcomeOfTool(const QStringList &arguments, const QString &folder)
{
    QProcess tool;
    tool.setWorkingDirectory(folder);
    tool.start(QStringLiteral(TOLMARK_DATAFILE), arguments);
    if (!tool.waitForFinished())
        return u"does not end"_s;
    return QString::number(tool.exitCode()) + u' ' + QString::fromUtf8(tool.readAllStandardOutput()) +
           QString::fromUtf8(tool.readAllStandardError());
}

datafile::Imported importInto(const DataFolder &folder, const QByteArray &csv, datafile::ImportOptions options = {})
{
    folder.write(u"f.csv"_s, csv);
    datafile::Progress progress({});
    return datafile::importMembers(folder.file(), folder.path(u"f.csv"_s), options, progress);
}

constexpr auto members = "SELECT * FROM MemberInformation ORDER BY MemberId";

} // namespace

class tst_commands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void exitCodes_data()
    {
        QTest::addColumn<QString>("arguments");
        QTest::addColumn<QString>("outcome"); // how it begins
        QTest::newRow("no command") << u""_s << u"2 tolmark-datafile: a command is missing\nUsage: "_s;
        QTest::newRow("other command") << u"mend f.mdb"_s << u"2 tolmark-datafile: there is no command \"mend\""_s;
        QTest::newRow("help") << u"--help"_s << u"0 Usage: tolmark-datafile create FILE"_s;
        QTest::newRow("other option") << u"create f.mdb --fast"_s << u"2 tolmark-datafile: Unknown option 'fast'."_s;
        QTest::newRow("no file") << u"backup old.mdb"_s << u"2 tolmark-datafile: backup takes FILE COPY"_s;
        QTest::newRow("none given") << u"generate f.mdb"_s << u"2 tolmark-datafile: --members N is missing"_s;
        QTest::newRow("made") << u"generate f.mdb --members 9 --attachments 4"_s
                              << u"0 f.mdb: made with 9 members and 4"_s;
        QTest::newRow("taken") << u"create old.mdb"_s << u"1 tolmark-datafile: 'old.mdb' already exists;"_s;
        QTest::newRow("faulty") << u"check faulty.mdb"_s << u"1 table [TabInfo] has no rows"_s;
        QTest::newRow("text") << u"check text"_s
                              << u"1 tolmark-datafile: Unrecognized database format 'text'. It is no data file."_s;
        QTest::newRow("no columns") << u"import-members old.mdb text"_s
                                    << u"1 tolmark-datafile: text: row 1: unknown columns: \"Nothing"_s;
        QTest::newRow("encoding") << u"import-members old.mdb text --encoding big5"_s
                                  << u"2 tolmark-datafile: --encoding"_s;
    }

    void exitCodes()
    {
        const DataFolder folder(DataFolder::Content::None);
        QFETCH(QString, arguments);
        QFETCH(QString, outcome);
        datafile::createDataFile(folder.path(u"old.mdb"_s));
        datafile::createDataFile(folder.path(u"faulty.mdb"_s),
                                 [](data::Database &file) { file.execute("DELETE FROM TabInfo"); });
        folder.write(u"text"_s, "Nothing but a text");
        const QStringList before = folder.names();
        const QString actual = outcomeOfTool(arguments.split(u' ', Qt::SkipEmptyParts), folder.folder());
        QVERIFY2(actual.startsWith(outcome), qPrintable(actual));
        QCOMPARE(folder.names().size(), before.size() + (actual.startsWith(u"0 f.mdb"_s) ? 1 : 0));
    }

    void stoppedWorkLeavesNothing()
    {
        const DataFolder folder(DataFolder::Content::None);
        QProcess tool;
        tool.setWorkingDirectory(folder.folder());
        tool.start(QStringLiteral(TOLMARK_DATAFILE),
                   {u"generate"_s, u"f.mdb"_s, u"--members"_s, u"32767"_s, u"--attachments"_s, u"1000000"_s});
        QTRY_VERIFY(!folder.names().isEmpty()); // it has begun
        QCOMPARE(kill(pid_t(tool.processId()), SIGINT), 0);
        QVERIFY(tool.waitForFinished());
        QCOMPARE(tool.exitCode(), 1);
        QCOMPARE(tool.readAllStandardError(),
                 QByteArray("tolmark-datafile: f.mdb: interrupted; nothing was left behind\n"));
        QCOMPARE(folder.names(), QStringList());
    }

    // Another connection adds a member with an interest in the middle of the copy.
    void copyIsOfOneMoment()
    {
        const DataFolder folder(DataFolder::Content::None);
        datafile::createGeneratedFile(folder.file(), {.members = 9000, .attachments = 5000});
        data::Database source;
        data::Database writer;
        data::Database copy;
        source.open(folder.file());
        writer.open(folder.file());
        copy.create(folder.path(u"copy.mdb"_s));
        int steps = 0;
        source.copyTo(copy, [&](int, int) {
            if (++steps == 2)
                writer.executeWhole(
                    "INSERT INTO MemberInformation (LastName) VALUES ('Newman');"
                    "INSERT INTO MemberInterest (MemberId) SELECT max(MemberId) FROM MemberInformation");
        });
        QVERIFY(steps > 2);
        QCOMPARE(rowsOf(copy, "PRAGMA integrity_check"), QStringList{u"ok"_s});
        for (const char *count : {"SELECT count(*) FROM MemberInformation", "SELECT count(*) FROM MemberInterest"})
            QCOMPARE(rowsOf(copy, count), rowsOf(source, count));

        datafile::backUp(folder.file(), folder.path(u"backup.mdb"_s), m_progress); // while both have it open
        QCOMPARE(QFileInfo(folder.path(u"backup.mdb"_s)).size(), QFileInfo(folder.file()).size());
    }

    void restoreKeepsTheOldFile()
    {
        const DataFolder folder(DataFolder::Content::None);
        datafile::createSampleFile(folder.path(u"copy.mdb"_s));
        folder.write(u"Tolmark.mdb"_s, {}); // cut off, with changes that SQLite would put into any file there
        folder.write(u"Tolmark.mdb-journal"_s, "of the old file");
        const QString old = datafile::restore(folder.path(u"copy.mdb"_s), folder.file(), m_progress);
        QVERIFY2(QRegularExpression(u"/Tolmark \\d{4}-\\d\\d-\\d\\d \\d{6}\\.mdb$"_s).match(old).hasMatch(),
                 qPrintable(old));
        QCOMPARE(contentOf(old), QByteArray());
        QCOMPARE(contentOf(old + u"-journal"_s), QByteArray("of the old file"));
        QCOMPARE(folder.names().size(), 4);
        QCOMPARE(folder.row("SELECT count(*) FROM MemberInformation"), u"64"_s);
    }

    void restoreRefuses()
    {
        const DataFolder folder(DataFolder::Content::Empty);
        datafile::createSampleFile(folder.path(u"copy.mdb"_s));
        const QByteArray before = contentOf(folder.file());
        const QStringList names = folder.names();
        const QStringList arguments{u"restore"_s, u"copy.mdb"_s, u"Tolmark.mdb"_s};
        {
            data::Database idle; // holds no lock, as the program between two clicks
            idle.open(folder.file());
            const QString outcome = outcomeOfTool(arguments, folder.folder());
            QVERIFY2(outcome.startsWith(u"1 "_s) && outcome.contains(u"(process %1); close it first"_s.arg(getpid())),
                     qPrintable(outcome));
            idle.execute("BEGIN IMMEDIATE");
            QVERIFY(outcomeOfTool(arguments, folder.folder()).contains(u"file already in use"_s));
        }
        folder.write(u"text"_s, "no copy");
        QVERIFY(errorNumberOf([&] { datafile::restore(folder.path(u"text"_s), folder.file(), m_progress); }) != 0);
        QCOMPARE(contentOf(folder.file()), before);
        QCOMPARE(folder.names(), names + QStringList{u"text"_s});
    }

    void exportHasEveryValue()
    {
        const DataFolder folder;
        folder.execute(
            "CREATE TABLE \"a/b\" (\"x,y\" TEXT, Amount CURRENCY, Day DATETIME, Flag BOOLEAN, Size DOUBLE, Bytes BLOB);"
            "INSERT INTO \"a/b\" VALUES ('=1+1', 1234.5, '2003-05-01 00:00:00', -1, 0.1, x'00'),"
            "('say \"a\"' || char(10), -0.0001, '1899-12-30 09:05:00', 0, 1e300, NULL), ('', NULL, NULL, NULL, NULL, "
            "NULL),"
            "('''+', 1, 'soon', 1, 3, 1);"
            "INSERT INTO Attachments (MemberId, AttachmentsName, AttachmentVersion, Attachments) VALUES "
            "(7, '../a.txt', 1, x'414200'), (7, '../A.TXT', 1, x'43'), (7, 'gone', 1, NULL)");
        datafile::exportFile(folder.file(), folder.path(u"out"_s), m_progress);
        QCOMPARE(contentOf(folder.path(u"out/a_b.csv"_s)),
                 QByteArray("\"x,y\",Amount,Day,Flag,Size\r\n"
                            "'=1+1,1234.5,2003-05-01,Yes,0.1\r\n"
                            "\"say \"\"a\"\"\n\",-0.0001,1899-12-30 09:05:00,No,1e+300\r\n"
                            "\"\",,,,\r\n"
                            "''+,1,soon,Yes,3\r\n"));
        const QString attached = folder.path(u"out/Attachments/member 7/"_s);
        QCOMPARE(contentOf(attached + u"_.._a (version 1).txt"_s), QByteArray("AB"));
        QCOMPARE(contentOf(attached + u"_.._A (2) (version 1).TXT"_s), QByteArray("C"));
        QVERIFY(QFile::exists(folder.path(u"out/Documents/node 3 Bylaws/Bylaws (version 2).txt"_s)));
        QCOMPARE(contentOf(folder.path(u"out/Files.csv"_s)).count('\n'), 1 + 15 + 3 + 8);
        QCOMPARE(folder.names(), (QStringList{u"Tolmark.mdb"_s, u"out"_s}));
    }

    void exportComesBackEqual()
    {
        const DataFolder folder(DataFolder::Content::Empty);
        datafile::createSampleFile(folder.path(u"from.mdb"_s));
        data::Database from;
        from.open(folder.path(u"from.mdb"_s));
        from.execute("UPDATE MemberInformation SET HomePhone = '+1 207 555', CellPhone = '''=x', LastName = 'a;\"b' || "
                     "char(13, 10) "
                     "WHERE MemberId = 1; DELETE FROM MemberInformation WHERE MemberId = 2; "
                     "UPDATE Contributions SET ContributionAmount = '922337203685477.5807 exact'");
        datafile::exportFile(folder.path(u"from.mdb"_s), folder.path(u"out"_s), m_progress);
        QVERIFY(contentOf(folder.path(u"out/Contributions.csv"_s)).contains(",922337203685477.5807,"));
        const datafile::Imported imported = importInto(folder, contentOf(folder.path(u"out/MemberInformation.csv"_s)));
        QCOMPARE(imported.members, 63);
        QCOMPARE(folder.rows(members), rowsOf(from, members));
        QCOMPARE(folder.row("SELECT count(*) FROM NodeInformation WHERE NodeName IN ('Å', 'É', 'Ł', 'Ö')"), u"4"_s);
    }

    void spreadsheetsAreRead_data()
    {
        QTest::addColumn<QByteArray>("csv");
        QTest::newRow("UTF-8") << QByteArray("Surname,City\nNúñez,\"a,b\"\n");
        QTest::newRow("mark, semicolon") << QByteArray("\xef\xbb\xbf"
                                                       "last name;City\r\nNúñez;a,b\r\n\r\n");
        QTest::newRow("Windows-1252, tab") << QByteArray("City\tLAST_NAME\r\na,b\tN\xfa\xf1"
                                                         "ez");
        const QString text = u"City;Last Name\r\"a,b\";Núñez\r;\r"_s;
        const QByteArray little(reinterpret_cast<const char *>(text.utf16()), text.size() * 2);
        QByteArray big = little;
        for (qsizetype i = 0; i < big.size(); i += 2)
            std::swap(big[i], big[i + 1]);
        QTest::newRow("UTF-16") << little;
        QTest::newRow("UTF-16, big end first, mark") << "\xfe\xff" + big;
        QTest::newRow("separator told") << QByteArray("sep=;\r\nLast;City;\"A,B,C,D\"\r\nNúñez;a,b;\r\n");
    }

    void spreadsheetsAreRead()
    {
        const DataFolder folder(DataFolder::Content::Empty);
        QFETCH(QByteArray, csv);
        const bool hasMore = csv.contains("A,B,C,D");
        const datafile::Imported imported =
            importInto(folder, csv, {hasMore ? QStringList{u"A,B,C,D=-"_s} : QStringList(), {}, false});
        QCOMPARE(imported.members, 1);
        QCOMPARE(folder.row("SELECT LastName, City, Active FROM MemberInformation"), u"Núñez|a,b|-1"_s);
    }

    // A different value in each column.
    void everyColumnIsStored()
    {
        const DataFolder folder(DataFolder::Content::Empty);
        const QByteArray header =
            "MemberId,MemberType,Active,FirstName,MiddleName,LastName,AddressOne,AddressTwo,City,State,"
            "Zip,HomePhone,CellPhone,EMailAddress,EmployerName,EmployerAddressOne,EmployerAddressTwo,"
            "EmployerCity,EmployerState,EmployerZip,EmployerPhoneNumber,EmployerExtension,"
            "EmployerEMailAddress,EmployerWebAddress,Interest,InterestDescription,ContributionDate,"
            "ContributionAmount,ContributionNotes";
        const datafile::Imported imported = importInto(
            folder,
            header +
                "\n7,family,no,f,m,l,a1,a2,c,Ohio,z,h,+1,e@x,en,ea1,ea2,ec,Virginia,ez,ep,ex,ee,ew,chess,d,5/31/2003,"
                "\"$1,234.5\",cn\n");
        QVERIFY(imported.faults.isEmpty());
        QCOMPARE(folder.row(members), u"7|2|f|m|l|a1|a2|c|Ohio|z|h|+1|e@x|0"_s);
        QCOMPARE(folder.row("SELECT * FROM EmployerInformation"), u"7|en|ea1|ea2|ec|Virginia |ez|ep|ex|ee|ew"_s);
        QCOMPARE(folder.row("SELECT * FROM MemberInterest"), u"1|7|chess|d"_s);
        QCOMPARE(folder.row("SELECT * FROM Contributions"), u"1|7|2003-05-31 00:00:00|1234.5|cn"_s);
    }

    void faultsAreTold_data()
    {
        QTest::addColumn<QByteArray>("csv");
        QTest::addColumn<QString>("fault"); // row, column and value; or how the refusal of the whole begins
        const auto row = [](const char *csv, const QString &fault) {
            QTest::newRow(qPrintable(QString::fromUtf8(csv).simplified())) << QByteArray(csv) << fault;
        };
        row("Last Name,First Name\nBell,Ann\n,Bob\n", u"3 Last Name "_s);
        row("Last Name\n' Bell'\n", u"2 Last Name ' Bell'"_s);
        row("Last Name,Type\nBell,Regular\nBell,Regal\n", u"3 Type Regal"_s);
        row("Last Name,Active\nBell,maybe\n", u"2 Active maybe"_s);
        row("Last Name,Member No\nBell,5\nBell,5\n", u"3 MemberId 5"_s);
        row("Last Name,Id\nBell,32768\n", u"2 Id 32768"_s);
        row("Last Name,Paid on,Dues\nBell,2/30/2003,5\n", u"2 Paid on 2/30/2003"_s);
        row("Last Name,Paid on,Dues\nBell,5/1/03,5\n", u"2 Paid on 5/1/03"_s);
        row("Last Name;Dues\nBell;12,5\nBell;1.234,50\nBell;1,2,3\n", u"4 Dues 1,2,3"_s);
        row("Last Name;Dues\nBell;1.50\nBell;1.234\n", u"3 Dues 1.234"_s);
        row("Last Name,Dues\nBell,922337203685477.5808\n", u"2 Dues 922337203685477.5808"_s);
        row("Last Name,Paid on\nBell,2003-05-01\n", u"2 ContributionAmount "_s);
        row("Last Name,City\nBell\n", u"2  Bell"_s);
        row("Last Name,Shoe,Hat\nBell,9,7\n", u"row 1: unknown columns: \"Shoe\", \"Hat\";"_s);
        row("Last Name,Surname\nBell,Bell\n", u"row 1: the columns \"Last Name\" and \"Surname\""_s);
        row("City\nRome\n", u"row 1: no column is taken for LastName"_s);
        row("Last Name\nBell\n\"Ann\n", u"row 3: has a quote"_s);
        row("Last Name\n\"Ann\"e\n", u"row 2: has text behind"_s);
        row("\xef\xbb\xbfLast Name\nBell\nN\xfa\n", u"row 3: has bytes that are no utf-8"_s);
        row("", u"row 1: a header"_s);
        constexpr char16_t half[] = u"Last Name\nBell\n\xd83d\n"; // of a pair
        QTest::newRow("half a pair") << QByteArray(reinterpret_cast<const char *>(half), sizeof half - sizeof *half)
                                     << u"row 3: has bytes that are no utf-16"_s;
    }

    void faultsAreTold()
    {
        const DataFolder folder(DataFolder::Content::Empty);
        QFETCH(QByteArray, csv);
        QFETCH(QString, fault);
        QStringList faults;
        try {
            for (const datafile::CellFault &found : importInto(folder, csv).faults)
                faults << u"%1 %2 %3"_s.arg(QString::number(found.row), found.column, found.value);
        } catch (const runtime::RuntimeError &error) {
            QCOMPARE(error.description().left(fault.size()), fault);
            return;
        }
        QCOMPARE(faults, QStringList{fault});
    }

    void importIsAllOrNothing()
    {
        const DataFolder folder;
        const QByteArray before = contentOf(folder.file());
        const QByteArray good = "MemberId,LastName\n,Åse\n900,Bell\n"; // the number for Åse is not 900
        QCOMPARE(importInto(folder, good, {.isDryRun = true}).members, 2);
        QCOMPARE(importInto(folder, good + "64,Bell\n").faults.size(), 1);
        QCOMPARE(contentOf(folder.file()), before);
        importInto(folder, good);
        QCOMPARE(folder.rows("SELECT MemberId, LastName FROM MemberInformation WHERE MemberId > 64"),
                 (QStringList{u"900|Bell"_s, u"901|Åse"_s}));
        folder.execute("UPDATE sqlite_sequence SET seq = 32767 WHERE name = 'MemberInformation'");
        QCOMPARE(importInto(folder, "Last Name\nBell\n").faults.size(), 1); // no 16-bit number is left
    }

private:
    datafile::Progress m_progress{{}};
};

QTEST_GUILESS_MAIN(tst_commands)
#include "tst_commands.moc"
