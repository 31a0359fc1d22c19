#include "platform/runtime/Application.h"
#include "platform/runtime/Files.h"
#include "platform/runtime/TextFile.h"
#include "support/Outcome.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace Qt::Literals::StringLiterals;

class FilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir(m_folder->path()).mkpath(u"Temp/Search"_s));
        QVERIFY(QDir(m_folder->path()).mkpath(u"Temp/a folder.doc"_s));
        for (const char *name : {".hidden", "Letter.doc", "notes", "plan.DOC", "it's [1].doc"}) {
            QFile file(inFolder(u"/Temp/"_s + QString::fromLatin1(name)));
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
    }

    void findsItsOwnFoldersWhateverTheirCase()
    {
        runtime::App::setPath(m_folder->path());
        QCOMPARE(runtime::App::folder(u"\\temp\\SEARCH"), inFolder(u"/Temp/Search"_s));
        QCOMPARE(runtime::App::folder(u"\\Temp\\notes"), inFolder(u"/Temp/notes"_s)); // no folder of that name
        QVERIFY(QDir(m_folder->path()).mkdir(u"temp"_s));
        QCOMPARE(runtime::App::folder(u"\\temp\\Search"), inFolder(u"/temp/Search"_s));
        runtime::App::setPath({});
    }

    // The names come from a data file, which anybody may have made.
    void staysInTheFolder_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("path");

        const auto row = [](const char *name, const QString &path) {
            QTest::newRow(name) << QString::fromUtf8(name) << path;
        };
        row("Letter.doc", u"/Temp/Letter.doc"_s);
        row("letter.DOC", u"/Temp/letter.DOC"_s);
        row("..\\evil.txt", u"/Temp/..\\evil.txt"_s); // one name here
        row("...", u"/Temp/..."_s);
        for (const char *name :
             {"", ".", "..", "../evil.txt", "../../Tolmark.mdb", "/etc/passwd", "Search/x", "x/", "link"})
            row(name, u"error 75"_s);
        QTest::newRow("zero character") << u"a\0b"_s.append(QChar(u'\0')) << u"error 75"_s;
        QTest::newRow("longest") << QString(127, u'é') + u'x' << u"/Temp/"_s + QString(127, u'é') + u'x';
        QTest::newRow("too long") << QString(128, u'é') << u"error 75"_s;
    }
    void staysInTheFolder()
    {
        QVERIFY(QFile::link(inFolder(u"/Tolmark.mdb"_s), inFolder(u"/Temp/link"_s)));
        QFETCH(QString, name);
        QTEST(outcomeOf([&] { return runtime::pathInFolder(inFolder(u"/Temp"_s), name); }).remove(m_folder->path()),
              "path");
    }

    void deletesALinkAlone()
    {
        const QString target = inFolder(u"/Temp/notes"_s);
        QVERIFY(QFile::link(target, inFolder(u"/Temp/link"_s)));
        runtime::Kill(inFolder(u"/Temp/link"_s));
        QVERIFY(QFile::exists(target) && !QFileInfo(inFolder(u"/Temp/link"_s)).isSymLink());
    }

    void listsPlainFiles_data()
    {
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<QStringList>("names");

        QTest::newRow("all, with a dot or without, also at the beginning")
            << u"/Temp/*.*"_s
            << QStringList{u".hidden"_s, u"Letter.doc"_s, u"it's [1].doc"_s, u"notes"_s, u"plan.DOC"_s};
        QTest::newRow("by extension") << u"/Temp/*.doc"_s << QStringList{u"Letter.doc"_s, u"it's [1].doc"_s};
        QTest::newRow("one file with brackets") << u"/Temp/it's [?].doc"_s << QStringList{u"it's [1].doc"_s};
        QTest::newRow("another case") << u"/Temp/letter.doc"_s << QStringList{};
        QTest::newRow("empty folder") << u"/Temp/Search/*.*"_s << QStringList{};
        QTest::newRow("no such folder") << u"/none/*.*"_s << QStringList{};
    }
    void listsPlainFiles()
    {
        QFETCH(QString, pattern);
        QStringList names = listed(pattern);
        names.sort();
        QTEST(names, "names");
    }

    void passesOverWhatWasDeletedMeanwhile()
    {
        const QString first = runtime::Dir(inFolder(u"/Temp/*.*"_s));
        QVERIFY(!first.isEmpty());
        for (const char *name : {".hidden", "Letter.doc", "notes", "plan.DOC", "it's [1].doc"}) {
            if (first != QString::fromLatin1(name))
                runtime::Kill(inFolder(u"/Temp/"_s + QString::fromLatin1(name)));
        }
        QCOMPARE(runtime::Dir(), QString());
    }

    void refusesToGoOnAfterTheEnd()
    {
        listed(u"/Temp/*.*"_s);
        QCOMPARE(outcomeOf([] { return runtime::Dir(); }), u"error 5"_s);
        QCOMPARE(runtime::Dir(inFolder(u"/none/*.*"_s)), QString());
        QCOMPARE(outcomeOf([] { return runtime::Dir(); }), u"error 5"_s);
    }

    void kills_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("outcome");

        QTest::newRow("file") << u"/Temp/Letter.doc"_s << u"gone"_s;
        QTest::newRow("another case") << u"/Temp/letter.doc"_s << u"error 53"_s;
        QTest::newRow("no such file") << u"/Temp/none.doc"_s << u"error 53"_s;
        QTest::newRow("no such folder") << u"/none/Letter.doc"_s << u"error 53"_s;
        QTest::newRow("folder") << u"/Temp/Search"_s << u"error 53"_s;
    }
    void kills()
    {
        QFETCH(QString, path);
        QFETCH(QString, outcome);
        const qsizetype before = listed(u"/Temp/*.*"_s).size();
        QCOMPARE(outcomeOf([&] {
                     runtime::Kill(inFolder(path));
                     return u"gone"_s;
                 }),
                 outcome);
        QCOMPARE(listed(u"/Temp/*.*"_s).size(), before - (outcome == u"gone" ? 1 : 0));
        QVERIFY(QDir(inFolder(u"/Temp/Search"_s)).exists());
    }

    void tellsLengths_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("outcome");

        QTest::newRow("file") << u"/Temp/Letter.doc"_s << u"6"_s;
        QTest::newRow("another case") << u"/Temp/letter.doc"_s << u"error 53"_s;
        QTest::newRow("folder") << u"/Temp/Search"_s << u"error 53"_s;
    }
    void tellsLengths()
    {
        QFile letter(inFolder(u"/Temp/Letter.doc"_s));
        QVERIFY(letter.open(QIODevice::WriteOnly) && letter.write("letter") == 6);
        letter.close();
        QFETCH(QString, path);
        QTEST(outcomeOf([&] { return int(runtime::FileLen(inFolder(path))); }), "outcome");
    }

    void makesFolders_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("outcome");
        QTest::addColumn<bool>("stands"); // afterwards

        QTest::newRow("new") << u"/Temp/New"_s << u"made"_s << true;
        QTest::newRow("folder that stands") << u"/Temp/Search"_s << u"error 75"_s << true;
        QTest::newRow("name of a file") << u"/Temp/notes"_s << u"error 75"_s << false;
        QTest::newRow("in no folder") << u"/none/New"_s << u"error 76"_s << false;
    }
    void makesFolders()
    {
        QFETCH(QString, path);
        QTEST(outcomeOf([&] {
                  runtime::MkDir(inFolder(path));
                  return u"made"_s;
              }),
              "outcome");
        QTEST(runtime::folderExists(inFolder(path)), "stands");
    }

    void readsLines_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QStringList>("lines");

        QTest::newRow("empty file") << QByteArray("") << QStringList();
        QTest::newRow("one line without end") << QByteArray("one") << QStringList{u"one"_s};
        QTest::newRow("one line with its end") << QByteArray("one\r\n") << QStringList{u"one"_s};
        QTest::newRow("all three ends and an empty line")
            << QByteArray("a\r\nb\nc\r\r\nd") << QStringList{u"a"_s, u"b"_s, u"c"_s, QString(), u"d"_s};
        QTest::newRow("an empty line is a line") << QByteArray("\n") << QStringList{QString()};
        QTest::newRow("UTF-8 with a mark") << QByteArray("\xef\xbb\xbfM\xc3\xbcller") << QStringList{u"Müller"_s};
        QTest::newRow("code page") << QByteArray("M\xfcller \x80") << QStringList{u"Müller €"_s};
        QTest::newRow("code page, cut like UTF-8") << QByteArray("caf\xc3") << QStringList{u"cafÃ"_s};
    }
    void readsLines()
    {
        QFETCH(QByteArray, bytes);
        QFile file(inFolder(u"/Temp/notes"_s));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        file.close();
        QTEST(runtime::textLines(inFolder(u"/Temp/notes"_s)), "lines");
        QCOMPARE(outcomeOf([&] { return runtime::textLines(inFolder(u"/Temp/none"_s)).join(u'|'); }), u"error 53"_s);
    }

private:
    QStringList listed(const QString &pattern) const
    {
        QStringList names;
        for (QString name = runtime::Dir(inFolder(pattern)); !name.isEmpty(); name = runtime::Dir())
            names << name;
        return names;
    }
    QString inFolder(const QString &path) const { return m_folder->path() + path; }

    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_APPLESS_MAIN(FilesTest)
#include "tst_files.moc"
