// Data files of the older format: values and rows from their bytes, what a reader process sends, and what becomes of
// it.
#include "datafile/Check.h"
#include "datafile/jet/Confinement.h"
#include "datafile/jet/Header.h"
#include "datafile/jet/JetImport.h"
#include "datafile/jet/RowBytes.h"
#include "datafile/jet/ValueBytes.h"
#include "support/DataFolder.h"

#include <QTest>
#include <QtEndian>

#include <csignal>
#include <fcntl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;
using jet::CellBytes;
using jet::ColumnKind;

namespace {

template <class Call> QString outcomeOrReason(Call &&call)
{
    try {
        return call();
    } catch (const runtime::RuntimeError &error) {
        return error.description();
    }
}

// A Jet 4 file without content, with some bits of its first page changed. Its mask makes this of zeros.
QByteArray emptyFile(const QByteArray &change = {}, qsizetype at = 0)
{
    const QByteArray mask = QByteArray::fromHex("b56f03626108c255eba96772433f009c7a9f90ff809a31c579baed30bcdfcc9d"
                                                "63d9e4c37b42fb8abc4e86fbec375d449cfac65e28e613b68a6054947b36f572"
                                                "dfb177f41343cfafb1333461795b92b57c2a05f17c99011b98fd124f4a946c3e"
                                                "60265f95f8d089248567c61f2744d2eecf65edff07c746a178160cede92d62d4");
    QByteArray file(4 * jet::pageSize, '\0');
    file.replace(0, 21, QByteArray("\0\1\0\0Standard Jet DB\0\1", 21));
    file.replace(0x18, mask.size(), mask);
    for (qsizetype i = 0; i < change.size(); ++i)
        file[at + i] = char(file[at + i] ^ change[i]);
    return file;
}

template <class Number> QByteArray little(Number value)
{
    value = qToLittleEndian(value);
    return QByteArray(reinterpret_cast<const char *>(&value), sizeof value);
}

QByteArray utf16(const QString &text)
{
    return QByteArray(reinterpret_cast<const char *>(text.utf16()), text.size() * 2);
}

struct Table
{
    jet::TableHead head;
    QList<QList<CellBytes>> rows;
};

QByteArray streamOf(const QList<Table> &tables, const QByteArray &before = {})
{
    QByteArray stream = jet::mark.toByteArray() + jet::beginFrame(9) + before;
    for (const Table &table : tables) {
        stream += jet::tableFrame(table.head);
        for (const QList<CellBytes> &row : table.rows)
            stream += jet::rowFrame(table.head.columns, row);
        stream += jet::endOfTableFrame(quint32(table.rows.size()));
    }
    return stream + jet::endFrame(quint32(tables.size()));
}

jet::Imported importStream(const QByteArray &stream, const QString &path)
{
    datafile::Progress progress({});
    qsizetype at = 0;
    jet::FrameReader tables([&](qsizetype size) {
        if (size > stream.size() - at)
            throw runtime::RuntimeError(runtime::DeviceError, u"ends early"_s);
        return stream.mid(std::exchange(at, at + size), size);
    });
    return jet::importTables(tables, path, progress);
}

Table members(const QList<QList<CellBytes>> &rows, const jet::ColumnHead &more = {u"FirstName"_s})
{
    const jet::ColumnHead id{u"memberid"_s, ColumnKind::Long, true};
    return {{u"MEMBERINFORMATION"_s, quint32(rows.size()), 40, {id, {u"LastName"_s}, more}}, rows};
}

} // namespace

class tst_jet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void values()
    {
        for (const auto &[kind, hex, expected] : {
                 std::tuple{ColumnKind::Byte, "ff", u"255"_s},
                 std::tuple{ColumnKind::Long, "ffffff", u"its value has 3 bytes where 4 are needed"_s},
                 std::tuple{ColumnKind::Double, "000000000000f87f", u"its value is no number"_s},
                 std::tuple{ColumnKind::Text, "6d0000007a00", u"m\0z"_s},
                 std::tuple{ColumnKind::Text, "6d00ff", u"its text ends in the middle of a character"_s},
                 std::tuple{ColumnKind::Memo, "fffe6de4001c0420000043", u"mäМ C"_s}, // the blank in two bytes, C in one
                 std::tuple{ColumnKind::Memo, "3dd800de", u"😀"_s},
                 std::tuple{ColumnKind::Guid, "000102030405060708090a0b0c0d0e0f",
                            u"03020100-0504-0706-0809-0a0b0c0d0e0f"_s},
                 std::tuple{ColumnKind::Numeric, "8000000000000000000000000001000000", u"-0.0001"_s},
                 std::tuple{ColumnKind::Numeric, "0001000000000000000200000003000000",
                            u"7922816251426433760213388.4931"_s},
                 std::tuple{ColumnKind(18), "00", u"its type 18 is none of the format"_s},
             }) {
            const jet::ColumnHead column{u"c"_s, kind, false, 4};
            const CellBytes cell = QByteArray::fromHex(hex);
            QCOMPARE(outcomeOrReason([&] { return runtime::toText(jet::valueOf(column, cell)); }), expected);
        }
        const jet::ColumnHead date{u"d"_s, ColumnKind::Date};
        for (const char *text : {"0100-01-01 06:00:00", "1899-12-29 06:00:00", "9999-12-31 23:59:59"}) {
            const runtime::Date day = *runtime::Date::fromIsoText(QString::fromLatin1(text));
            QCOMPARE(jet::valueOf(date, little(day.toSerial())), runtime::Value(day));
        }
    }

    // Three columns: a number of a fixed place, a Yes, a text; and one that was added to the table later.
    void rowsAreDivided()
    {
        const QString damaged = u"its bytes are damaged"_s;
        for (const auto &[hex, expected] : {
                 std::pair{"0300 07000000 4142 0800 0600 0100 0f", u"07000000||4142|-"_s},
                 std::pair{"0300 07000000 4142 0800 0600 0100 00", u"-|-|-|-"_s},
                 std::pair{"0300 07000000 0600 0000 07", u"07000000||-|-"_s}, // the text was added later too
                 std::pair{"0300 07000000 4142 0500 0600 0100 07", damaged},  // ends before it begins
                 std::pair{"0300 07000000 4142 0900 0600 0100 07", damaged},  // reaches too far
                 std::pair{"0300 07000000 4142 0800 0600 ff00 07", damaged},
                 std::pair{"0300 0700 0400 0000 01", damaged},
                 std::pair{"03", damaged},
             }) {
            const QByteArray row = QByteArray::fromHex(hex);
            const auto cells = [&row] {
                QStringList texts;
                for (const auto &place : {jet::ColumnPlace{0, false, true, 0, 4}, {1, true}, {2}, {3, false, true}}) {
                    const auto value = jet::RowBytes(row, true).value(place);
                    texts << (value ? QString::fromLatin1(value->toByteArray().toHex()) : u"-"_s);
                }
                return texts.join(u'|');
            };
            QCOMPARE(outcomeOrReason(cells), expected);
        }
    }

    void otherFilesAreRefused()
    {
        for (const auto &[file, begin] : {
                 std::pair{emptyFile(), u""_s},
                 std::pair{emptyFile(utf16(u"né"_s), 0x42), u""_s}, // made on day 0, which masks it with zeros
                 std::pair{emptyFile("x", 0x42), u"has another database password"_s},
                 std::pair{emptyFile("\1", 0x41), u"is encrypted"_s},
                 std::pair{emptyFile("\1", 0x14), u"is of the format Jet 3"_s},
                 std::pair{emptyFile("\2", 0x14), u"is of a later format"_s},
                 std::pair{emptyFile().chopped(1), u"is truncated"_s},
                 std::pair{QByteArray("SQLite format 3\0 "), u"is an SQLite file"_s},
                 std::pair{QByteArray(), u"is no Jet file"_s},
             }) {
            const QString refusal = jet::refusalOf(file.left(jet::pageSize), file.size(), u"né"_s);
            QVERIFY2(begin.isEmpty() ? refusal.isEmpty() : refusal.startsWith(begin), qPrintable(refusal));
        }
    }

    // The page that the designer made works, as the check sees it, and numbers go on where they were.
    void tablesAreMatched()
    {
        const DataFolder folder(DataFolder::Content::None);
        const jet::ColumnHead key{u"Id"_s, ColumnKind::Long, true};
        const jet::ColumnHead person{u"PersonalInformationId"_s, ColumnKind::Long};
        const jet::ColumnHead date{u"TwoSkillsDate"_s, ColumnKind::Date};
        const QByteArray name = utf16(u"Two Skills"_s);
        const Table skills{{u"Two Skills"_s, 2, 9, {key, date, person}},
                           {{little(5), little(-1.25), little(1)}, {little(5), std::nullopt, little(2)}}};
        const Table pages{{u"TabInfo"_s, 1, 0, {{u"TABID"_s, ColumnKind::Long}, {u"TabNam"_s}}}, {{little(7), name}}};
        const Table fields{{u"FieldInfo"_s, 1, 0, {{u"TabId"_s, ColumnKind::Numeric}, {u"FieldName"_s}}},
                           {{QByteArray(13, '\0') + little(7), utf16(u"Id"_s)}}};
        const Table bell = members({{little(3), utf16(u"Bell"_s), little(4)}}, {u"Shoe"_s, ColumnKind::Long});
        const QByteArray away = jet::linkedFrame(u"Away"_s);
        const jet::Imported imported = importStream(streamOf({skills, bell, pages, fields}, away), folder.file());
        QCOMPARE(imported.rows, 5);
        for (const auto &note : {u"column [MemberInformation].[Shoe] is none"_s, u"table [Away] lies"_s,
                                 u"column [MemberInformation].[City] is missing"_s, u"table [Security] is missing"_s})
            QCOMPARE(imported.notes.filter(note).size(), 1);
        QCOMPARE(datafile::faultsOf(folder.file()), QStringList());
        folder.execute("INSERT INTO [Two Skills] (PersonalInformationId) VALUES (3);"
                       "INSERT INTO MemberInformation (LastName) VALUES ('Åse')");
        QCOMPARE(folder.rows("SELECT MemberId, LastName, Active, Shoe FROM MemberInformation"),
                 (QStringList{u"3|Bell|-1|4"_s, u"41|Åse|-1|NULL"_s}));
        QCOMPARE(folder.rows("SELECT Id, length(TwoSkillsDate) FROM [Two Skills]"),
                 (QStringList{u"5|19"_s, u"5|NULL"_s, u"10|19"_s}));
        QCOMPARE(folder.rows("SELECT TabId, TabNam, FieldName FROM TabInfo NATURAL JOIN FieldInfo"),
                 QStringList{u"7|Two Skills|Id"_s});
    }

    void failuresNameTheirPlace()
    {
        const DataFolder folder(DataFolder::Content::None);
        const QByteArray ann = utf16(u"Ann"_s);
        const QList<CellBytes> row{little(1), ann, std::nullopt};
        Table more = members({row});
        more.head.declaredRows = 2;
        const QByteArray good = streamOf({members({row})});
        for (const auto &[stream, begin] : {
                 std::pair{streamOf({more}), u": it declares 2 rows, and 1 can be read"_s},
                 std::pair{good.chopped(1), u"ends early"_s},
                 std::pair{good.first(good.lastIndexOf('R') + 1) + little(3) + "\2ab",
                           u"the reader process sent what nobody"_s},
                 std::pair{good.first(good.lastIndexOf('R')) + jet::failureFrame(u"is\nbad"_s), u": is bad"_s},
                 std::pair{streamOf({members({row, {std::nullopt, ann, row[2]}})}),
                           u", row 2, column [memberid]: its number is missing"_s},
                 std::pair{streamOf({members({row, row})}), u", row 2: "_s},
                 std::pair{streamOf({members({{row[0], ann, little(1e9)}}, {u"FirstName"_s, ColumnKind::Date})}),
                           u", row 1, column [FirstName]: its date is outside the years 100 to 9999"_s},
                 std::pair{streamOf({members({{row[0], ann, ann}}, {u"Active"_s, ColumnKind::Ole})}),
                           u", row 1, column [Active]: its value is none"_s},
                 std::pair{streamOf({members({}, {u"Odd"_s, ColumnKind(18)})}), u", column [Odd]: is of the type 18"_s},
             }) {
            const QString reason = errorOf([&, &stream = stream] { importStream(stream, folder.file()); });
            QVERIFY2(reason.contains(begin), qPrintable(reason));
            QCOMPARE(folder.names(), QStringList());
        }
    }

    void readerMayFail()
    {
        const DataFolder folder(DataFolder::Content::None);
        const QString old = folder.write(u"old.mdb"_s, emptyFile());
        const QString crash = folder.write(u"crash"_s, "#!/bin/sh\nkill -SEGV $$\n");
        QVERIFY(QFile::setPermissions(crash, QFile::ReadOwner | QFile::ExeOwner));
        datafile::Progress progress({});
        for (const auto &[tool, begin] : {
                 std::pair{u"/bin/true"_s, u"the process that reads it ended early"_s},
                 std::pair{crash, u"the process that reads it crashed"_s},
                 std::pair{QStringLiteral(TOLMARK_DATAFILE), u"its list of tables (MSysObjects): its definition is"_s},
             }) {
            const QString reason =
                errorOf([&, &tool = tool] { jet::importFile(old, folder.file(), {}, tool, progress); });
            QVERIFY2(reason.startsWith(u"57 '%1': %2"_s.arg(old, begin)), qPrintable(reason));
            QCOMPARE(folder.names(), (QStringList{u"crash"_s, u"old.mdb"_s}));
        }
    }

    void readerCanChangeNothing()
    {
        const DataFolder folder(DataFolder::Content::None);
        const QByteArray path = folder.write(u"f"_s, "text").toLocal8Bit();
        const pid_t reader = fork();
        if (reader == 0) {
            const bool isConfined = jet::confine({512UL * 1024 * 1024, 5}) && open(path.constData(), O_RDONLY) >= 0;
            const bool canChange = open(path.constData(), O_WRONLY) >= 0 || unlink(path.constData()) == 0 ||
                                   open((path + "2").constData(), O_RDONLY | O_CREAT, 0600) >= 0 || fork() >= 0 ||
                                   socket(AF_UNIX, SOCK_STREAM, 0) >= 0 || kill(getppid(), 0) == 0 ||
                                   write(STDERR_FILENO, "!", 1) == 1;
            _exit(isConfined && !canChange ? 0 : 1);
        }
        int status = -1;
        QCOMPARE(waitpid(reader, &status, 0), reader);
        QCOMPARE(status, 0);
        QCOMPARE(folder.names(), QStringList{u"f"_s});
    }
};

QTEST_GUILESS_MAIN(tst_jet)
#include "tst_jet.moc"
