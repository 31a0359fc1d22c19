// Files and folders by their paths, and binary files by their numbers.
#include "platform/runtime/Application.h"
#include "platform/runtime/BinaryFile.h"
#include "platform/runtime/Files.h"
#include "support/Outcome.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <memory>
#include <sys/resource.h>
#include <sys/stat.h>

using namespace Qt::Literals::StringLiterals;
using runtime::BinaryAccess;

namespace {

constexpr qint16 lastNumber = 511;

template <class Call> QString resultOf(Call &&call)
{
    return outcomeOf([&] {
        call();
        return u"done"_s;
    });
}

} // namespace

class FilesTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        for (const QString &folder : {u"Folder"_s, u"Temp/Search"_s, u"Temp/a folder.doc"_s})
            QVERIFY(QDir(m_folder->path()).mkpath(folder));
        for (const QString &name : {u".hidden"_s, u"Letter.doc"_s, u"notes"_s, u"plan.DOC"_s, u"it's [1].doc"_s})
            make(u"Temp/"_s + name, {});
        make(u"Letter.doc"_s, "0123456789");
        make(u"empty"_s, {});
        QCOMPARE(mkfifo(QFile::encodeName(inFolder(u"pipe"_s)).constData(), 0600), 0);
    }
    void cleanup()
    {
        for (qint16 handle = 1; handle <= lastNumber; ++handle)
            resultOf([&] { runtime::CloseFile(handle); });
    }

    void findsItsOwnFoldersWhateverTheirCase()
    {
        runtime::App::setPath(m_folder->path());
        QCOMPARE(runtime::App::folder(u"\\temp\\SEARCH"), inFolder(u"Temp/Search"_s));
        QCOMPARE(runtime::App::folder(u"\\Temp\\notes"), inFolder(u"Temp/notes"_s)); // no folder of that name
        QVERIFY(QDir(m_folder->path()).mkdir(u"temp"_s));
        QCOMPARE(runtime::App::folder(u"\\temp\\Search"), inFolder(u"temp/Search"_s));
        runtime::App::setPath({});
    }

    // The names come from a data file, which anybody may have made.
    void staysInTheFolder()
    {
        QVERIFY(QFile::link(inFolder(u"Tolmark.mdb"_s), inFolder(u"Temp/link"_s)));
        const QString temp = inFolder(u"Temp"_s);
        for (const QString &name : {u"Letter.doc"_s, u"letter.DOC"_s, u"..\\evil.txt"_s, u"..."_s, // one name each
                                    QString(QString(127, u'é') + u'x')})
            QCOMPARE(runtime::pathInFolder(temp, name), QString(temp + u'/' + name));
        for (const QString &name : {u""_s, u"."_s, u".."_s, u"../evil.txt"_s, u"../../Tolmark.mdb"_s, u"/etc/passwd"_s,
                                    u"Search/x"_s, u"x/"_s, u"link"_s, u"a\0b"_s, QString(128, u'é')})
            QCOMPARE(outcomeOf([&] { return runtime::pathInFolder(temp, name); }), u"error 75"_s);
    }

    void deletesALinkAlone()
    {
        const QString target = inFolder(u"Temp/notes"_s);
        QVERIFY(QFile::link(target, inFolder(u"Temp/link"_s)));
        runtime::Kill(inFolder(u"Temp/link"_s));
        QVERIFY(QFile::exists(target) && !QFileInfo(inFolder(u"Temp/link"_s)).isSymLink());
    }

    void listsPlainFiles()
    {
        const auto sorted = [this](const QString &pattern) {
            QStringList names = listed(pattern);
            names.sort();
            return names;
        };
        QCOMPARE(sorted(u"Temp/*.*"_s), // with a dot or without, also at the beginning
                 (QStringList{u".hidden"_s, u"Letter.doc"_s, u"it's [1].doc"_s, u"notes"_s, u"plan.DOC"_s}));
        QCOMPARE(sorted(u"Temp/*.doc"_s), (QStringList{u"Letter.doc"_s, u"it's [1].doc"_s}));
        QCOMPARE(sorted(u"Temp/it's [?].doc"_s), QStringList{u"it's [1].doc"_s});
        for (const QString &pattern : {u"Temp/letter.doc"_s, u"Temp/Search/*.*"_s, u"none/*.*"_s}) {
            QCOMPARE(listed(pattern), QStringList());
            QCOMPARE(outcomeOf([] { return runtime::Dir(); }), u"error 5"_s); // there is nothing to go on with
        }
    }

    void passesOverWhatWasDeletedMeanwhile()
    {
        const QString first = runtime::Dir(inFolder(u"Temp/*.*"_s));
        QVERIFY(!first.isEmpty());
        for (const char *name : {".hidden", "Letter.doc", "notes", "plan.DOC", "it's [1].doc"}) {
            if (first != QString::fromLatin1(name))
                runtime::Kill(inFolder(u"Temp/"_s + QString::fromLatin1(name)));
        }
        QCOMPARE(runtime::Dir(), QString());
    }

    void kills()
    {
        const qsizetype before = listed(u"Temp/*.*"_s).size();
        for (const QString &path : {u"Temp/letter.doc"_s, u"Temp/none.doc"_s, u"none/Letter.doc"_s, u"Temp/Search"_s})
            QCOMPARE(errorNumberOf([&] { runtime::Kill(inFolder(path)); }), 53);
        QCOMPARE(listed(u"Temp/*.*"_s).size(), before);
        QVERIFY(QDir(inFolder(u"Temp/Search"_s)).exists());
        runtime::Kill(inFolder(u"Temp/Letter.doc"_s));
        QVERIFY(!QFile::exists(inFolder(u"Temp/Letter.doc"_s)));
        QCOMPARE(listed(u"Temp/*.*"_s).size(), before - 1);
        QCOMPARE(outcomeOf([] { return runtime::Dir(); }), u"error 5"_s); // after the end
    }

    void tellsLengths()
    {
        QCOMPARE(runtime::FileLen(inFolder(u"Letter.doc"_s)), 10);
        for (const QString &path : {u"Temp/letter.doc"_s, u"Temp/Search"_s})
            QCOMPARE(errorNumberOf([&] { runtime::FileLen(inFolder(path)); }), 53);
    }

    void makesFolders()
    {
        const auto made = [this](const QString &path) {
            return errorNumberOf([&] { runtime::MkDir(inFolder(path)); });
        };
        QCOMPARE(made(u"Temp/New"_s), 0);
        QVERIFY(runtime::folderExists(inFolder(u"Temp/New"_s)));
        QCOMPARE(made(u"Temp/New"_s), 75);
        QCOMPARE(made(u"Temp/notes"_s), 75); // a file
        QVERIFY(!runtime::folderExists(inFolder(u"Temp/notes"_s)));
        QCOMPARE(made(u"none/New"_s), 76);
    }

    void opens()
    {
        const auto sizeOf = [this](const QString &name, qint16 handle, BinaryAccess access) {
            return outcomeOf([&] {
                runtime::OpenBinary(inFolder(name), handle, access);
                return int(runtime::LOF(handle));
            });
        };
        for (const auto &[name, toRead, toWrite] :
             {std::tuple(u"Letter.doc"_s, u"10"_s, u"10"_s), std::tuple(u"letter\\DOC"_s, u"error 53"_s, u"0"_s),
              std::tuple(u"none"_s, u"error 53"_s, u"0"_s),
              std::tuple(QString(256, u'x'), u"error 53"_s, u"error 75"_s),
              std::tuple(u"no folder/Letter.doc"_s, u"error 76"_s, u"error 76"_s),
              std::tuple(u"Folder"_s, u"error 75"_s, u"error 75"_s),
              std::tuple(QString(), u"error 75"_s, u"error 75"_s),
              std::tuple(u"pipe"_s, u"error 75"_s, u"error 75"_s)}) {
            cleanup();
            QCOMPARE(sizeOf(name, 1, BinaryAccess::Read), toRead);
            QCOMPARE(sizeOf(name, 2, BinaryAccess::ReadWrite), toWrite);
        }
        QCOMPARE(contentOf(u"Letter.doc"_s), "0123456789");
    }

    void takesNumbers()
    {
        using Number = std::tuple<qint16, QString, QString>;
        QCOMPARE(opened(u"empty"_s, 3), u"done"_s);
        for (const auto &[handle, toOpen, toUse] :
             {Number(lastNumber, u"done"_s, u"done"_s), Number(3, u"error 55"_s, u"done"_s),
              Number(0, u"error 52"_s, u"error 52"_s), Number(lastNumber + 1, u"error 52"_s, u"error 52"_s)}) {
            QByteArray buffer(1, 'x');
            QCOMPARE(opened(u"Letter.doc"_s, handle), toOpen);
            QCOMPARE(resultOf([&, use = handle] { runtime::LOF(use); }), toUse);
            QCOMPARE(resultOf([&, use = handle] { runtime::Get(use, 1, buffer); }), toUse);
            QCOMPARE(resultOf([&, use = handle] { runtime::CloseFile(use); }), toUse);
            QCOMPARE(resultOf([&, use = handle] { runtime::LOF(use); }), u"error 52"_s);
        }
    }

    void givesOutTheLowestNumber()
    {
        for (qint16 handle = 1; handle <= lastNumber; ++handle) {
            QCOMPARE(runtime::FreeFile(), handle);
            QCOMPARE(opened(u"Letter.doc"_s, handle), u"done"_s);
        }
        QCOMPARE(outcomeOf([] { return int(runtime::FreeFile()); }), u"error 67"_s);
        runtime::CloseFile(17);
        runtime::CloseFile(5);
        QCOMPARE(opened(u"none"_s, 5), u"error 53"_s); // which takes no number
        QCOMPARE(runtime::FreeFile(), qint16(5));
    }

    void reads()
    {
        QCOMPARE(opened(u"Letter.doc"_s, 1), u"done"_s);
        QByteArray buffer;
        const auto read = [&buffer](qint64 position) {
            buffer = QByteArray(10, '-');
            const QByteArray shared = buffer;
            const QString outcome = resultOf([&] { runtime::Get(1, position, buffer); });
            return shared == "----------" ? outcome : u"another's copy is overwritten"_s;
        };
        for (const auto &[position, filled] :
             {std::pair(1, "0123456789"), std::pair(9, "89--------"), std::pair(11, "----------")}) {
            QCOMPARE(read(position), u"done"_s);
            QCOMPARE(buffer, filled);
        }
        QCOMPARE(read(0), u"error 63"_s);
        QCOMPARE(buffer, "----------");
    }

    void handsOutItsBytes()
    {
        QCOMPARE(opened(u"Letter.doc"_s, 1, BinaryAccess::ReadWrite), u"done"_s);
        runtime::BinaryFile &file = runtime::openFile(1);
        QCOMPARE(file.bytes(), "0123456789");
        runtime::Put(1, 2, "x");
        runtime::Put(1, 5000, "end");
        QCOMPARE(runtime::LOF(1), 5002);
        const QByteArrayView bytes = file.bytes();
        QCOMPARE(bytes.size(), 5002);
        QVERIFY(bytes.startsWith("0x23456789\0") && bytes.endsWith("\0end"));
    }

    void writes()
    {
        QCOMPARE(opened(u"Letter.doc"_s, 1, BinaryAccess::ReadWrite), u"done"_s);
        QCOMPARE(opened(u"Letter.doc"_s, 2), u"done"_s);
        QCOMPARE(resultOf([] { runtime::Put(2, 1, "abc"); }), u"error 54"_s);
        QCOMPARE(resultOf([] { runtime::Put(1, 0, "abc"); }), u"error 63"_s);
        QCOMPARE(contentOf(u"Letter.doc"_s), "0123456789");
        runtime::Put(1, 1, "abc");
        QCOMPARE(contentOf(u"Letter.doc"_s), "abc3456789"); // at once, for another program too
        runtime::Put(1, 9, "abc");
        QCOMPARE(contentOf(u"Letter.doc"_s), "abc34567abc");
        runtime::Put(1, 13, "x");
        QCOMPARE(contentOf(u"Letter.doc"_s), QByteArray("abc34567abc\0x", 13));
    }

    void tellsAFullDisk()
    {
        QCOMPARE(opened(u"new"_s, 1, BinaryAccess::ReadWrite), u"done"_s);
        struct sigaction ignored = {};
        struct sigaction formerAction = {};
        ignored.sa_handler = SIG_IGN; // of what would end the process
        sigaction(SIGXFSZ, &ignored, &formerAction);
        rlimit unlimited{};
        getrlimit(RLIMIT_FSIZE, &unlimited);
        const rlimit limited{4096, unlimited.rlim_max};
        if (setrlimit(RLIMIT_FSIZE, &limited) != 0)
            QSKIP("The system does not limit the size of files.");
        const QString filling = resultOf([] { runtime::Put(1, 1, QByteArray(4096, 'x')); });
        const QString growing = resultOf([] { runtime::Put(1, 1, QByteArray(10000, 'y')); });
        setrlimit(RLIMIT_FSIZE, &unlimited);
        sigaction(SIGXFSZ, &formerAction, nullptr);
        QCOMPARE(filling, u"done"_s);
        QCOMPARE(growing, u"error 61"_s);
    }

private:
    QStringList listed(const QString &pattern) const
    {
        QStringList names;
        for (QString name = runtime::Dir(inFolder(pattern)); !name.isEmpty(); name = runtime::Dir())
            names << name;
        return names;
    }
    QString inFolder(const QString &name) const { return m_folder->path() + u'/' + name; }
    void make(const QString &name, const QByteArray &content) const
    {
        QFile file(inFolder(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }
    QByteArray contentOf(const QString &name) const
    {
        QFile file(inFolder(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
    }
    QString opened(const QString &name, qint16 handle, BinaryAccess access = BinaryAccess::Read) const
    {
        return resultOf([&] { runtime::OpenBinary(inFolder(name), handle, access); });
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_APPLESS_MAIN(FilesTest)
#include "tst_files.moc"
