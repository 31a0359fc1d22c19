// What the program would fail on in the rows of a data file whose tables are complete: each fault in one line, with
// what mends it.
#pragma once

#include "platform/data/engine/Database.h"

#include <QStringList>

namespace datafile {

// Values that are not of the type of their column (a date that is no date), names of stored files that are no plain
// file names, names that no group of the explorers lists, and pages of the record window without their table, columns
// or rows.
QStringList faultsOfRows(data::Database &file);

// Whether the name of a stored file can be the name of a file in a folder.
bool isPlainFileName(const QString &name);

} // namespace datafile
