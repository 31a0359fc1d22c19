// What the program knows of itself: where it stands, what it is called.
#pragma once

#include <QString>

namespace runtime::App {

// The application folder: that of the executable, with no separator at its end.
QString Path();
// Puts another folder in its place, for a test; an empty text puts the executable's back.
void setPath(const QString &folder);

// The application's title, which message boxes bear unless they are told another.
QString Title();

inline constexpr int Major = 1;
inline constexpr int Minor = 0;
inline constexpr int Revision = 0;

} // namespace runtime::App
