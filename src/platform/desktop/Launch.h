// Opens a file in the program that is registered for it.
#pragma once

#include <QString>

namespace desktop {

// No error tells that no program is registered.
void ShellExecute(const QString &path);

} // namespace desktop
