// The run-time's file operations. Paths are this system's own, taken exactly as they stand: case counts, and a
// backslash is a character of a name.
#pragma once

#include <QString>

namespace runtime {

// The name of the first plain file that matches the pattern ("folder/*.*"), empty when none does or there is no such
// folder; a name that begins with a dot counts as any other. Begins a new enumeration and forgets the running one.
QString Dir(const QString &pattern);
// The next name of the running enumeration, empty at its end; after that, and before any, error 5.
QString Dir();

// In bytes. Error 53 where there is no file.
qint64 FileLen(const QString &path);
bool folderExists(const QString &path);
// Makes one folder. Error 75: something of that name stands there or it may not be made; 76: there is no folder to make
// it in.
void MkDir(const QString &path);
// Deletes one file; where the path is a link, the link alone. Error 53: there is none; 70: another program holds it;
// 75: it may not be deleted.
void Kill(const QString &path);

// The name itself. Error 75 for one that could lead out of a folder or that no file can bear: empty, "." or "..", with
// a slash or a zero character, longer than 255 bytes.
QString fileName(const QString &name);
// Where a file of that name goes in the folder. Error 75 as before, and where a link stands in its place.
QString pathInFolder(const QString &folder, const QString &name);

} // namespace runtime
