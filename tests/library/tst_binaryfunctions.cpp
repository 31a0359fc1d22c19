#include "library/ClsBinaryFunctions.h"
#include "platform/runtime/BinaryFile.h"
#include "support/DataStoreFolder.h"

#include <QTest>

#include <optional>
#include <random>

using namespace Qt::Literals::StringLiterals;
using data::Recordset;
using runtime::Value;

namespace {

// Where a scan by itself can be looked at.
class Scanner : public ClsBinaryFunctions
{
public:
    using ClsBinaryFunctions::FileHandle;
    using ClsBinaryFunctions::Found;
    using ClsBinaryFunctions::MatchPosition;
    using ClsBinaryFunctions::ScanFile;
};

constexpr qint16 anyCase = 0;
constexpr qint16 exactCase = 1;

const auto allAttachments = u"SELECT * FROM Attachments"_s;

// The rule in other words: an attempt takes the bytes that match and the one that does not, the next begins behind.
qint32 expectedPlace(const QByteArray &content, const QByteArray &pattern)
{
    for (qsizetype begin = 0; begin < content.size() - pattern.size();) {
        const auto [inPattern, inContent] = std::mismatch(pattern.cbegin(), pattern.cend(), content.cbegin() + begin);
        if (inPattern == pattern.cend())
            return qint32(begin);
        begin = inContent - content.cbegin() + 1;
    }
    return -1;
}

} // namespace

class BinaryFunctionsTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        m_folder.emplace(DataFolder::Content::Empty);
        m_folder->open(m_connection);
    }
    void cleanup()
    {
        m_connection = data::Connection();
        m_folder.reset();
        QCOMPARE(runtime::FreeFile(), qint16(1));
    }

    void scans_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("text");
        QTest::addColumn<qint32>("anyCasePlace");
        QTest::addColumn<qint32>("exactPlace");
        QTest::newRow("in the middle") << QByteArray("a Word here") << u"word"_s << 2 << -1;
        QTest::newRow("behind zero bytes") << QByteArray("\0\0x\0word\0", 9) << u"word"_s << 4 << 4;
        QTest::newRow("no second look at a byte") << QByteArray("aaab....") << u"aab"_s << -1 << -1;
        QTest::newRow("a second attempt behind it") << QByteArray("aaabaab.") << u"aab"_s << 4 << 4;
        QTest::newRow("ends with the file") << QByteArray("a word") << u"word"_s << -1 << -1;
        QTest::newRow("ends before the zero byte") << QByteArray("a word\0", 7) << u"word"_s << 2 << 2;
        QTest::newRow("longer than the file") << QByteArray("wor") << u"word"_s << -1 << -1;
        QTest::newRow("nothing") << QByteArray("x") << u""_s << 0 << 0;
        QTest::newRow("nothing in an empty file") << QByteArray() << u""_s << -1 << -1;
        QTest::newRow("blanks round it") << QByteArray("xword.") << u"  word "_s << 1 << 1;
        QTest::newRow("a tab is no blank") << QByteArray("word.") << u"word\t"_s << -1 << -1;
        QTest::newRow("in quotes") << QByteArray("a word.") << u"\" word\""_s << 1 << 1;
        QTest::newRow("quotes alone") << QByteArray("a \"\" b") << u"\"\""_s << 2 << 2;
        QTest::newRow("three quotes") << QByteArray("a\"b") << u"\"\"\""_s << 1 << 1;
        // The code page has both cases of é, œ and ÿ, no capital of ß and µ, and no Ω, ſ and ı, whose capitals it may
        // have.
        QTest::newRow("letters with accents") << QByteArray("caf\xe9.") << u"CAFÉ"_s << 0 << -1;
        QTest::newRow("capitals in the file") << QByteArray("\x8c\x9fx.") << u"œÿx"_s << 0 << -1;
        QTest::newRow("sharp s") << QByteArray("stra\xdf"
                                               "e.")
                                 << u"STRAßE"_s << 0 << -1;
        QTest::newRow("sharp s is not two") << QByteArray("strasse.") << u"straße"_s << -1 << -1;
        QTest::newRow("micro") << QByteArray("5 \xb5g.") << u"µg"_s << 2 << 2;
        QTest::newRow("divided by, times") << QByteArray("\xf7\xd7.") << u"××"_s << -1 << -1;
        QTest::newRow("not of the code page") << QByteArray("?\xea.") << u"Ω"_s << -1 << -1;
        QTest::newRow("capital of the code page alone") << QByteArray("SI.") << u"ſı"_s << -1 << -1;
    }
    void scans()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, text);
        QTEST(scanned(content, text, anyCase), "anyCasePlace");
        QTEST(scanned(content, text, exactCase), "exactPlace");
    }

    // By any value but those two the case is ignored in the file, and the text compared as it stands.
    void scansAsTheRuleSays()
    {
        std::mt19937 random(20261121);
        const auto drawn = [&random](QByteArrayView letters, unsigned longest) {
            QByteArray text(random() % (longest + 1), '\0');
            for (char &letter : text)
                letter = letters[random() % unsigned(letters.size())];
            return text;
        };
        for (const qint16 check1Value : {anyCase, exactCase, qint16(2)}) {
            int hits = 0;
            for (int turn = 0; turn < 3000; ++turn) {
                const QByteArray content = drawn("aAb", 12);
                const QByteArray pattern = drawn("aAb", 4);
                const qint32 expected = expectedPlace(check1Value == exactCase ? content : content.toUpper(),
                                                      check1Value == anyCase ? pattern.toUpper() : pattern);
                QVERIFY2(scanned(content, QString::fromLatin1(pattern), check1Value) == expected,
                         qPrintable(QString::fromLatin1(pattern + " in " + content)));
                hits += expected >= 0;
            }
            QVERIFY(hits > 300 && hits < 2700); // both answers were looked at
        }
    }

    void refusesTooLongAText()
    {
        QCOMPARE(scanned("x", QString(32'767, u'x'), anyCase), -1);
        QCOMPARE(errorOf([&] { scanned("x", QString(32'768, u'x'), anyCase); }), u"6 Overflow"_s);
        runtime::CloseFile(1);
    }

    // What it finds by which text is seen in the window of the search.
    void leavesTheHitsOnTheLastOne()
    {
        m_folder->execute("INSERT INTO Attachments (AttachmentsName, AttachmentVersion, Attachments) VALUES "
                          "('it''s.doc', 1, x'6100'), ('a.txt', NULL, x'00'), ('Überblick', 7, x'4100')");
        Recordset found = ClsBinaryFunctions().cmdOpendb(u"a"_s, allAttachments);
        QCOMPARE(found.RecordCount(), 2);
        QCOMPARE(found[u"DocumentId"].Value(), Value(qint32(3)));
        QCOMPARE(found[u"DocumentName"].Value(), Value(u"Überblick"_s));
        QCOMPARE(found[u"Version"].Value(), Value(qint32(7)));
        QVERIFY(ClsBinaryFunctions().cmdOpendb(u"b"_s, allAttachments).Eof());
        QCOMPARE(filesToScan(), QStringList{});
    }

    void scansTheTailOfAFileThatStoodThere()
    {
        m_folder->execute("INSERT INTO Attachments (AttachmentsName, Attachments) VALUES ('a.txt', x'6100'), "
                          "('a.txt', x'6100')");
        make(u"temp/Search/a.txt"_s, "something longer");
        QCOMPARE(ClsBinaryFunctions().cmdOpendb(u"longe"_s, allAttachments).RecordCount(), 1);
        QCOMPARE(filesToScan(), QStringList{});
    }

    void closesTheScanAlone()
    {
        m_folder->execute("INSERT INTO Attachments (AttachmentsName, Attachments) VALUES ('a.txt', x'6100')");
        make(u"other"_s, "x");
        runtime::OpenBinary(m_folder->path(u"other"_s), 1, runtime::BinaryAccess::Read);
        QCOMPARE(ClsBinaryFunctions().cmdOpendb(u"a"_s, allAttachments).RecordCount(), 1);
        QCOMPARE(runtime::LOF(1), 1);
        closeLeftOpen(1);
    }

    void failsWhereItCannotCopy_data()
    {
        QTest::addColumn<QByteArray>("row");
        QTest::addColumn<QString>("error");
        QTest::addColumn<int>("open"); // files that stay so
        QTest::newRow("the data file") << QByteArray("'../../Tolmark.mdb', x'00'") << u"75 Path/File access error"_s
                                       << 0;
        QTest::newRow("no name") << QByteArray("NULL, x'00'") << u"75 Path/File access error"_s << 0;
        QTest::newRow("no content") << QByteArray("'a.txt', NULL") << u"94 Invalid use of Null"_s << 1;
        QTest::newRow("no byte at all") << QByteArray("'a.txt', x''") << u"94 Invalid use of Null"_s << 1;
    }
    void failsWhereItCannotCopy()
    {
        QFETCH(QByteArray, row);
        QFETCH(int, open);
        m_folder->execute("INSERT INTO Attachments (AttachmentsName, Attachments) VALUES (" + row + ')');
        ClsBinaryFunctions search;
        QTEST(errorOf([&] { search.cmdOpendb(u"a"_s, allAttachments); }), "error");
        closeLeftOpen(open);
        m_folder->execute("UPDATE Attachments SET AttachmentsName = 'a.txt'");
        QVERIFY(QDir(m_folder->path(u"temp/Search"_s)).removeRecursively());
        QVERIFY(errorOf([&] { search.cmdOpendb(u"a"_s, allAttachments); }).startsWith(u"76 "));
    }

    void upLoads_data()
    {
        QTest::addColumn<QByteArray>("content"); // no file where it is Null
        QTest::addColumn<QString>("owner");
        QTest::addColumn<bool>("versionControl");
        QTest::addColumn<QString>("row"); // empty where it fails
        QTest::addColumn<bool>("adding"); // the recordset, afterwards
        QTest::addColumn<int>("open");    // files that stay so
        const QString row = u"12|it's|%1|0|about it"_s;
        QTest::newRow("a file") << QByteArray("a\0", 2) << u"12"_s << false << row.arg(u"610000") << false << 0;
        QTest::newRow("an empty file") << QByteArray("") << u"12"_s << false << row.arg(u"00") << false << 0;
        QTest::newRow("version of a data file that is not there")
            << QByteArray("a") << u"12"_s << true << QString() << false << 0;
        QTest::newRow("missing file") << QByteArray() << u"12"_s << false << QString() << true << 0;
        QTest::newRow("owner that is no number") << QByteArray("a") << u"me"_s << false << QString() << true << 1;
    }
    void upLoads()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, owner);
        QFETCH(bool, versionControl);
        QFETCH(QString, row);
        QFETCH(int, open);
        const QString path = m_folder->path(u"source"_s);
        if (!content.isNull())
            make(u"source"_s, content);
        Recordset rows = attachments();
        QCOMPARE(ClsBinaryFunctions().UpLoadBinary(u"it's"_s, path, rows, versionControl, owner, u"about it"_s),
                 !row.isEmpty());
        QCOMPARE(m_folder->row("SELECT PersonalInformationId, AttachmentsName, hex(Attachments), AttachmentVersion, "
                               "AttachmentDescription FROM Attachments"),
                 row);
        QTEST(errorOf([&] { rows.Close(); }).startsWith(u"3219 "), "adding");
        closeLeftOpen(open);
    }

    // The data file's path begins with a drive, which is a folder like any other here.
    void countsVersionsInItsOwnDataFile()
    {
        const QString folder = m_folder->path(u"C:/Documents and Settings/Pell/Desktop/Norlund/BusinessPlan"_s);
        QVERIFY(QDir().mkpath(folder));
        m_folder->execute("INSERT INTO Attachments (AttachmentsName, AttachmentVersion) VALUES ('a.txt', 7), "
                          "('A.TXT', 8), ('b', 1)");
        QVERIFY(QFile::copy(m_folder->file(), folder + u"/Tolmark.mdb"_s));
        m_folder->execute("DELETE FROM Attachments");
        make(u"source"_s, "a");
        Recordset rows = attachments();
        const QString former = QDir::currentPath();
        QVERIFY(QDir::setCurrent(m_folder->folder()));
        const auto upLoad = [&](const QString &name) {
            return ClsBinaryFunctions().UpLoadBinary(name, m_folder->path(u"source"_s), rows, true, u"12"_s, u""_s);
        };
        const bool counted = upLoad(u"a.txt"_s);
        const bool withApostrophe = upLoad(u"it's"_s);
        QVERIFY(QDir::setCurrent(former));
        QVERIFY(counted);
        QVERIFY(!withApostrophe);
        // How many rows there are and one more, not the highest version and one more; never those of the file in use.
        QCOMPARE(m_folder->rows("SELECT AttachmentsName, AttachmentVersion FROM Attachments"),
                 QStringList{u"a.txt|3"_s});
    }

    void downLoads()
    {
        m_folder->execute("INSERT INTO Attachments (Attachments) VALUES (x'61'), (x'626200')");
        Recordset rows = attachments();
        rows.MoveNext();
        ClsBinaryFunctions functions;
        QVERIFY(!functions.DownLoadDoc(rows, m_folder->path(u"none/target"_s)));
        make(u"target"_s, "0123456");
        QVERIFY(functions.DownLoadDoc(rows, m_folder->path(u"target"_s)));
        QFile target(m_folder->path(u"target"_s));
        QVERIFY(target.open(QIODevice::ReadOnly));
        QCOMPARE(target.readAll(), QByteArray("bb\0003456", 7));
        QCOMPARE(rows[u"AttachmentsId"].Value(), Value(qint32(2))); // where it stood
        rows.MoveNext();
        QVERIFY(!functions.DownLoadDoc(rows, m_folder->path(u"target"_s)));
        closeLeftOpen(1);
    }

    void viewsNothing()
    {
        ClsBinaryFunctions functions;
        QCOMPARE(errorOf([&] { functions.ViewDocument(u"1"_s); }), u"424 Object required"_s);
        QVERIFY(errorOf([&] { functions.ViewDocument(u"'"_s); }).startsWith(u"-2147217900 "));
        QVERIFY(QFile::remove(m_folder->file()));
        QVERIFY(errorOf([&] { functions.ViewDocument(u"1"_s); }).startsWith(u"-2147467259 Could not find file "));
    }

private:
    void make(const QString &name, const QByteArray &content) const
    {
        QFile file(m_folder->path(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }
    Recordset attachments()
    {
        Recordset rows;
        rows.Open(allAttachments, m_connection);
        return rows;
    }
    QStringList filesToScan() const
    {
        return QDir(m_folder->path(u"temp/Search"_s)).entryList(QDir::Files | QDir::Hidden);
    }
    // So many files are open, none or the first, and no more.
    void closeLeftOpen(int count) const
    {
        QCOMPARE(runtime::FreeFile(), qint16(count + 1));
        if (count > 0)
            runtime::CloseFile(1);
    }
    // Where the scan finds the text in a file that holds this.
    qint32 scanned(const QByteArray &content, const QString &text, qint16 check1Value) const
    {
        QFile file(m_folder->path(u"scanned"_s));
        file.remove(); // some file systems take their time over a file that is cut off and written anew
        make(u"scanned"_s, content);
        Scanner scanner;
        scanner.sFile = file.fileName();
        scanner.Text2Text = text;
        scanner.Check1Value = check1Value;
        const bool found = scanner.ScanFile();
        runtime::CloseFile(scanner.FileHandle);
        return found == (scanner.MatchPosition >= 0) && scanner.Found == (found ? -1 : 0) ? scanner.MatchPosition : -3;
    }

    std::optional<DataStoreFolder> m_folder;
    data::Connection m_connection;
};

QTEST_GUILESS_MAIN(BinaryFunctionsTest)
#include "tst_binaryfunctions.moc"
