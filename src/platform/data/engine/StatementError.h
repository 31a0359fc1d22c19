// Turns what SQLite says of a translated statement into the dialect's own errors.
#pragma once

#include "platform/data/engine/Database.h"
#include "platform/data/sql/Translation.h"

namespace data {

// Prepares the statement. An unknown table or column raises the provider's error for the kind of statement.
Statement prepareChecked(Database &database, const sql::Translation &translation, QByteArrayView sql);

// Raises "Data type mismatch in criteria expression." where a column is compared with a literal of another kind.
void checkComparisons(const Database &database, const sql::Translation &translation);

} // namespace data
