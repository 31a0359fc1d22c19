// The manual in the desktop's browser.
//
// The build makes a page for each window, named as its class, which leads to the place in the manual where the window
// is described. The pages stand in the folder manual beside the program, as in the portable folder, or below one of
// the system's data folders, where the package puts them.
#pragma once

#include <QStringList>

// Opens the page of the first of these windows that has one, else the first page. False when there is no manual.
bool openManual(const QStringList &windows);
