#include "events/StoredNotes.h"

#include "platform/runtime/DateDiff.h"
#include "platform/runtime/Format.h"

void takeStoredNote(frmMeeting &window, const desktop::ListItem &line)
{
    window.AddView = false;
    window.EventDate = line.Text();
    window.EventType = line.SubItems(1);
    window.EventStartTime = line.SubItems(2);
    window.EventEndTime = line.SubItems(3);
    window.EventPurpose = line.SubItems(5);
    window.EventCategory = line.SubItems(6);
    window.EventNotes = line.SubItems(7);
}

QString hoursAndMinutes(const runtime::Date &start, const runtime::Date &end)
{
    const qint32 minutes = runtime::DateDiff(u"n", start, end);
    const qint32 hours = minutes / 60;
    const auto part = [](qint32 number) { return runtime::Format(runtime::Value(number), u"00"); };
    return part(hours) + u':' + part(minutes - 60 * hours);
}
