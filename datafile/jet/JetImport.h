// A data file of the older Jet 4 format into a new one.
#pragma once

#include "datafile/Progress.h"
#include "datafile/jet/FrameReader.h"

#include <QString>
#include <QStringList>

namespace jet {

struct Imported
{
    qsizetype tables = 0;
    qint64 rows = 0;
    QStringList notes; // what the person at the keyboard should know, a line each
};

// Reads `old` in a process of its own, which `tool` (this program) is started for, and makes `fresh`. A database
// password has to be the file's own. Raises 53 for a file that cannot be read, 57 with the path and the reason for one
// that is not read, the errors of WholeResult.h for `fresh` and 18 when a stop was asked for; then nothing is made.
Imported importFile(const QString &old, const QString &fresh, const QString &password, const QString &tool,
                    datafile::Progress &progress);

// The same for tables that have been read; the reader's errors are passed on.
Imported importTables(FrameReader &tables, const QString &fresh, datafile::Progress &progress);

} // namespace jet
