// The people of the record window who are active: those among whom a window lets the user choose.
#pragma once

#include "platform/desktop/Controls.h"
#include "platform/runtime/Value.h"

// Replaces the list's items by their names and returns their keys in the same order. Selects none.
QList<runtime::Value> listActivePeople(desktop::ListBox &list);
