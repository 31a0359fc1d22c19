// The rows that a statement delivered, kept compactly: numbers as they are, the texts of a row as UTF-8 one behind the
// other. A text becomes a QString when it is asked for. Memory grows by blocks, so that rows never move.
#pragma once

#include "platform/data/engine/ColumnType.h"
#include "platform/data/engine/Statement.h"

#include <memory>
#include <memory_resource>
#include <vector>

namespace data {

class RowStore
{
public:
    explicit RowStore(int columnCount = 0)
        : m_columnCount(columnCount), m_memory(std::make_unique<std::pmr::monotonic_buffer_resource>())
    {
    }

    qsizetype rowCount() const { return qsizetype(m_rows.size()); }

    // Copies the statement's current row. With `carriesRowId` the column behind the last one is the row's identity.
    void append(const Statement &statement, bool carriesRowId);
    // The same in the place of a row that has changed.
    void replace(qsizetype row, const Statement &statement, bool carriesRowId);
    qint64 rowId(qsizetype row) const { return m_rowIds[size_t(row)]; }

    runtime::Value value(qsizetype row, int column, ColumnType type) const;

private:
    using Cell = Statement::Content;
    const Cell &cell(qsizetype row, int column) const { return m_rows[size_t(row)][column]; }
    const Cell *takeRow(const Statement &statement);
    runtime::Value numberValue(const Cell &cell, ColumnType type) const;
    runtime::Value textValue(QByteArrayView text, ColumnType type) const;

    int m_columnCount;
    std::unique_ptr<std::pmr::monotonic_buffer_resource> m_memory;
    std::vector<const Cell *> m_rows; // the first cell of each, in m_memory
    std::vector<qint64> m_rowIds;
};

} // namespace data
