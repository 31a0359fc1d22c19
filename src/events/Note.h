// What is written down of a call, a meeting or a conference. Both windows that hold a note have these fields under
// their given names, so that one can hand all of them to the other.
#pragma once

#include "platform/runtime/Value.h"

#include <QString>

struct Note
{
    QString EventType;
    QString EventDate;
    QString EventCategory;
    QString EventPurpose;
    QString EventStartTime;
    QString EventEndTime;
    QString EventNotes;
};

// Adds a row to MeetingInfo. `ownerColumn` says whose note it is: MemberId of a member, PersonalInformationId of a
// person of the record window. Error -2147217887 for a text that is no date or time.
void storeNote(QStringView ownerColumn, const runtime::Value &owner, const Note &note);
