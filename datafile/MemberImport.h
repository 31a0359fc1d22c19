// Members from a spreadsheet's CSV file into a data file: every row is checked first, and all of them go in or none.
//
// A member gets a row of its employer in any case, since the dossier's Update changes that row and never adds one.
#pragma once

#include "datafile/Csv.h"
#include "datafile/MemberRows.h"
#include "datafile/Progress.h"

#include <QString>
#include <QStringList>

namespace datafile {

struct ImportOptions
{
    QStringList maps = {}; // as matchedHeader reads them
    CsvForm form = {};
    bool isDryRun = false; // only checks
};

struct Imported
{
    qsizetype members = 0;
    QList<CellFault> faults; // with one of them nothing was changed
};

// Raises the store's errors, 53 for a spreadsheet that cannot be read, 57 for a file that cannot serve as the data
// file, 13 for a spreadsheet that cannot be split into rows or has columns that nobody knows.
Imported importMembers(const QString &file, const QString &csv, const ImportOptions &options, Progress &progress);

} // namespace datafile
