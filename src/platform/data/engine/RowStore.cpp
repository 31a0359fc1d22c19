#include "platform/data/engine/RowStore.h"

#include <algorithm>
#include <span>

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

const RowStore::Cell *RowStore::takeRow(const Statement &statement)
{
    const auto count = size_t(m_columnCount);
    Cell *cells = std::pmr::polymorphic_allocator<Cell>(m_memory.get()).allocate(count);
    size_t bytes = 0;
    for (size_t column = 0; column < count; ++column) {
        const Cell &cell = *new (cells + column) Cell(statement.content(int(column)));
        bytes += cell.size;
    }
    auto *place = static_cast<char *>(m_memory->allocate(bytes, 1));
    for (Cell &cell : std::span(cells, count)) {
        if (!cell.hasBytes())
            continue;
        cell.bytes = std::copy_n(cell.bytes, cell.size, place) - cell.size;
        place += cell.size;
    }
    return cells;
}

void RowStore::append(const Statement &statement, bool carriesRowId)
{
    m_rows.push_back(takeRow(statement));
    if (carriesRowId)
        m_rowIds.push_back(statement.integer(m_columnCount));
}

void RowStore::replace(qsizetype row, const Statement &statement, bool carriesRowId)
{
    m_rows[size_t(row)] = takeRow(statement);
    if (carriesRowId)
        m_rowIds[size_t(row)] = statement.integer(m_columnCount);
}

Value RowStore::numberValue(const Cell &cell, ColumnType type) const
{
    const bool whole = cell.storage == Statement::Storage::Integer;
    const double real = whole ? double(cell.integer) : cell.real;
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
        return Value(whole ? QString::number(cell.integer) : QString::number(real, 'g', 15));
    case ColumnType::Unknown:
    case ColumnType::Integer:
    case ColumnType::Long:
    case ColumnType::Binary:
        break;
    }
    return whole ? wholeNumber(cell.integer, type) : Value(real);
}

Value RowStore::textValue(QByteArrayView text, ColumnType type) const
{
    if (type == ColumnType::Date) {
        if (const auto date = runtime::Date::fromIsoText(QString::fromUtf8(text)))
            return Value(*date);
    }
    if (type == ColumnType::Currency) {
        if (const auto amount = storedAmount(text))
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
        return textValue(from.view(), type);
    case Statement::Storage::Blob:
        return Value(from.view().toByteArray());
    }
    return {};
}

} // namespace data
