// Whether a file can serve as the data file: it has every table and column with the type and default that the program
// relies on, the tables that may not be empty have rows, the rows are such as RowChecks.h asks for, and SQLite finds
// the file sound. Tables and columns besides these are no fault.
#pragma once

#include <QString>
#include <QStringList>

namespace datafile {

// One line for each fault, without the path; none for a good file. Raises the store's errors for a file that cannot be
// read at all.
QStringList faultsOf(const QString &path);
// The same without a look at the rows: whether the program can open the file and finds its tables there.
QStringList faultsOfLayout(const QString &path);

} // namespace datafile
