// Reads a data file out into files that every program can read.
//
// The folder gets TABLE.csv for each table (Csv.h; dates as yyyy-mm-dd or yyyy-mm-dd hh:mm:ss, amounts with a point,
// Yes and No, no binary columns), the attached files and documents without the zero byte that the program stores behind
// them, and Files.csv, which tells for each of these where it stands and what it is.
#pragma once

#include "datafile/Progress.h"

#include <QString>

namespace datafile {

struct Exported
{
    int tables = 0;
    qint64 rows = 0;
    int files = 0;
};

// The file as it is at one moment, also while other programs write it. Raises the errors of WholeResult.h, the store's,
// 57 for a file that cannot serve as the data file, and 61 or 75 for what cannot be written.
Exported exportFile(const QString &file, const QString &folder, Progress &progress);

} // namespace datafile
