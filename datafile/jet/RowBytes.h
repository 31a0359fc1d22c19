// How a row of a data page is divided into the bytes of its columns.
#pragma once

#include <QByteArrayView>

#include <optional>

namespace jet {

// Where a column lies in each row of its table.
struct ColumnPlace
{
    quint16 number = 0;     // in the row's bits that tell which columns are there
    bool isBoolean = false; // has this bit alone
    bool isFixed = false;
    quint16 offset = 0; // of a fixed column, behind the row's first two bytes
    quint16 size = 0;   // of a fixed column, in bytes
    quint16 index = 0;  // of another column, among those without a fixed place
};

class RowBytes
{
public:
    // A view of the row's bytes. `hasVariableColumns` tells whether the table ever had a column without a fixed place.
    // Raises RuntimeError 57 for a row whose parts do not fit into it.
    RowBytes(QByteArrayView row, bool hasVariableColumns);

    // Nothing for Null and for a No; empty for a Yes. A column that was added to the table behind this row is Null.
    // Raises 57 for a value that does not lie within the row.
    std::optional<QByteArrayView> value(const ColumnPlace &place) const;

private:
    quint16 number(qsizetype at) const;

    QByteArrayView m_row;
    quint16 m_columns = 0;
    qsizetype m_bitsAt = 0;
    qsizetype m_valuesEnd = 0;
    quint16 m_variableColumns = 0;
};

} // namespace jet
