// What the lists of stored notes have in common: the member's in the dossier and the person's in the record window.
//
// A line's cells are date, type, start, end, duration, purpose, category and notes.
#pragma once

#include "events/frmMeeting.h"
#include "platform/desktop/ListView.h"
#include "platform/runtime/Date.h"

// Hands the texts of the line to a window that has not been loaded yet and will show the note.
void takeStoredNote(frmMeeting &window, const desktop::ListItem &line);

// "HH:MM" by the changes of the minute. An end before the start gives parts with a sign each.
QString hoursAndMinutes(const runtime::Date &start, const runtime::Date &end);
