#include "datafile/jet/TableReader.h"

#include "datafile/jet/Confinement.h"
#include "datafile/jet/Frames.h"
#include "datafile/jet/Header.h"
#include "datafile/jet/RowBytes.h"
#include "datafile/jet/ValueBytes.h"
#include "platform/runtime/RuntimeError.h"

#include <QRegularExpression>
#include <QSet>
#include <QtEndian>

#include <cerrno>
#include <cstdlib>
#include <functional>
#include <glib.h> // before mdbtools.h, which includes it as C
#include <mdbtools.h>
#include <memory>
#include <new>
#include <unistd.h>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace jet {

namespace {

constexpr quint32 catalogPage = 2;
constexpr char dataPage = 1;
constexpr char definitionPage = 2;
constexpr qsizetype ownerAt = 4;        // in a data page: the page of its table's definition, or "LVAL"
constexpr qsizetype lastNumberAt = 20;  // in a definition
constexpr quint16 isElsewhere = 0x4000; // in the place of a row: four bytes there tell where the row is
constexpr quint16 isDeleted = 0x8000;   // or the row is reached by such four bytes alone
constexpr quint16 offsetBits = 0x1fff;

[[noreturn]] void fail(const QString &text)
{
    throw runtime::RuntimeError(runtime::DeviceError, text);
}

// Standard output. A parent that is gone needs nothing more, and the process ends.
class Output
{
public:
    void send(const QByteArray &frame)
    {
        constexpr qsizetype enough = 65'536;
        m_waiting += frame;
        if (m_waiting.size() >= enough)
            flush();
    }
    void flush()
    {
        for (qsizetype done = 0; done < m_waiting.size();) {
            const ssize_t written = write(STDOUT_FILENO, m_waiting.constData() + done, size_t(m_waiting.size() - done));
            if (written < 0 && errno != EINTR)
                std::_Exit(1);
            done += qMax<ssize_t>(written, 0);
        }
        m_waiting.clear();
    }

private:
    QByteArray m_waiting;
};

class JetFile
{
public:
    explicit JetFile(const char *path) : m_handle(mdb_open(path, MDB_NOFLAGS))
    {
        if (!m_handle)
            fail(u"libmdb cannot open it"_s);
    }
    MdbHandle *handle() const { return m_handle.get(); }

    // A copy of a page; empty for one that the file does not have.
    QByteArray page(quint32 number) const
    {
        if (mdb_read_alt_pg(m_handle.get(), number) != pageSize)
            return {};
        return QByteArray(reinterpret_cast<const char *>(m_handle->alt_pg_buf), pageSize);
    }

private:
    struct Close
    {
        void operator()(MdbHandle *handle) const { mdb_close(handle); }
    };
    std::unique_ptr<MdbHandle, Close> m_handle;
};

// A row's place in a page: its flags and its bytes.
struct Row
{
    quint16 flags = 0;
    QByteArrayView bytes;
};

Row rowOf(const MdbHandle *handle, QByteArrayView page, quint32 number)
{
    const qsizetype countAt = handle->fmt->row_count_offset;
    const auto placeAt = [&](quint32 row) {
        return qFromLittleEndian<quint16>(page.data() + countAt + 2 + 2 * qsizetype(row));
    };
    const quint32 rows = qFromLittleEndian<quint16>(page.data() + countAt);
    if (number >= rows || countAt + 2 + 2 * qsizetype(rows) > pageSize)
        fail(u"it is not in the page that is named for it"_s);
    const quint16 place = placeAt(number);
    const qsizetype begin = place & offsetBits;
    const qsizetype end = number == 0 ? pageSize : placeAt(number - 1) & offsetBits;
    if (begin > end || end > pageSize)
        fail(u"its place in the page is damaged"_s);
    return {quint16(place & ~offsetBits), page.sliced(begin, end - begin)};
}

bool isDataPageOf(QByteArrayView page, quint32 owner)
{
    return page.size() == pageSize && page[0] == dataPage && qFromLittleEndian<quint32>(page.data() + ownerAt) == owner;
}

// A long value: how long it is and how it is kept, then either the value itself or where it begins.
QByteArray longValue(const JetFile &file, QByteArrayView bytes)
{
    constexpr qsizetype headSize = 12;
    constexpr quint32 isHere = 0x80000000;
    constexpr quint32 isInOnePiece = 0x40000000;
    const quint32 lval = qFromLittleEndian<quint32>("LVAL");
    if (bytes.size() < headSize)
        fail(u"its value has no head"_s);
    const auto head = qFromLittleEndian<quint32>(bytes.data());
    const quint32 form = head & (isHere | isInOnePiece);
    const qsizetype size = head & ~(isHere | isInOnePiece);
    QByteArray value;
    if (form == isHere) {
        value = bytes.sliced(headSize).toByteArray();
    } else if (form == isInOnePiece || form == 0) {
        quint32 next = qFromLittleEndian<quint32>(bytes.data() + 4); // the page, and in the last byte the row
        while (next != 0 && value.size() <= size) {
            const QByteArray page = file.page(next >> 8);
            if (!isDataPageOf(page, lval))
                fail(u"a part of its value is missing"_s);
            const QByteArrayView part = rowOf(file.handle(), page, next & 0xff).bytes;
            if (form == isInOnePiece) {
                value = part.toByteArray();
                break;
            }
            if (part.size() <= 4)
                fail(u"a part of its value is empty"_s);
            next = qFromLittleEndian<quint32>(part.data());
            value += part.sliced(4);
        }
    } else {
        fail(u"its value is kept in an unknown way"_s);
    }
    if (value.size() != size)
        fail(u"its value is %1 bytes long and declared with %2"_s.arg(value.size()).arg(size));
    return value;
}

// The long values of the catalog describe forms and reports, which are not imported.
enum class LongValues { Read, PassOver };

class JetTable
{
public:
    JetTable(const JetFile &file, const QString &name, quint32 page, LongValues longValues)
        : m_file(file), m_page(page), m_longValues(longValues)
    {
        m_entry.mdb = file.handle();
        m_entry.object_type = MDB_TABLE;
        m_entry.table_pg = page;
        m_table.reset(mdb_read_table(&m_entry));
        if (!m_table || !mdb_read_columns(m_table.get()) || m_table->columns->len != m_table->num_cols)
            fail(u"its definition is damaged"_s);
        m_head.name = name;
        m_head.declaredRows = m_table->num_rows;
        m_head.lastNumber = qFromLittleEndian<qint32>(file.page(page).constData() + lastNumberAt);
        for (guint i = 0; i < m_table->columns->len; ++i)
            addColumn(*static_cast<const MdbColumn *>(g_ptr_array_index(m_table->columns, i)));
    }

    JetTable(const JetTable &) = delete;
    JetTable &operator=(const JetTable &) = delete;

    const TableHead &head() const { return m_head; }
    qsizetype indexOf(const QString &column) const
    {
        for (qsizetype i = 0; i < m_head.columns.size(); ++i)
            if (m_head.columns.at(i).name.compare(column, Qt::CaseInsensitive) == 0)
                return i;
        fail(u"it lacks the column [%1]"_s.arg(column));
    }

    // Hands over each row; the number of rows.
    quint32 forEachRow(const std::function<void(const QList<CellBytes> &)> &use)
    {
        mdb_rewind_table(m_table.get());
        QSet<quint32> seen;
        quint32 rows = 0;
        while (mdb_read_next_dpg(m_table.get()) != 0) {
            const quint32 number = m_table->cur_phys_pg;
            if (seen.contains(number))
                fail(u"page %1 comes twice among its pages"_s.arg(number));
            seen.insert(number);
            const QByteArray page(reinterpret_cast<const char *>(m_file.handle()->pg_buf), pageSize);
            const quint32 places =
                qFromLittleEndian<quint16>(page.constData() + m_file.handle()->fmt->row_count_offset);
            for (quint32 place = 0; place < places; ++place) {
                if (const auto cells = readRow(page, place, rows + 1)) {
                    ++rows;
                    use(*cells);
                }
            }
        }
        return rows;
    }

private:
    void addColumn(const MdbColumn &column)
    {
        ColumnHead head;
        head.name = QString::fromUtf8(column.name);
        head.kind = ColumnKind(column.col_type);
        head.isCounter = column.is_long_auto != 0;
        // Of the two, versions of libmdb call one or the other the scale; it is never above the precision.
        head.scale = quint8(qMin(column.col_scale, column.col_prec));
        m_head.columns << head;
        m_places << ColumnPlace{.number = quint16(column.col_num),
                                .isBoolean = column.col_type == MDB_BOOL,
                                .isFixed = column.is_fixed != 0,
                                .offset = quint16(column.fixed_offset),
                                .size = quint16(column.col_size),
                                .index = quint16(column.var_col_num)};
    }

    // Nothing for the place of a deleted row, and for one of a row that another place leads to.
    std::optional<QList<CellBytes>> readRow(QByteArrayView page, quint32 place, quint32 number) const
    {
        QString where = u"row %1"_s.arg(number);
        try {
            Row row = rowOf(m_file.handle(), page, place);
            if (row.flags & isDeleted)
                return std::nullopt;
            QByteArray otherPage;
            if (row.flags & isElsewhere)
                row = followed(row.bytes, otherPage);
            const RowBytes bytes(row.bytes, m_table->num_var_cols > 0);
            QList<CellBytes> cells;
            for (qsizetype i = 0; i < m_places.size(); ++i) {
                where = u"row %1, column [%2]"_s.arg(number).arg(m_head.columns.at(i).name);
                cells << cellOf(m_head.columns.at(i).kind, bytes.value(m_places.at(i)));
            }
            return cells;
        } catch (const runtime::RuntimeError &error) {
            fail(where + u": "_s + error.description());
        }
    }

    CellBytes cellOf(ColumnKind kind, std::optional<QByteArrayView> bytes) const
    {
        if (!bytes)
            return std::nullopt;
        if (kind != ColumnKind::Memo && kind != ColumnKind::Ole)
            return bytes->toByteArray();
        return m_longValues == LongValues::Read ? CellBytes(longValue(m_file, *bytes)) : std::nullopt;
    }

    // A row that grew too large for its page was moved; its old place leads to it.
    Row followed(QByteArrayView link, QByteArray &page) const
    {
        if (link.size() < 4)
            fail(u"it was moved, and where to is missing"_s);
        const auto target = qFromLittleEndian<quint32>(link.data());
        page = m_file.page(target >> 8);
        if (!isDataPageOf(page, m_page))
            fail(u"it was moved to a page that is not its table's"_s);
        const Row row = rowOf(m_file.handle(), page, target & 0xff);
        if (row.flags & isElsewhere)
            fail(u"it was moved, and where to is damaged"_s);
        return row;
    }

    struct Free
    {
        void operator()(MdbTableDef *table) const { mdb_free_tabledef(table); }
    };
    const JetFile &m_file;
    quint32 m_page;
    LongValues m_longValues;
    MdbCatalogEntry m_entry{}; // libmdb's table points to it
    std::unique_ptr<MdbTableDef, Free> m_table;
    TableHead m_head;
    QList<ColumnPlace> m_places;
};

// The flags alone do not make a table one of the system's: with a damaged bit a user's table would be left out.
bool isSystemName(const QString &name)
{
    static const QRegularExpression pattern(u"^(MSys.*|f_[0-9A-F]{32}_.*)$"_s,
                                            QRegularExpression::CaseInsensitiveOption);
    return pattern.match(name).hasMatch();
}

struct Entry
{
    QString name;
    quint32 page = 0; // 0 for a table in another file
};

// What the catalog, a table itself, lists: the tables of the file's user and the names of linked ones.
class CatalogReader
{
public:
    explicit CatalogReader(const JetFile &file)
        : m_file(file), m_catalog(file, u"MSysObjects"_s, catalogPage, LongValues::PassOver),
          m_id(m_catalog.indexOf(u"Id"_s)), m_type(m_catalog.indexOf(u"Type"_s)),
          m_flags(m_catalog.indexOf(u"Flags"_s)), m_name(m_catalog.indexOf(u"Name"_s))
    {
    }

    QList<Entry> entries()
    {
        const quint32 rows = m_catalog.forEachRow([this](const QList<CellBytes> &cells) { add(cells); });
        if (rows != m_catalog.head().declaredRows)
            fail(u"it declares %1 rows, and %2 can be read"_s.arg(m_catalog.head().declaredRows).arg(rows));
        return m_entries;
    }

private:
    runtime::Value valueAt(const QList<CellBytes> &cells, qsizetype column) const
    {
        return valueOf(m_catalog.head().columns.at(column), cells.at(column));
    }

    void add(const QList<CellBytes> &cells)
    {
        constexpr qint16 localTable = 1;
        constexpr qint16 tableOfServer = 4;
        constexpr qint16 tableOfOtherFile = 6;
        constexpr quint32 ofTheSystem = 0x80000002;
        const runtime::Value type = valueAt(cells, m_type);
        const runtime::Value id = valueAt(cells, m_id);
        const runtime::Value flags = valueAt(cells, m_flags);
        const QString name = joined(valueAt(cells, m_name));
        if (!type.is<qint16>() || !id.is<qint32>() || name.isEmpty())
            fail(u"an entry is damaged"_s);
        const auto page = quint32(id.get<qint32>());
        if (type.get<qint16>() == tableOfServer || type.get<qint16>() == tableOfOtherFile) {
            m_entries << Entry{name, 0};
        } else if (type.get<qint16>() == localTable) {
            // Two entries for one table would count its rows twice, and another one's rows not at all.
            if (m_pages.contains(page))
                fail(u"[%1] and another entry are one table"_s.arg(name));
            m_pages.insert(page);
            const bool isMarked = flags.is<qint32>() && (quint32(flags.get<qint32>()) & ofTheSystem) != 0;
            if (!isMarked || !isSystemName(name))
                m_entries << Entry{name, page};
        } else if (const QByteArray first = m_file.page(page); !first.isEmpty() && first.at(0) == definitionPage) {
            fail(u"[%1] is listed as no table and has the definition of one"_s.arg(name));
        }
    }

    static QString joined(const runtime::Value &value)
    {
        return value.is<QString>() ? value.get<QString>() : QString();
    }

    const JetFile &m_file;
    JetTable m_catalog;
    qsizetype m_id;
    qsizetype m_type;
    qsizetype m_flags;
    qsizetype m_name;
    QSet<quint32> m_pages;
    QList<Entry> m_entries;
};

QList<Entry> entriesOf(const JetFile &file)
{
    try {
        return CatalogReader(file).entries();
    } catch (const runtime::RuntimeError &error) {
        fail(u"its list of tables (MSysObjects): "_s + error.description());
    }
}

void sendTables(const JetFile &file, Output &output)
{
    std::vector<std::unique_ptr<JetTable>> tables;
    QStringList linked;
    quint64 rows = 0;
    for (const Entry &entry : entriesOf(file)) {
        if (entry.page == 0) {
            linked << entry.name;
            continue;
        }
        try {
            tables.push_back(std::make_unique<JetTable>(file, entry.name, entry.page, LongValues::Read));
        } catch (const runtime::RuntimeError &error) {
            fail(u"table [%1]: %2"_s.arg(entry.name, error.description()));
        }
        rows += tables.back()->head().declaredRows;
    }
    output.send(beginFrame(rows));
    for (const QString &name : linked)
        output.send(linkedFrame(name));
    for (const auto &table : tables) {
        output.send(tableFrame(table->head()));
        const QList<ColumnHead> &columns = table->head().columns;
        const quint32 found =
            table->forEachRow([&](const QList<CellBytes> &cells) { output.send(rowFrame(columns, cells)); });
        output.send(endOfTableFrame(found));
    }
    output.send(endFrame(quint32(tables.size())));
}

} // namespace

int readTables(const char *path, const char *processorSeconds)
{
    Output output;
    try {
        output.send(mark.toByteArray());
        if (!confine({readerMemory, std::strtoul(processorSeconds, nullptr, 10)}))
            fail(u"the process that reads it cannot be confined (%1)"_s.arg(qt_error_string(errno)));
        sendTables(JetFile(path), output);
    } catch (const runtime::RuntimeError &error) {
        output.send(failureFrame(error.description()));
    } catch (const std::bad_alloc &) {
        output.send(failureFrame(u"it needs more than the 512 MiB of memory that reading it may take"_s));
    }
    output.flush();
    return 0;
}

} // namespace jet
