// The program's own facts: its folder, its title, its version.
#pragma once

#include "platform/runtime/Version.h"

#include <QString>

namespace runtime::App {

// The application folder: that of the executable, with no separator at its end.
QString Path();
// For tests: another folder; the empty text goes back to the executable's.
void setPath(const QString &folder);

// One of the program's own folders below it, written as "\\temp\\Search". Each step is found whatever the case of its
// name; one that is not there has the name as written.
QString folder(QStringView behindPath);

// The application's title, which message boxes bear unless they are told another.
QString Title();

} // namespace runtime::App
