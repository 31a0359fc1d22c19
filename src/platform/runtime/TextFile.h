// Text files, read line by line.
#pragma once

#include <QStringList>

namespace runtime {

// The lines of the file, each without the carriage return, line feed or both that end it; the last one needs no end.
// Read as UTF-8, with a mark at its beginning or without, and by the code page where it is not that. Error 53 for a
// missing file, 76 in a missing folder, 75 where the system refuses and for what is no plain file.
QStringList textLines(const QString &path);

} // namespace runtime
