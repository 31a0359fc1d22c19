// Copies of a data file: made while the program runs, and put back.
#pragma once

#include "datafile/Progress.h"

#include <QString>
#include <QStringList>

namespace datafile {

// Makes a copy of the file as it is at one moment, also while other programs read and write it; none of them has to
// wait for longer than a few pages take. The copy is checked and has as many rows in each table as the file before it
// gets its name. Raises the errors of WholeResult.h, the store's, and 57 for a copy that is not sound or a file that is
// changed again and again.
void backUp(const QString &file, const QString &copy, Progress &progress);

// Copies the file to a path at which nothing stands, without giving it a name of its own first: for what is thrown
// away.
void copyWholeFile(const QString &file, const QString &copy, Progress &progress);

// Puts a copy in the place of the file, after checking it. The old file is kept beside it under a name with the date
// and time, which is returned; empty when there was none. Raises 70 while another process has the file open, and
// otherwise as backUp does; the file is left as it was then.
QString restore(const QString &copy, const QString &file, Progress &progress);

// The processes, other than this one, that have the file open or run a program named Tolmark in its folder, as
// "NAME (process N)". Of processes of other users only root sees that.
QStringList processesUsing(const QString &file);
// Raises 70 while there are some.
void refuseFileInUse(const QString &file);

// A free name beside the file that tells when it was put aside: "Tolmark 2026-11-22 014501.mdb".
QString datedName(const QString &file);

} // namespace datafile
