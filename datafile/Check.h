// Looks whether a file can serve as the data file: every table, column, declared type and default in its place, the
// tables that need rows not empty, the file sound. Further tables and columns are welcome.
#pragma once

#include <QString>
#include <QStringList>

namespace datafile {

// One line for each fault; none for a good file. Raises the store's errors for a file that cannot be read at all.
QStringList faultsOf(const QString &path);

} // namespace datafile
