// The dialect's errors for a translated statement that the open file refuses.
#pragma once

#include "platform/data/engine/Database.h"
#include "platform/data/sql/Translation.h"

namespace data {

// The translation's SQL for this file: a LIKE on a column that holds no texts is compared row by row, and
// the number of its key is the parameter ?1.
QByteArray sqlFor(const Database &database, const sql::Translation &translation);
// Prepares `sql`, a form of what sqlFor() gave, and binds the key. An unknown table or column raises the dialect's
// error.
Statement prepareChecked(Database &database, const sql::Translation &translation, QByteArrayView sql);

// Raises "Data type mismatch in criteria expression." where a column is compared with a literal of another kind.
void checkComparisons(const Database &database, const sql::Translation &translation);

} // namespace data
