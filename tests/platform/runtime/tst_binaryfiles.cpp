#include "platform/runtime/BinaryFile.h"
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

class BinaryFilesTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        make(u"Letter.doc"_s, "0123456789");
        make(u"empty"_s, {});
        QVERIFY(QDir(m_folder->path()).mkdir(u"Folder"_s));
        QCOMPARE(mkfifo(QFile::encodeName(m_folder->filePath(u"pipe"_s)).constData(), 0600), 0);
    }
    void cleanup()
    {
        for (qint16 handle = 1; handle <= lastNumber; ++handle)
            resultOf([&] { runtime::CloseFile(handle); });
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
    QString inFolder(const QString &name) const { return m_folder->path() + u'/' + name; }
    void make(const QString &name, const QByteArray &content) const
    {
        QFile file(m_folder->filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }
    QByteArray contentOf(const QString &name) const
    {
        QFile file(m_folder->filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
    }
    QString opened(const QString &name, qint16 handle, BinaryAccess access = BinaryAccess::Read) const
    {
        return resultOf([&] { runtime::OpenBinary(inFolder(name), handle, access); });
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_APPLESS_MAIN(BinaryFilesTest)
#include "tst_binaryfiles.moc"
