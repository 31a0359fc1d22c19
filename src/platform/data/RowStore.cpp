#include "platform/data/RowStore.h"

#include <limits>

namespace data {

using runtime::Value;

namespace {

Value wholeNumber(qint64 number, ColumnType type)
{
    if (type == ColumnType::Integer && number == qint16(number))
        return Value(qint16(number));
    if (number == qint32(number))
        return Value(qint32(number));
    return Value(double(number));
}

} // namespace

size_t RowStore::takeRow(const Statement &statement)
{
    const size_t start = m_cells.size();
    m_cells.resize(start + size_t(m_columnCount));
    for (int column = 0; column < m_columnCount; ++column) {
        Cell &cell = m_cells[start + size_t(column)];
        cell.storage = statement.storage(column);
        switch (cell.storage) {
        case Statement::Storage::Integer:
            cell.content.integer = statement.integer(column);
            break;
        case Statement::Storage::Real:
            cell.content.real = statement.real(column);
            break;
        case Statement::Storage::Text:
        case Statement::Storage::Blob: {
            const QByteArrayView bytes =
                cell.storage == Statement::Storage::Text ? statement.text(column) : statement.blob(column);
            cell.content.offset = m_bytes.size();
            cell.size = quint32(bytes.size());
            m_bytes.append(bytes.data(), size_t(bytes.size()));
            break;
        }
        case Statement::Storage::Null:
            break;
        }
    }
    return start;
}

void RowStore::append(const Statement &statement, bool carriesRowId)
{
    m_rowStarts.push_back(takeRow(statement));
    if (carriesRowId)
        m_rowIds.push_back(statement.integer(m_columnCount));
}

void RowStore::replace(qsizetype row, const Statement &statement, bool carriesRowId)
{
    m_rowStarts[size_t(row)] = takeRow(statement);
    if (carriesRowId)
        m_rowIds[size_t(row)] = statement.integer(m_columnCount);
}

bool RowStore::isNull(qsizetype row, int column) const
{
    return cell(row, column).storage == Statement::Storage::Null;
}

Value RowStore::numberValue(const Cell &cell, ColumnType type) const
{
    const bool whole = cell.storage == Statement::Storage::Integer;
    const double real = whole ? double(cell.content.integer) : cell.content.real;
    switch (type) {
    case ColumnType::Boolean:
        return Value(real != 0.0);
    case ColumnType::Currency:
        return Value(runtime::Currency::fromDouble(real));
    case ColumnType::Date:
        return Value(runtime::Date::fromSerial(real));
    case ColumnType::Double:
        return Value(real);
    case ColumnType::Text:
    case ColumnType::Memo:
        return Value(whole ? QString::number(cell.content.integer) : QString::number(real, 'g', 15));
    case ColumnType::Unknown:
    case ColumnType::Integer:
    case ColumnType::Long:
    case ColumnType::Binary:
        break;
    }
    return whole ? wholeNumber(cell.content.integer, type) : Value(real);
}

Value RowStore::textValue(QByteArrayView text, ColumnType type) const
{
    if (type == ColumnType::Date) {
        if (const auto date = runtime::Date::fromIsoText(QString::fromUtf8(text)))
            return Value(*date);
    }
    if (type == ColumnType::Currency) {
        if (const auto amount = runtime::Currency::fromPlainText(QString::fromUtf8(text)))
            return Value(*amount);
    }
    // What another tool wrote into a column of another kind comes back as the text that it is.
    return Value(QString::fromUtf8(text));
}

Value RowStore::value(qsizetype row, int column, ColumnType type) const
{
    const Cell &from = cell(row, column);
    switch (from.storage) {
    case Statement::Storage::Null:
        break;
    case Statement::Storage::Integer:
    case Statement::Storage::Real:
        return numberValue(from, type);
    case Statement::Storage::Text:
        return textValue({m_bytes.data() + from.content.offset, qsizetype(from.size)}, type);
    case Statement::Storage::Blob:
        return Value(QByteArray(m_bytes.data() + from.content.offset, qsizetype(from.size)));
    }
    return {};
}

} // namespace data
