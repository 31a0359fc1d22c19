// Files in and out of the table of attachments, and the scan through their bytes.
#include "library/ByteSearch.h"
#include "library/ClsBinaryFunctions.h"
#include "platform/runtime/BinaryFile.h"
#include "support/FileTest.h"
#include "support/Scanner.h"

#include <QTest>

#include <random>

using namespace Qt::Literals::StringLiterals;
using data::Recordset;
using runtime::Value;

namespace {

constexpr qint16 anyCase = 0;
constexpr qint16 exactCase = 1;

const auto allAttachments = u"SELECT * FROM Attachments"_s;

// Thick with the letters in some places and thin in others.
QByteArray drawn(std::mt19937 &random, QByteArrayView letters, qsizetype size)
{
    QByteArray bytes(size, 'x');
    for (qsizetype at = 0; at < size; ++at) {
        if (random() % (2 + unsigned(at / 500 % 24)) < 2)
            bytes[at] = letters[random() % unsigned(letters.size())];
    }
    return bytes;
}

} // namespace

class BinaryFunctionsTest : public FileTest
{
    Q_OBJECT
private Q_SLOTS:
    void init() { open(DataFolder::Content::Empty); }
    void cleanup()
    {
        close();
        QCOMPARE(runtime::FreeFile(), qint16(1));
    }

    // Content, text, and the places of the hit without and with regard to the case.
    void scans()
    {
        // The code page has both cases of é, œ and ÿ, no capital of ß and µ, and no Ω, ſ and ı, whose capitals it may
        // have.
        for (const auto &[content, text, anyCasePlace, exactPlace] : {std::tuple("xword.", u"  word "_s, 1, 1),
                                                                      {"word.", u"word\t"_s, -1, -1},
                                                                      {"a word.", u"\" word\""_s, 1, 1},
                                                                      {"a \"\" b", u"\"\""_s, 2, 2},
                                                                      {"caf\xe9.", u"CAFÉ"_s, 0, -1},
                                                                      {"\x8c\x9fx.", u"œÿx"_s, 0, -1},
                                                                      {"\xdfstr.", u"ß"_s, 0, 0},
                                                                      {"SI.", u"ſı"_s, -1, -1}}) {
            QCOMPARE(scanned(content, text, anyCase), anyCasePlace);
            QCOMPARE(scanned(content, text, exactCase), exactPlace);
        }
        QCOMPARE(scanned("x", QString(32'767, u'x'), anyCase), -1);
        QCOMPARE(errorOf([&] { scanned("x", QString(32'768, u'x'), anyCase); }), u"6 Overflow"_s);
        runtime::CloseFile(1);
    }

    // By any value but 0 and 1 the case is ignored in the file, and the text compared as it stands.
    void scansAsTheRuleSays()
    {
        std::mt19937 random(20261121);
        const QByteArray content = drawn(random, "aaaAbB", 100'000);
        Scanner scanner;
        scanner.FileHandle = 1;
        runtime::OpenBinary(m_folder->write(u"scanned"_s, content), 1, runtime::BinaryAccess::Read);
        int hits = 0;
        constexpr int turns = 120'000;
        for (int turn = 0; turn < turns; ++turn) {
            scanner.Check1Value = qint16(random() % 3);
            scanner.Text2Text.clear();
            for (auto length = random() % 5; length > 0; --length)
                scanner.Text2Text += u"aaAbΩ"[random() % (turn % 50 == 0 ? 5 : 4)];
            scanner.PrepareSearchText();
            const auto begin = qint32(random() % unsigned(content.size()));
            const auto end = qint32(qMin<qsizetype>(begin + qint32(random() % 120), content.size()));
            scanner.ReadPosition = begin;
            scanner.FileLength = end;
            scanner.OneChar = 0;
            scanner.isExact() ? scanner.ScanExactCase() : scanner.ScanAnyCase();
            const Scanner::Outcome outcome{scanner.ReadPosition, scanner.MatchPosition, scanner.OneChar};
            if (outcome == scanner.byTheRule(QByteArrayView(content).first(end), begin) &&
                (scanner.Found == -1) == (scanner.MatchPosition >= 0)) {
                hits += scanner.Found == -1;
                continue;
            }
            runtime::CloseFile(1);
            QFAIL(qPrintable(scanner.Pattern + u" in "_s + QLatin1String(content.sliced(begin, end - begin))));
        }
        runtime::CloseFile(1);
        QVERIFY(hits > turns / 10 && hits < turns * 9 / 10); // both answers were looked at
    }

    void everyWayFindsTheSamePlaces()
    {
        std::mt19937 random(7);
        const QByteArray content = drawn(random, "abcdefgh", 20'000);
        const auto set = [&random](unsigned size) {
            ByteSet bytes{};
            for (; size > 0; --size)
                bytes["abcdefghx"[random() % 9]] = true;
            return bytes;
        };
        ByteSet all;
        all.fill(true);
        for (int turn = 0; turn < 20'000; ++turn) {
            const ByteSet first = set(random() % 4);
            const ByteSet second = turn % 3 == 0 ? all : set(random() % 4);
            const auto from = qsizetype(random() % 19'000);
            const qsizetype to = from + qsizetype(random() % 200);
            qsizetype expected = from;
            while (expected < to && !(first[uchar(content[expected])] && second[uchar(content[expected + 1])]))
                ++expected;
            for (const ByteSearch::Way way : ByteSearch::ways()) {
                if (ByteSearch(first, second, way).next(content, from, to) != expected)
                    QFAIL(qPrintable(QString::number(from) + u' ' + QString::number(to)));
            }
        }
    }

    // What it finds by which text is seen in the window of the search.
    void leavesTheHitsOnTheLastOne()
    {
        m_folder->execute("INSERT INTO Attachments (AttachmentsName, AttachmentVersion, Attachments) VALUES "
                          "('it''s.doc', 1, x'6100'), ('a.txt', NULL, x'00'), ('Überblick', 7, x'4100')");
        m_folder->write(u"other"_s, "x");
        runtime::OpenBinary(m_folder->path(u"other"_s), 1, runtime::BinaryAccess::Read); // stays open
        Recordset found = ClsBinaryFunctions().cmdOpendb(u"a"_s, allAttachments);
        QCOMPARE(found.RecordCount(), 2);
        QCOMPARE(found[u"DocumentId"].Value(), Value(qint32(3)));
        QCOMPARE(found[u"DocumentName"].Value(), Value(u"Überblick"_s));
        QCOMPARE(found[u"Version"].Value(), Value(qint32(7)));
        QVERIFY(ClsBinaryFunctions().cmdOpendb(u"b"_s, allAttachments).Eof());
        m_folder->write(u"temp/Search/a.txt"_s, "something longer"); // its tail is scanned too
        QCOMPARE(ClsBinaryFunctions().cmdOpendb(u"longe"_s, allAttachments).RecordCount(), 1);
        QCOMPARE(filesToScan(), QStringList{});
        closeLeftOpen(1);
    }

    void failsWhereItCannotCopy()
    {
        const QString noContent = u"SELECT AttachmentsName FROM Attachments"_s;
        ClsBinaryFunctions search;
        for (const auto &[row, statement, error, open] : {std::tuple("NULL, x'00'", allAttachments, u"75 "_s, 0),
                                                          {"'../../Tolmark.mdb', x'00'", allAttachments, u"75 "_s, 0},
                                                          {"'a.txt', NULL", allAttachments, u"94 "_s, 1},
                                                          {"'a.txt', x''", allAttachments, u"94 "_s, 1},
                                                          {"'a.txt', x'00'", noContent, u"3265 "_s, 1}}) {
            m_folder->execute(
                "DELETE FROM Attachments; INSERT INTO Attachments (AttachmentsName, Attachments) VALUES (" +
                QByteArray(row) + ')');
            QFile::remove(m_folder->path(u"temp/Search/a.txt"_s));
            const QString raised = errorOf([&, statement = statement] { search.cmdOpendb(u"a"_s, statement); });
            QVERIFY2(raised.startsWith(error), qPrintable(raised));
            QCOMPARE(filesToScan().size(), open); // made before the field is asked for
            closeLeftOpen(open);
        }
        QVERIFY(QDir(m_folder->path(u"temp/Search"_s)).removeRecursively());
        QVERIFY(errorOf([&] { search.cmdOpendb(u"a"_s, allAttachments); }).startsWith(u"76 "));
        QCOMPARE(errorOf([&] { search.ViewDocument(u"1"_s); }), u"424 Object required"_s);
        QVERIFY(errorOf([&] { search.ViewDocument(u"'"_s); }).startsWith(u"-2147217900 "));
    }

    void upLoads()
    {
        const QString file = m_folder->write(u"source"_s, QByteArray("a\0", 2));
        const QString empty = m_folder->write(u"empty"_s, "");
        const QString missing = m_folder->path(u"missing"_s);
        const QString row = u"12|it's|%1|0|about it"_s;
        // Version control looks for a data file that is not there. What fails leaves the row pending, and the file
        // open.
        for (const auto &[path, owner, versions, stored, isAdding, open] :
             {std::tuple(file, u"12"_s, false, row.arg(u"610000"), false, 0),
              {empty, u"12"_s, false, row.arg(u"00"), false, 0},
              {file, u"12"_s, true, QString(), false, 0},
              {missing, u"12"_s, false, QString(), true, 0},
              {file, u"me"_s, false, QString(), true, 1}}) {
            m_folder->execute("DELETE FROM Attachments");
            Recordset rows = attachments();
            QCOMPARE(ClsBinaryFunctions().UpLoadBinary(u"it's"_s, path, rows, versions, owner, u"about it"_s),
                     !stored.isEmpty());
            QCOMPARE(
                m_folder->row("SELECT PersonalInformationId, AttachmentsName, hex(Attachments), AttachmentVersion, "
                              "AttachmentDescription FROM Attachments"),
                stored);
            QCOMPARE(errorOf([&] { rows.Close(); }).startsWith(u"3219 "), isAdding);
            closeLeftOpen(open);
        }
    }

    void downLoads()
    {
        m_folder->execute("INSERT INTO Attachments (Attachments) VALUES (x'61'), (x'626200')");
        Recordset rows = attachments();
        rows.MoveNext();
        ClsBinaryFunctions functions;
        QVERIFY(!functions.DownLoadDoc(rows, m_folder->path(u"none/target"_s)));
        const QString target = m_folder->write(u"target"_s, "0123456");
        QVERIFY(functions.DownLoadDoc(rows, target));
        QCOMPARE(contentOf(target), QByteArray("bb\0003456", 7));
        QCOMPARE(rows[u"AttachmentsId"].Value(), Value(qint32(2))); // where it stood
        rows.MoveNext();
        QVERIFY(!functions.DownLoadDoc(rows, target));
        closeLeftOpen(1);
    }

private:
    Recordset attachments() { return opened(allAttachments); }
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
        Scanner scanner;
        scanner.sFile = m_folder->write(u"scanned"_s, content);
        scanner.Text2Text = text;
        scanner.Check1Value = check1Value;
        const bool found = scanner.ScanFile();
        runtime::CloseFile(scanner.FileHandle);
        return found == (scanner.MatchPosition >= 0) ? scanner.MatchPosition : -3;
    }
};

QTEST_MAIN(BinaryFunctionsTest)
#include "tst_binaryfunctions.moc"
