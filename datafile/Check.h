// Whether a file can serve as the data file: it has every table and column with the type and default that the program
// relies on, the tables that may not be empty have rows, and SQLite finds the file sound. Tables and columns besides
// these are no fault.
#pragma once

#include <QString>
#include <QStringList>

namespace datafile {

// One line for each fault, without the path; none for a good file. Raises the store's errors for a file that cannot be
// read at all.
QStringList faultsOf(const QString &path);

} // namespace datafile
