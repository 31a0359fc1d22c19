// What a column holds, as its declaration in the data file says it.
#pragma once

#include "platform/runtime/Value.h"

#include <QByteArrayView>

#include <optional>

namespace data {

// The numbers are those by which the data objects know the types.
enum class ColumnType : int {
    Unknown = 0, // an expression: its values have the type in which the store delivers them
    Integer = 2, // signed 16-bit
    Long = 3,    // signed 32-bit
    Double = 5,
    Currency = 6,
    Date = 7,
    Boolean = 11,
    Text = 202,
    Memo = 203,
    Binary = 205,
};

// SMALLINT, INTEGER, DOUBLE, CURRENCY, DATETIME, BOOLEAN, TEXT, LONGTEXT, BLOB and what other tools write for them.
ColumnType columnTypeOfDeclaration(QByteArrayView declaration);

// The file keeps an amount as a number, with which every tool can reckon. One of more digits than a number has room for
// (it needs more than some 550 thousand million and a fraction) is kept as a text, which this word behind the digits
// prevents from becoming a number.
inline constexpr QByteArrayView exactAmountMark = " exact";
// An amount from what an amount's column holds as text, with the word or without it; empty when it is none.
std::optional<runtime::Currency> storedAmount(QByteArrayView text);

inline bool isText(ColumnType type)
{
    return type == ColumnType::Text || type == ColumnType::Memo;
}

// The value in the column's type; Null stays Null. Raises 13 for a value that has no such form, 6 for a number outside
// the type: the caller turns both into the error of its own place.
runtime::Value convertedTo(ColumnType type, const runtime::Value &value);

} // namespace data
