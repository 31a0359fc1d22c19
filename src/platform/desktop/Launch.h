// Opens a file in the program that is registered for it.
#pragma once

#include <QString>

namespace desktop {

// Whether a program is registered is not told.
void ShellExecute(const QString &path);

} // namespace desktop
