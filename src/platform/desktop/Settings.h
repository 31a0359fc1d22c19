// The per-user settings: texts by section and key.
#pragma once

#include <QString>

namespace desktop {

QString GetSetting(const QString &section, const QString &key, const QString &defaultText);
void SaveSetting(const QString &section, const QString &key, const QString &text);

// Keeps the settings in a file of the caller's, for a test; an empty path puts the user's own back.
void setSettingsFile(const QString &path);

} // namespace desktop
