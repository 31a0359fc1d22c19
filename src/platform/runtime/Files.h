// The run-time's file operations. Paths are written with backslashes, as the windows compose them; names in them do not
// differ by case.
#pragma once

#include <QString>

namespace runtime {

// The path as this system writes it. Where no file of exactly that name stands, one that differs by case is taken.
QString nativePath(const QString &path);

// The name of the first plain file that matches the pattern ("folder\*.*"), empty when none does or there is no such
// folder. Begins a new enumeration and forgets the running one.
QString Dir(const QString &pattern);
// The next name of the running enumeration, empty at its end; after that, and before any, error 5.
QString Dir();

// In bytes. Error 53 where there is no file.
qint64 FileLen(const QString &path);
bool folderExists(const QString &path);
// Makes one folder. Error 75: something of that name stands there or it may not be made; 76: there is no folder to make
// it in.
void MkDir(const QString &path);
// Deletes one file. Error 53: there is none; 70: another program holds it; 75: it may not be deleted.
void Kill(const QString &path);

} // namespace runtime
