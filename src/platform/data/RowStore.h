// The rows that a statement delivered, kept compactly: numbers as they are, texts as UTF-8 behind one another in one
// block. A text becomes a QString only when it is asked for.
#pragma once

#include "platform/data/ColumnType.h"
#include "platform/data/Statement.h"

#include <string>
#include <vector>

namespace data {

class RowStore
{
public:
    explicit RowStore(int columnCount = 0) : m_columnCount(columnCount) {}

    qsizetype rowCount() const { return qsizetype(m_rowStarts.size()); }

    // Takes over the row on which the statement stands; with a row identity in the column behind the last one.
    void append(const Statement &statement, bool carriesRowId);
    // The same in the place of a row that has changed.
    void replace(qsizetype row, const Statement &statement, bool carriesRowId);
    qint64 rowId(qsizetype row) const { return m_rowIds[size_t(row)]; }

    bool isNull(qsizetype row, int column) const;
    runtime::Value value(qsizetype row, int column, ColumnType type) const;
    // A whole number as it was delivered.
    qint64 integer(qsizetype row, int column) const { return cell(row, column).content.integer; }

private:
    struct Cell
    {
        union {
            qint64 integer;
            double real;
            size_t offset; // of the first byte in m_bytes
        } content;
        quint32 size = 0; // bytes
        Statement::Storage storage = Statement::Storage::Null;
    };
    const Cell &cell(qsizetype row, int column) const { return m_cells[m_rowStarts[size_t(row)] + size_t(column)]; }
    size_t takeRow(const Statement &statement);
    runtime::Value numberValue(const Cell &cell, ColumnType type) const;
    runtime::Value textValue(QByteArrayView text, ColumnType type) const;

    int m_columnCount;
    std::vector<Cell> m_cells;
    std::vector<size_t> m_rowStarts; // index of a row's first cell
    std::vector<qint64> m_rowIds;
    std::string m_bytes;
};

} // namespace data
