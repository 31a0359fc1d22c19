#include "platform/runtime/Files.h"
#include "platform/runtime/TextFile.h"
#include "support/OrdinaryUser.h"
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
    void init();

    void findsNamesWhateverTheirCase_data();
    void findsNamesWhateverTheirCase();
    void listsPlainFiles_data();
    void listsPlainFiles();
    void passesOverWhatWasDeletedMeanwhile();
    void forgetsTheFormerEnumeration();
    void refusesToGoOnAfterTheEnd();
    void kills_data();
    void kills();
    void doesNotKillWhereItMayNot();
    void tellsLengths_data();
    void tellsLengths();
    void makesFolders_data();
    void makesFolders();
    void readsLines_data();
    void readsLines();

private:
    QString inFolder(const QString &path) const { return m_folder->path() + path; }
    QStringList listed(const QString &pattern) const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

void FilesTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(m_folder->path()).mkpath(u"Temp/Search"_s));
    QVERIFY(QDir(m_folder->path()).mkpath(u"Temp/a folder.doc"_s));
    for (const char *name : {"Letter.doc", "notes", "plan.DOC", "it's [1].doc"}) {
        QFile file(inFolder(u"/Temp/"_s + QString::fromLatin1(name)));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
}

QStringList FilesTest::listed(const QString &pattern) const
{
    QStringList names;
    for (QString name = runtime::Dir(inFolder(pattern)); !name.isEmpty(); name = runtime::Dir())
        names << name;
    return names;
}

void FilesTest::findsNamesWhateverTheirCase_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("native");

    QTest::newRow("as it stands") << u"\\Temp\\Letter.doc"_s << u"/Temp/Letter.doc"_s;
    QTest::newRow("folder and file in another case") << u"\\TEMP\\letter.DOC"_s << u"/Temp/Letter.doc"_s;
    QTest::newRow("both separators") << u"/temp\\search"_s << u"/Temp/Search"_s;
    QTest::newRow("file that is not there yet") << u"\\temp\\New.doc"_s << u"/Temp/New.doc"_s;
    QTest::newRow("folder that is not there") << u"\\none\\New.doc"_s << u"/none/New.doc"_s;
}

void FilesTest::findsNamesWhateverTheirCase()
{
    QFETCH(QString, path);
    QFETCH(QString, native);
    QCOMPARE(runtime::nativePath(inFolder(path)), inFolder(native));
}

void FilesTest::listsPlainFiles_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QStringList>("names");

    QTest::newRow("all, with a dot or without")
        << u"\\Temp\\*.*"_s << QStringList{u"Letter.doc"_s, u"it's [1].doc"_s, u"notes"_s, u"plan.DOC"_s};
    QTest::newRow("by extension, folder in another case")
        << u"\\temp\\*.doc"_s << QStringList{u"Letter.doc"_s, u"it's [1].doc"_s, u"plan.DOC"_s};
    QTest::newRow("written with slashes") << u"/Temp/letter.doc"_s << QStringList{u"Letter.doc"_s};
    QTest::newRow("one file") << u"\\Temp\\letter.doc"_s << QStringList{u"Letter.doc"_s};
    QTest::newRow("one file with brackets") << u"\\Temp\\it's [1].doc"_s << QStringList{u"it's [1].doc"_s};
    QTest::newRow("empty folder") << u"\\Temp\\Search\\*.*"_s << QStringList{};
    QTest::newRow("no such folder") << u"\\none\\*.*"_s << QStringList{};
}

void FilesTest::listsPlainFiles()
{
    QFETCH(QString, pattern);
    QStringList names = listed(pattern);
    names.sort();
    QTEST(names, "names");
}

void FilesTest::passesOverWhatWasDeletedMeanwhile()
{
    const QString first = runtime::Dir(inFolder(u"\\Temp\\*.*"_s));
    QVERIFY(!first.isEmpty());
    for (const char *name : {"Letter.doc", "notes", "plan.DOC", "it's [1].doc"}) {
        if (first != QString::fromLatin1(name))
            runtime::Kill(inFolder(u"\\Temp\\"_s + QString::fromLatin1(name)));
    }
    QCOMPARE(runtime::Dir(), QString());
}

void FilesTest::forgetsTheFormerEnumeration()
{
    QVERIFY(!runtime::Dir(inFolder(u"\\Temp\\*.*"_s)).isEmpty());
    QCOMPARE(runtime::Dir(inFolder(u"\\Temp\\notes"_s)), u"notes"_s);
    QCOMPARE(runtime::Dir(), QString());
}

void FilesTest::refusesToGoOnAfterTheEnd()
{
    listed(u"\\Temp\\*.*"_s);
    QCOMPARE(outcomeOf([] { return runtime::Dir(); }), u"error 5"_s);
    QCOMPARE(runtime::Dir(inFolder(u"\\none\\*.*"_s)), QString());
    QCOMPARE(outcomeOf([] { return runtime::Dir(); }), u"error 5"_s);
}

void FilesTest::kills_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("outcome");

    QTest::newRow("file in another case") << u"\\TEMP\\letter.doc"_s << u"gone"_s;
    QTest::newRow("no such file") << u"\\Temp\\none.doc"_s << u"error 53"_s;
    QTest::newRow("no such folder") << u"\\none\\Letter.doc"_s << u"error 53"_s;
    QTest::newRow("folder") << u"\\Temp\\Search"_s << u"error 53"_s;
}

void FilesTest::kills()
{
    QFETCH(QString, path);
    QFETCH(QString, outcome);
    const qsizetype before = listed(u"\\Temp\\*.*"_s).size();
    QCOMPARE(outcomeOf([&] {
                 runtime::Kill(inFolder(path));
                 return u"gone"_s;
             }),
             outcome);
    QCOMPARE(listed(u"\\Temp\\*.*"_s).size(), before - (outcome == u"gone" ? 1 : 0));
    QVERIFY(QDir(inFolder(u"/Temp/Search"_s)).exists());
}

void FilesTest::doesNotKillWhereItMayNot()
{
    const auto everybodyReads =
        QFile::ReadOwner | QFile::ExeOwner | QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther;
    QVERIFY(QFile::setPermissions(m_folder->path(), everybodyReads | QFile::WriteOwner));
    QVERIFY(QFile::setPermissions(inFolder(u"/Temp"_s), everybodyReads));
    {
        const OrdinaryUser user;
        if (!user.isInEffect())
            QSKIP("The system lets this user delete every file.");
        QCOMPARE(outcomeOf([&] {
                     runtime::Kill(inFolder(u"\\Temp\\notes"_s));
                     return u"gone"_s;
                 }),
                 u"error 75"_s);
    }
    QVERIFY(QFile::exists(inFolder(u"/Temp/notes"_s)));
    QVERIFY(QFile::setPermissions(inFolder(u"/Temp"_s), everybodyReads | QFile::WriteOwner));
}

void FilesTest::tellsLengths_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("outcome");

    QTest::newRow("file in another case") << u"\\TEMP\\letter.doc"_s << u"6"_s;
    QTest::newRow("no such file") << u"\\Temp\\none.doc"_s << u"error 53"_s;
    QTest::newRow("folder") << u"\\Temp\\Search"_s << u"error 53"_s;
}

void FilesTest::tellsLengths()
{
    QFile letter(inFolder(u"/Temp/Letter.doc"_s));
    QVERIFY(letter.open(QIODevice::WriteOnly) && letter.write("letter") == 6);
    letter.close();
    QFETCH(QString, path);
    QTEST(outcomeOf([&] { return int(runtime::FileLen(inFolder(path))); }), "outcome");
}

void FilesTest::makesFolders_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("outcome");
    QTest::addColumn<bool>("stands"); // afterwards

    QTest::newRow("new") << u"\\temp\\New"_s << u"made"_s << true;
    QTest::newRow("folder in another case") << u"\\temp\\SEARCH"_s << u"error 75"_s << true;
    QTest::newRow("name of a file") << u"\\temp\\Notes"_s << u"error 75"_s << false;
    QTest::newRow("in no folder") << u"\\none\\New"_s << u"error 76"_s << false;
}

void FilesTest::makesFolders()
{
    QFETCH(QString, path);
    QTEST(outcomeOf([&] {
              runtime::MkDir(inFolder(path));
              return u"made"_s;
          }),
          "outcome");
    QTEST(runtime::folderExists(inFolder(path)), "stands");
}

void FilesTest::readsLines_data()
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

void FilesTest::readsLines()
{
    QFETCH(QByteArray, bytes);
    QFile file(inFolder(u"/Temp/notes"_s));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    file.close();
    QTEST(runtime::textLines(inFolder(u"\\temp\\NOTES"_s)), "lines");
    QCOMPARE(outcomeOf([&] { return runtime::textLines(inFolder(u"\\Temp\\none"_s)).join(u'|'); }), u"error 53"_s);
}

QTEST_APPLESS_MAIN(FilesTest)
#include "tst_files.moc"
