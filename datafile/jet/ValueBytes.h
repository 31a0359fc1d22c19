// The values of a Jet file from their bytes, by the format and not by what libmdb makes of them: its texts of dates are
// wrong before 1900 and after 9998, and it cuts long texts and those with a zero in them.
#pragma once

#include "datafile/jet/Frames.h"
#include "platform/runtime/Value.h"

namespace jet {

// A text of the format: UTF-16, or behind a mark partly in one byte for each character. Raises 57 for one that ends in
// the middle of a character.
QString textOf(QByteArrayView bytes);

// The value of a cell. A Byte becomes a 16-bit number, a Float a Double, a Guid and a Numeric the text that writes them
// exactly. Raises 57 for bytes that are no value of the column's kind, with a text that says why.
runtime::Value valueOf(const ColumnHead &column, const CellBytes &cell);

} // namespace jet
