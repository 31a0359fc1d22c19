#include "datafile/jet/RowBytes.h"

#include "platform/runtime/RuntimeError.h"

#include <QtEndian>

using namespace Qt::Literals::StringLiterals;

namespace jet {

namespace {

[[noreturn]] void failAsDamaged()
{
    throw runtime::RuntimeError(runtime::DeviceError, u"its bytes are damaged"_s);
}

} // namespace

// The row's number of columns, the columns of a fixed place, the others, the end of these, where each of them begins
// (the last one first), how many they are, and a bit for each column that is there.
RowBytes::RowBytes(QByteArrayView row, bool hasVariableColumns) : m_row(row)
{
    m_columns = number(0);
    m_bitsAt = m_valuesEnd = row.size() - (m_columns + 7) / 8;
    if (hasVariableColumns) {
        m_variableColumns = number(m_bitsAt - 2);
        m_valuesEnd = m_bitsAt - 2 - 2 * (qsizetype(m_variableColumns) + 1);
    }
    if (m_valuesEnd < 2)
        failAsDamaged();
}

quint16 RowBytes::number(qsizetype at) const
{
    if (at < 0 || at + 2 > m_row.size())
        failAsDamaged();
    return qFromLittleEndian<quint16>(m_row.data() + at);
}

std::optional<QByteArrayView> RowBytes::value(const ColumnPlace &place) const
{
    if (place.number >= m_columns || !(m_row[m_bitsAt + place.number / 8] >> (place.number % 8) & 1))
        return std::nullopt;
    if (place.isBoolean)
        return QByteArrayView("");
    qsizetype begin = 2 + place.offset;
    qsizetype end = begin + place.size;
    if (!place.isFixed) {
        if (place.index >= m_variableColumns)
            return std::nullopt;
        const qsizetype countAt = m_bitsAt - 2;
        begin = number(countAt - 2 * (place.index + 1));
        end = number(countAt - 2 * (place.index + 2));
    }
    if (begin < 2 || begin > end || end > m_valuesEnd)
        failAsDamaged();
    return m_row.sliced(begin, end - begin);
}

} // namespace jet
