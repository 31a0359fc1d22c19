// What the two lists of stored notes do alike: the member's notes in the dossier and the person's in the record window.
#pragma once

#include "events/frmMeeting.h"
#include "parts/ListedColumns.h"
#include "platform/runtime/Date.h"

// Prepares a window that has not been loaded yet to show the note of the line: it takes the texts that the list shows,
// wherever they stand in its columns.
void takeStoredNote(frmMeeting &window, const desktop::ListItem &line, std::span<const ListedColumn> columns);

// How long the note of the row took, as `text` writes it; Null while the start or the end is Null. Error 13 for a
// start or an end that is no date.
runtime::Value durationCell(data::Recordset &note, QString (*text)(const runtime::Date &, const runtime::Date &));

// "HH:MM" by the changes of the minute. An end before the start gives a sign to each part that is
// not 0: "-01:-45", "00:-30".
QString hoursAndMinutes(const runtime::Date &start, const runtime::Date &end);
