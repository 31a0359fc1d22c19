#include "events/StoredNotes.h"

#include "platform/runtime/Conversion.h"
#include "platform/runtime/DateDiff.h"
#include "platform/runtime/Format.h"

using runtime::Value;

void takeStoredNote(frmMeeting &window, const desktop::ListItem &line, std::span<const ListedColumn> columns)
{
    const auto text = [&](QStringView column) { return textOf(line, columns, column); };
    window.AddView = false;
    window.EventDate = text(u"MeetingDate");
    window.EventType = text(u"MeetingType");
    window.EventStartTime = text(u"MeetingStartTime");
    window.EventEndTime = text(u"MeetingEndTime");
    window.EventPurpose = text(u"MeetingSubject");
    window.EventCategory = text(u"MeetingCatagory");
    window.EventNotes = text(u"MeetingNotes");
}

Value durationCell(data::Recordset &note, QString (*text)(const runtime::Date &, const runtime::Date &))
{
    const Value start = note[u"MeetingStartTime"].Value();
    const Value end = note[u"MeetingEndTime"].Value();
    if (start.isNull() || end.isNull())
        return {};
    return Value(text(runtime::toDate(start), runtime::toDate(end)));
}

QString hoursAndMinutes(const runtime::Date &start, const runtime::Date &end)
{
    const qint32 minutes = runtime::DateDiff(u"n", start, end);
    const qint32 hours = minutes / 60;
    const auto part = [](qint32 number) { return runtime::Format(Value(number), u"00"); };
    return part(hours) + u':' + part(minutes % 60);
}
