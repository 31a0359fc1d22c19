#include "library/StoredFile.h"
#include "platform/runtime/BinaryFile.h"
#include "support/DataStoreFolder.h"

#include <QTest>

#include <optional>

using namespace Qt::Literals::StringLiterals;
using data::Recordset;

class StoredFileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void goesInAndOut_data();
    void goesInAndOut();
    void keepsTheTailOfALongerFile();
    void fetchesFieldsOfAnyState_data();
    void fetchesFieldsOfAnyState();
    void refusesWhatItCannotOpen();

private:
    QByteArray contentOf(const QString &path) const
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
    }
    void make(const QString &path, const QByteArray &content) const
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    }
    Recordset attachments()
    {
        Recordset rows;
        rows.Open(u"select * from Attachments"_s, m_connection);
        return rows;
    }
    void store(const QString &path)
    {
        Recordset rows = attachments();
        rows.AddNew();
        const FileToStore file(path);
        rows[u"Attachments"].AppendChunk(file.bytes());
        QCOMPARE(runtime::FreeFile(), qint16(2)); // open until the row is written
        rows.Update();
        file.close();
        QCOMPARE(runtime::FreeFile(), qint16(1));
    }

    std::optional<DataStoreFolder> m_folder;
    data::Connection m_connection;
};

void StoredFileTest::init()
{
    m_folder.emplace(DataFolder::Content::Empty);
    m_folder->open(m_connection);
}

void StoredFileTest::cleanup()
{
    m_connection = data::Connection();
    m_folder.reset();
}

void StoredFileTest::goesInAndOut_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("zero bytes at the end") << QByteArray("x\0\0", 3);
    QTest::newRow("a large one") << QByteArray(3'000'000, 'x');
}

void StoredFileTest::goesInAndOut()
{
    QFETCH(QByteArray, content);
    const QString path = m_folder->path(u"source"_s);
    make(path, content);
    store(path);
    Recordset rows = attachments();
    QCOMPARE(rows[u"Attachments"].ActualSize(), content.size() + 1);
    fetchInto(rows[u"Attachments"], m_folder->path(u"target"_s));
    QCOMPARE(contentOf(m_folder->path(u"target"_s)), content + '\0');
    QCOMPARE(runtime::FreeFile(), qint16(1));
}

void StoredFileTest::keepsTheTailOfALongerFile()
{
    make(m_folder->path(u"source"_s), "new");
    make(m_folder->path(u"Target"_s), "0123456789");
    store(m_folder->path(u"source"_s));
    Recordset rows = attachments();
    fetchInto(rows[u"Attachments"], m_folder->path(u"target"_s)); // the same name
    QCOMPARE(contentOf(m_folder->path(u"Target"_s)), QByteArray("new\000456789", 10));
}

void StoredFileTest::fetchesFieldsOfAnyState_data()
{
    QTest::addColumn<QByteArray>("stored"); // SQLite's literal
    QTest::addColumn<QString>("error");
    QTest::addColumn<QByteArray>("content");

    QTest::newRow("bytes of another tool") << QByteArray("x'6162'") << QString() << QByteArray("ab");
    QTest::newRow("Null") << QByteArray("NULL") << u"94 Invalid use of Null"_s << QByteArray();
    QTest::newRow("no byte at all") << QByteArray("x''") << u"94 Invalid use of Null"_s << QByteArray();
}

void StoredFileTest::fetchesFieldsOfAnyState()
{
    QFETCH(QByteArray, stored);
    m_folder->execute("INSERT INTO Attachments (Attachments) VALUES (" + stored + ')');
    Recordset rows = attachments();
    const QString path = m_folder->path(u"target"_s);
    QTEST(errorOf([&] { fetchInto(rows[u"Attachments"], path); }), "error");
    QTEST(contentOf(path), "content"); // it was opened before the field was looked at
    QFETCH(QString, error);
    QCOMPARE(runtime::FreeFile(), qint16(error.isEmpty() ? 1 : 2));
    if (!error.isEmpty())
        runtime::CloseFile(1);
}

void StoredFileTest::refusesWhatItCannotOpen()
{
    const auto errorOfStoring = [this](const QString &name) {
        return errorOf([&] { FileToStore(m_folder->path(name)); });
    };
    QCOMPARE(errorOfStoring(u"none"_s), u"53 File not found"_s);
    QCOMPARE(errorOfStoring(u"temp"_s), u"75 Path/File access error"_s);
    m_folder->execute("INSERT INTO Attachments (Attachments) VALUES (x'61')");
    Recordset rows = attachments();
    QCOMPARE(errorOf([&] { fetchInto(rows[u"Attachments"], m_folder->path(u"none/a"_s)); }), u"76 Path not found"_s);
    QCOMPARE(runtime::FreeFile(), qint16(1));
}

QTEST_GUILESS_MAIN(StoredFileTest)
#include "tst_storedfile.moc"
