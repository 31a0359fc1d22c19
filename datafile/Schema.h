// Makes data files: the tables, the rows with which every file begins, and what the caller puts in besides.
//
// A file appears complete or not at all, and nothing is overwritten; see WholeResult.h for the errors of paths. Raises
// the store's errors besides.
#pragma once

#include "platform/data/engine/Database.h"

#include <QByteArray>
#include <QString>

#include <functional>

namespace datafile {

// The empty organisation.
void createDataFile(const QString &path);

// The empty organisation, filled further. `fill` begins within a transaction and may commit it and begin others.
void createDataFile(const QString &path, const std::function<void(data::Database &)> &fill);

// Tables and indexes alone, in an open and empty file.
void createTables(data::Database &file);

// What was built in under this name, such as "sample/members.sql".
QByteArray builtIn(const QString &name);

} // namespace datafile
