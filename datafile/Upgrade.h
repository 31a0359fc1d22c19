// The versions of the data file (PRAGMA user_version) and the way from an older one to the present one.
//
// A change of schema.sql gets the next number there, and a step of this number in Upgrade.cpp.
#pragma once

#include "datafile/Progress.h"

#include <QString>

namespace datafile {

// The version of a file; 0 for one that tells none.
int versionOf(const data::Database &file);
// The version of new files.
int presentVersion();

// What is to be done about the version of the file, as a line; empty for a file of the present version.
QString findingOfVersion(const data::Database &file, const QString &path);

// Brings an older file to the present schema, in one transaction. The file as it was is kept beside it under a name
// with the date and time, which is returned; empty for a file of the present version, which is left alone. Raises 70
// while another process has the file open, 57 for a newer file and for one that lacks what cannot be added; the file is
// left as it was then.
QString upgrade(const QString &path, Progress &progress);

} // namespace datafile
