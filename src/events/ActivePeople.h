// The people of the record window who have not been marked as deleted: those whom a window lets the user choose from.
#pragma once

#include "platform/desktop/Controls.h"
#include "platform/runtime/Value.h"

// Puts their names in the place of the list's items and gives their keys in the same order. None is selected.
QList<runtime::Value> listActivePeople(desktop::ListBox &list);
