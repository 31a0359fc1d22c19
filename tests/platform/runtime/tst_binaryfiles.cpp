#include "platform/runtime/BinaryFile.h"
#include "support/OrdinaryUser.h"
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

class BinaryFilesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void opens_data();
    void opens();
    void doesNotOpenWhatItMayNot();
    void takesNumbers_data();
    void takesNumbers();
    void givesOutTheLowestNumber();
    void reads_data();
    void reads();
    void handsOutItsBytes();
    void writes_data();
    void writes();
    void tellsAFullDisk();

private:
    QString inFolder(const QString &name) const { return m_folder->path() + u'\\' + name; }
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

    std::unique_ptr<QTemporaryDir> m_folder;
};

namespace {

template <class Call> QString resultOf(Call &&call)
{
    return outcomeOf([&] {
        call();
        return u"done"_s;
    });
}

// No file of this process may grow beyond so many bytes while it stands.
class RoomFor
{
public:
    explicit RoomFor(rlim_t bytes)
    {
        struct sigaction ignored = {};
        ignored.sa_handler = SIG_IGN; // of what would end the process otherwise
        sigaction(SIGXFSZ, &ignored, &m_formerAction);
        getrlimit(RLIMIT_FSIZE, &m_former);
        const rlimit limit{bytes, m_former.rlim_max};
        m_inEffect = setrlimit(RLIMIT_FSIZE, &limit) == 0;
    }
    ~RoomFor()
    {
        setrlimit(RLIMIT_FSIZE, &m_former);
        sigaction(SIGXFSZ, &m_formerAction, nullptr);
    }
    RoomFor(const RoomFor &) = delete;
    RoomFor &operator=(const RoomFor &) = delete;

    bool isInEffect() const { return m_inEffect; }

private:
    struct sigaction m_formerAction = {};
    rlimit m_former{};
    bool m_inEffect = false;
};

} // namespace

void BinaryFilesTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    make(u"Letter.doc"_s, "0123456789");
    make(u"empty"_s, {});
    QVERIFY(QDir(m_folder->path()).mkdir(u"Folder"_s));
    QCOMPARE(mkfifo(QFile::encodeName(m_folder->filePath(u"pipe"_s)).constData(), 0600), 0);
}

void BinaryFilesTest::cleanup()
{
    for (qint16 handle = 1; handle <= 511; ++handle)
        resultOf([&] { runtime::CloseFile(handle); });
}

void BinaryFilesTest::opens_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<BinaryAccess>("access");
    QTest::addColumn<QString>("outcome");

    QTest::newRow("to read") << u"letter.DOC"_s << BinaryAccess::Read << u"10"_s;
    QTest::newRow("to write, nothing is cut off") << u"letter.DOC"_s << BinaryAccess::ReadWrite << u"10"_s;
    QTest::newRow("missing, to read") << u"none"_s << BinaryAccess::Read << u"error 53"_s;
    QTest::newRow("missing, to write") << u"none"_s << BinaryAccess::ReadWrite << u"0"_s;
    for (const BinaryAccess access : {BinaryAccess::Read, BinaryAccess::ReadWrite}) {
        const char *way = access == BinaryAccess::Read ? "to read" : "to write";
        QTest::addRow("missing folder, %s", way) << u"none\\Letter.doc"_s << access << u"error 76"_s;
        QTest::addRow("below a file, %s", way) << u"Letter.doc\\none"_s << access << u"error 76"_s;
        QTest::addRow("folder, %s", way) << u"folder"_s << access << u"error 75"_s;
        QTest::addRow("no name, %s", way) << u""_s << access << u"error 75"_s;
        QTest::addRow("no name in a missing folder, %s", way) << u"none\\"_s << access << u"error 76"_s;
        QTest::addRow("pipe, %s", way) << u"pipe"_s << access << u"error 75"_s;
    }
    QTest::newRow("too long a name") << QString(256, u'x') << BinaryAccess::ReadWrite << u"error 75"_s;
}

void BinaryFilesTest::opens()
{
    QFETCH(QString, name);
    QFETCH(BinaryAccess, access);
    QTEST(outcomeOf([&] {
              runtime::OpenBinary(inFolder(name), 1, access);
              return int(runtime::LOF(1));
          }),
          "outcome");
    QCOMPARE(contentOf(u"Letter.doc"_s), "0123456789");
}

void BinaryFilesTest::doesNotOpenWhatItMayNot()
{
    const auto everybodyReads = QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther;
    QVERIFY(QFile::setPermissions(m_folder->path(), everybodyReads | QFile::WriteOwner | QFile::ExeOwner |
                                                        QFile::ExeGroup | QFile::ExeOther));
    QVERIFY(QFile::setPermissions(m_folder->filePath(u"Letter.doc"_s), everybodyReads));
    QVERIFY(QFile::setPermissions(m_folder->filePath(u"empty"_s), {}));
    const OrdinaryUser user;
    if (!user.isInEffect())
        QSKIP("The system lets this user read and write every file.");
    const auto open = [this](const QString &name, BinaryAccess access) {
        return resultOf([&] {
            runtime::OpenBinary(inFolder(name), 1, access);
            runtime::CloseFile(1);
        });
    };
    QCOMPARE(open(u"Letter.doc"_s, BinaryAccess::Read), u"done"_s);
    QCOMPARE(open(u"Letter.doc"_s, BinaryAccess::ReadWrite), u"error 75"_s);
    QCOMPARE(open(u"empty"_s, BinaryAccess::Read), u"error 75"_s);
}

void BinaryFilesTest::takesNumbers_data()
{
    QTest::addColumn<qint16>("handle");
    QTest::addColumn<QString>("opened");
    QTest::addColumn<QString>("used");

    QTest::newRow("last") << qint16(511) << u"done"_s << u"done"_s;
    QTest::newRow("taken") << qint16(3) << u"error 55"_s << u"done"_s;
    QTest::newRow("none") << qint16(0) << u"error 52"_s << u"error 52"_s;
    QTest::newRow("beyond the last") << qint16(512) << u"error 52"_s << u"error 52"_s;
}

void BinaryFilesTest::takesNumbers()
{
    QFETCH(qint16, handle);
    QFETCH(QString, used);
    runtime::OpenBinary(inFolder(u"empty"_s), 3, BinaryAccess::Read);
    QTEST(resultOf([&] { runtime::OpenBinary(inFolder(u"Letter.doc"_s), handle, BinaryAccess::Read); }), "opened");
    QByteArray buffer(1, 'x');
    QCOMPARE(resultOf([&] { runtime::LOF(handle); }), used);
    QCOMPARE(resultOf([&] { runtime::Get(handle, 1, buffer); }), used);
    QCOMPARE(resultOf([&] { runtime::CloseFile(handle); }), used);
    QCOMPARE(resultOf([&] { runtime::LOF(handle); }), u"error 52"_s);
    QCOMPARE(resultOf([&] { runtime::CloseFile(handle); }), u"error 52"_s);
}

void BinaryFilesTest::givesOutTheLowestNumber()
{
    for (qint16 handle = 1; handle <= 511; ++handle) {
        QCOMPARE(runtime::FreeFile(), handle);
        runtime::OpenBinary(inFolder(u"Letter.doc"_s), handle, BinaryAccess::Read);
    }
    QCOMPARE(outcomeOf([] { return int(runtime::FreeFile()); }), u"error 67"_s);
    runtime::CloseFile(17);
    runtime::CloseFile(5);
    QCOMPARE(runtime::FreeFile(), qint16(5));
    QCOMPARE(resultOf([&] { runtime::OpenBinary(inFolder(u"none"_s), 5, BinaryAccess::Read); }), u"error 53"_s);
    QCOMPARE(runtime::FreeFile(), qint16(5)); // a failed open takes no number
    for (qint16 handle = 1; handle <= 511; ++handle) {
        if (handle != 5 && handle != 17)
            runtime::CloseFile(handle);
    }
}

void BinaryFilesTest::reads_data()
{
    QTest::addColumn<qint64>("position");
    QTest::addColumn<QByteArray>("buffer");
    QTest::addColumn<QByteArray>("filled");
    QTest::addColumn<QString>("outcome");

    QTest::newRow("whole") << 1LL << QByteArray(10, '-') << QByteArray("0123456789") << u"done"_s;
    QTest::newRow("past the end") << 9LL << QByteArray(4, '-') << QByteArray("89--") << u"done"_s;
    QTest::newRow("behind the end") << 11LL << QByteArray(2, '-') << QByteArray("--") << u"done"_s;
    QTest::newRow("before the first") << 0LL << QByteArray(2, '-') << QByteArray("--") << u"error 63"_s;
}

void BinaryFilesTest::reads()
{
    QFETCH(qint64, position);
    QFETCH(QByteArray, buffer);
    const QByteArray shared = buffer;
    runtime::OpenBinary(inFolder(u"Letter.doc"_s), 1, BinaryAccess::Read);
    QTEST(resultOf([&] { runtime::Get(1, position, buffer); }), "outcome");
    QTEST(buffer, "filled");
    QCOMPARE(shared, QByteArray(shared.size(), '-')); // another's copy is left alone
}

void BinaryFilesTest::handsOutItsBytes()
{
    runtime::OpenBinary(inFolder(u"Letter.doc"_s), 1, BinaryAccess::ReadWrite);
    runtime::BinaryFile &file = runtime::openFile(1);
    QCOMPARE(file.bytes(), "0123456789");
    runtime::Put(1, 2, "x");
    runtime::Put(1, 5000, "end");
    QCOMPARE(runtime::LOF(1), 5002);
    const QByteArrayView bytes = file.bytes();
    QCOMPARE(bytes.size(), 5002);
    QVERIFY(bytes.startsWith("0x23456789\0") && bytes.endsWith("\0end"));
    runtime::OpenBinary(inFolder(u"empty"_s), 2, BinaryAccess::Read);
    QVERIFY(runtime::openFile(2).bytes().isEmpty());
}

void BinaryFilesTest::writes_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<qint64>("position");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("outcome");
    QTest::addColumn<QByteArray>("content");

    QTest::newRow("over the beginning, the tail stays")
        << u"Letter.doc"_s << 1LL << QByteArray("abc") << u"done"_s << QByteArray("abc3456789");
    QTest::newRow("over the end") << u"Letter.doc"_s << 9LL << QByteArray("abc") << u"done"_s
                                  << QByteArray("01234567abc");
    QTest::newRow("behind the end") << u"empty"_s << 3LL << QByteArray("a") << u"done"_s << QByteArray("\0\0a", 3);
    QTest::newRow("before the first") << u"Letter.doc"_s << 0LL << QByteArray("x") << u"error 63"_s
                                      << QByteArray("0123456789");
}

void BinaryFilesTest::writes()
{
    QFETCH(QString, name);
    QFETCH(qint64, position);
    QFETCH(QByteArray, bytes);
    runtime::OpenBinary(inFolder(name), 1, BinaryAccess::ReadWrite);
    runtime::OpenBinary(inFolder(name), 2, BinaryAccess::Read);
    QCOMPARE(resultOf([&] { runtime::Put(2, position, bytes); }), u"error 54"_s);
    QTEST(resultOf([&] { runtime::Put(1, position, bytes); }), "outcome");
    QTEST(contentOf(name), "content"); // at once, for another program too
}

void BinaryFilesTest::tellsAFullDisk()
{
    runtime::OpenBinary(inFolder(u"new"_s), 1, BinaryAccess::ReadWrite);
    const RoomFor room(4096);
    if (!room.isInEffect())
        QSKIP("The system does not limit the size of files.");
    QCOMPARE(resultOf([] { runtime::Put(1, 1, QByteArray(4096, 'x')); }), u"done"_s);
    QCOMPARE(resultOf([] { runtime::Put(1, 1, QByteArray(10000, 'y')); }), u"error 61"_s);
}

QTEST_APPLESS_MAIN(BinaryFilesTest)
#include "tst_binaryfiles.moc"
