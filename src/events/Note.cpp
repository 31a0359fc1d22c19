#include "events/Note.h"

#include "shell/store/CLsDataBaseConnection.h"

using namespace Qt::Literals::StringLiterals;

void storeNote(QStringView ownerColumn, const runtime::Value &owner, const Note &note)
{
    CLsDataBaseConnection connection;
    data::Recordset row = connection.CreateRecordset(u"select * from MeetingInfo"_s);
    row.AddNew();
    row[ownerColumn].setValue(owner);
    row[u"MeetingDate"].setValue(note.EventDate);
    row[u"MeetingType"].setValue(note.EventType);
    row[u"MeetingCatagory"].setValue(note.EventCategory);
    row[u"MeetingSubject"].setValue(note.EventPurpose);
    row[u"MeetingStartTime"].setValue(note.EventStartTime);
    row[u"MeetingEndTime"].setValue(note.EventEndTime);
    row[u"MeetingNotes"].setValue(note.EventNotes);
    row.UpdateBatch();
    row.Close();
    connection.DbClose();
}
