#include "platform/runtime/Application.h"
#include "platform/runtime/Files.h"
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
    void staysInTheFolder()
    {
        QVERIFY(QFile::link(inFolder(u"/Tolmark.mdb"_s), inFolder(u"/Temp/link"_s)));
        const QString temp = inFolder(u"/Temp"_s);
        for (const QString &name : {u"Letter.doc"_s, u"letter.DOC"_s, u"..\\evil.txt"_s, u"..."_s, // one name each
                                    QString(QString(127, u'é') + u'x')})
            QCOMPARE(runtime::pathInFolder(temp, name), QString(temp + u'/' + name));
        for (const QString &name : {u""_s, u"."_s, u".."_s, u"../evil.txt"_s, u"../../Tolmark.mdb"_s, u"/etc/passwd"_s,
                                    u"Search/x"_s, u"x/"_s, u"link"_s, u"a\0b"_s, QString(128, u'é')})
            QCOMPARE(outcomeOf([&] { return runtime::pathInFolder(temp, name); }), u"error 75"_s);
    }

    void deletesALinkAlone()
    {
        const QString target = inFolder(u"/Temp/notes"_s);
        QVERIFY(QFile::link(target, inFolder(u"/Temp/link"_s)));
        runtime::Kill(inFolder(u"/Temp/link"_s));
        QVERIFY(QFile::exists(target) && !QFileInfo(inFolder(u"/Temp/link"_s)).isSymLink());
    }

    void listsPlainFiles()
    {
        const auto sorted = [this](const QString &pattern) {
            QStringList names = listed(pattern);
            names.sort();
            return names;
        };
        QCOMPARE(sorted(u"/Temp/*.*"_s), // with a dot or without, also at the beginning
                 (QStringList{u".hidden"_s, u"Letter.doc"_s, u"it's [1].doc"_s, u"notes"_s, u"plan.DOC"_s}));
        QCOMPARE(sorted(u"/Temp/*.doc"_s), (QStringList{u"Letter.doc"_s, u"it's [1].doc"_s}));
        QCOMPARE(sorted(u"/Temp/it's [?].doc"_s), QStringList{u"it's [1].doc"_s});
        for (const QString &pattern : {u"/Temp/letter.doc"_s, u"/Temp/Search/*.*"_s, u"/none/*.*"_s}) {
            QCOMPARE(listed(pattern), QStringList());
            QCOMPARE(outcomeOf([] { return runtime::Dir(); }), u"error 5"_s); // there is nothing to go on with
        }
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

    void kills()
    {
        const qsizetype before = listed(u"/Temp/*.*"_s).size();
        for (const QString &path :
             {u"/Temp/letter.doc"_s, u"/Temp/none.doc"_s, u"/none/Letter.doc"_s, u"/Temp/Search"_s})
            QCOMPARE(errorNumberOf([&] { runtime::Kill(inFolder(path)); }), 53);
        QCOMPARE(listed(u"/Temp/*.*"_s).size(), before);
        QVERIFY(QDir(inFolder(u"/Temp/Search"_s)).exists());
        runtime::Kill(inFolder(u"/Temp/Letter.doc"_s));
        QVERIFY(!QFile::exists(inFolder(u"/Temp/Letter.doc"_s)));
        QCOMPARE(listed(u"/Temp/*.*"_s).size(), before - 1);
        QCOMPARE(outcomeOf([] { return runtime::Dir(); }), u"error 5"_s); // after the end
    }

    void tellsLengths()
    {
        QFile letter(inFolder(u"/Temp/Letter.doc"_s));
        QVERIFY(letter.open(QIODevice::WriteOnly) && letter.write("letter") == 6);
        letter.close();
        QCOMPARE(runtime::FileLen(letter.fileName()), 6);
        for (const QString &path : {u"/Temp/letter.doc"_s, u"/Temp/Search"_s})
            QCOMPARE(errorNumberOf([&] { runtime::FileLen(inFolder(path)); }), 53);
    }

    void makesFolders()
    {
        const auto made = [this](const QString &path) {
            return errorNumberOf([&] { runtime::MkDir(inFolder(path)); });
        };
        QCOMPARE(made(u"/Temp/New"_s), 0);
        QVERIFY(runtime::folderExists(inFolder(u"/Temp/New"_s)));
        QCOMPARE(made(u"/Temp/New"_s), 75);
        QCOMPARE(made(u"/Temp/notes"_s), 75); // a file
        QVERIFY(!runtime::folderExists(inFolder(u"/Temp/notes"_s)));
        QCOMPARE(made(u"/none/New"_s), 76);
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
