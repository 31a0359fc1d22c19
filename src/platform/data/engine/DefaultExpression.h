// The default of a column, from an expression of the dialect to what stands behind DEFAULT in SQLite's SQL.
#pragma once

#include "platform/data/engine/ColumnType.h"
#include "platform/data/engine/Database.h"

#include <QString>

namespace data {

// Understands the functions Date, Time and Now for a date column, and a number or a text that the type can hold; the
// provider's error for all else. `place` is "Table.Column", for the error's text.
QByteArray defaultSql(const Database &file, const QString &expression, ColumnType type, const QString &place);

} // namespace data
