// Opens a file in the program that is registered for it.
#pragma once

#include <QString>

namespace desktop {

// The path is written with backslashes or slashes. Whether a program is registered is not told.
void ShellExecute(const QString &path);

} // namespace desktop
