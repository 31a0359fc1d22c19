// Makes data files: the tables, the rows with which every file begins, and what the caller puts in besides.
//
// A file is made beside its place and put there complete or not at all; whatever stands at the path already (a file, a
// folder, a link) is left as it is. Raises RuntimeError 58 for a path that is taken, 76 for a folder that is not there,
// 75 for one that cannot be written, and the store's errors.
#pragma once

#include "platform/data/engine/Database.h"

#include <QByteArray>
#include <QString>

#include <functional>

namespace datafile {

// The empty organisation.
void createDataFile(const QString &path);

// The empty organisation, filled further within the same transaction.
void createDataFile(const QString &path, const std::function<void(data::Database &)> &fill);

// Tables and indexes alone, in an open and empty file.
void createTables(data::Database &file);

// What was built in under this name, such as "sample/members.sql".
QByteArray builtIn(const QString &name);

} // namespace datafile
