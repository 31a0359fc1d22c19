#include "datafile/jet/FrameReader.h"

#include "platform/runtime/RuntimeError.h"

#include <QtEndian>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace jet {

namespace {

constexpr quint16 mostColumns = 255; // of a table of the format

[[noreturn]] void failAsGarbled()
{
    throw runtime::RuntimeError(runtime::DeviceError, u"the reader process sent what nobody understands"_s);
}

// What is left of a frame.
class Rest
{
public:
    explicit Rest(QByteArrayView content) : m_bytes(content) {}

    template <class Number> Number number() { return qFromLittleEndian<Number>(bytes(sizeof(Number)).data()); }
    QByteArrayView bytes(qsizetype size)
    {
        if (size > m_bytes.size())
            failAsGarbled();
        const QByteArrayView taken = m_bytes.first(size);
        m_bytes = m_bytes.sliced(size);
        return taken;
    }
    QString text()
    {
        const auto size = number<quint16>();
        return QString::fromUtf8(bytes(size));
    }
    void requireEnd() const
    {
        if (!m_bytes.isEmpty())
            failAsGarbled();
    }

private:
    QByteArrayView m_bytes;
};

ColumnHead columnFrom(Rest &rest)
{
    ColumnHead column;
    column.kind = ColumnKind(rest.number<quint8>());
    column.isCounter = rest.number<quint8>() != 0;
    column.scale = rest.number<quint8>();
    column.name = rest.text();
    return column;
}

TableHead tableFrom(Rest rest)
{
    TableHead table;
    table.declaredRows = rest.number<quint32>();
    table.lastNumber = rest.number<qint32>();
    table.name = rest.text();
    const auto columns = rest.number<quint16>();
    if (table.name.isEmpty() || columns > mostColumns)
        failAsGarbled();
    for (quint16 i = 0; i < columns; ++i)
        table.columns << columnFrom(rest);
    rest.requireEnd();
    return table;
}

} // namespace

FrameReader::FrameReader(Take take) : m_take(std::move(take))
{
    if (m_take(mark.size()) != mark)
        failAsGarbled();
    const Frame begin = nextFrame();
    if (begin.kind != FrameKind::Begin)
        failAsGarbled();
    m_expectedRows = Rest(begin.content).number<quint64>();
}

void FrameReader::fail(const QString &text) const
{
    throw runtime::RuntimeError(runtime::DeviceError,
                                m_table.name.isEmpty() ? text : u"table [%1]: %2"_s.arg(m_table.name, text));
}

FrameReader::Frame FrameReader::nextFrame()
{
    const QByteArray head = m_take(5);
    Frame frame{FrameKind(head.at(0)), m_take(qFromLittleEndian<quint32>(head.constData() + 1))};
    if (frame.kind == FrameKind::Failure)
        fail(Rest(frame.content).text().simplified());
    return frame;
}

std::optional<TableHead> FrameReader::nextTable()
{
    m_table = {};
    m_row = 0;
    Frame frame = nextFrame();
    for (; frame.kind == FrameKind::Linked; frame = nextFrame())
        m_linked << Rest(frame.content).text();
    if (frame.kind == FrameKind::End && Rest(frame.content).number<quint32>() == m_tables)
        return std::nullopt;
    if (frame.kind != FrameKind::Table)
        failAsGarbled();
    m_table = tableFrom(Rest(frame.content));
    ++m_tables;
    return m_table;
}

std::optional<QList<CellBytes>> FrameReader::nextRow()
{
    const Frame frame = nextFrame();
    if (frame.kind == FrameKind::Row) {
        ++m_row;
        return cellsOf(frame.content);
    }
    if (frame.kind != FrameKind::EndOfTable || Rest(frame.content).number<quint32>() != m_row)
        failAsGarbled();
    if (m_row != m_table.declaredRows)
        fail(u"it declares %1 rows, and %2 can be read; nothing was imported"_s.arg(m_table.declaredRows).arg(m_row));
    return std::nullopt;
}

QList<CellBytes> FrameReader::cellsOf(QByteArrayView content) const
{
    Rest rest(content);
    QList<CellBytes> cells;
    cells.reserve(m_table.columns.size());
    for (const ColumnHead &column : m_table.columns) {
        const auto form = rest.number<quint8>();
        if (form > 2 || (form != 0 && (form == 1) != (column.kind == ColumnKind::Boolean)))
            failAsGarbled();
        if (form == 0)
            cells << std::nullopt;
        else if (form == 1)
            cells << QByteArray();
        else
            cells << rest.bytes(rest.number<quint32>()).toByteArray();
    }
    rest.requireEnd();
    return cells;
}

} // namespace jet
