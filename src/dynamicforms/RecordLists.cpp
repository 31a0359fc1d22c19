#include "dynamicforms/RecordLists.h"

#include "events/StoredNotes.h"
#include "shell/store/CLsDataBaseConnection.h"

#include <array>

namespace {

constexpr ListedColumn listed(QStringView header, QStringView column)
{
    return {.header = header, .column = column};
}

constexpr std::array attachmentColumns{
    listed(u"Attachment Name", u"AttachmentsName"),
    listed(u"Date Added", u"AttachmentsDate"),
    listed(u"Version Number", u"AttachmentVersion"),
};

constexpr std::array resourceColumns{
    listed(u"Location", u"ObjectText"),
    listed(u"Document ID", u"DocumentId"),
    listed(u"Document Date", u"DocumentDate"),
    listed(u"Document Name", u"DocumentName"),
    listed(u"Document Version", u"DocuemntVersion"),
};

constexpr std::array eventColumns{
    listed(u"Event Date", u"MeetingDate"),
    listed(u"Event Type", u"MeetingType"),
    listed(u"Start Time", u"MeetingStartTime"),
    listed(u"End Time", u"MeetingEndTime"),
    ListedColumn{.header = u"Duration (HH:MM)",
                 .cell = [](data::Recordset &event) { return durationCell(event, hoursAndMinutes); }},
    listed(u"Event Purpose", u"MeetingSubject"),
    listed(u"Event Category", u"MeetingCatagory"),
    listed(u"Event Notes", u"MeetingNotes"),
};

} // namespace

const RecordList attachmentsList{
    .caption = u"Attachments",
    .statementStart = u"select * from Attachments where PersonalInformationId=",
    .statementEnd = u" ORDER BY Attachments.AttachmentsName, Attachments.AttachmentVersion DESC;",
    .columns = attachmentColumns,
    .command = u"UpLoad",
};

const RecordList resourcesList{
    .caption = u"Resources",
    .statementStart =
        u"SELECT ObjectTbl.ObjectText, Resources.DocumentId, Resources.DocumentDate, Resources.DocumentName, "
        "Resources.DocuemntVersion"
        " FROM ([Personal Information] LEFT OUTER JOIN (ReferenceInfo LEFT OUTER JOIN Resources ON "
        "ReferenceInfo.DocumentId = Resources.DocumentId) "
        " ON [Personal Information].PersonalInformationId = ReferenceInfo.PersonalInformationId) LEFT OUTER JOIN "
        "ObjectTbl ON ObjectTbl.ObjectIndex = Resources.ObjectIndex"
        " WHERE ((([Personal Information].PersonalInformationId)=",
    .statementEnd = u"));",
    .columns = resourceColumns,
    .command = u"Assign Resource",
};

const RecordList eventsList{
    .caption = u"Conferences/Meetings",
    .statementStart =
        u"SELECT MeetingInfo.MeetingDate, MeetingInfo.MeetingCatagory, MeetingInfo.MeetingType, "
        "MeetingInfo.MeetingSubject, MeetingInfo.MeetingNotes, MeetingInfo.MeetingStartTime, "
        "MeetingInfo.MeetingEndTime, MeetingInfo.MeetingEnteredDate "
        " FROM [Personal Information] INNER JOIN MeetingInfo ON [Personal Information].PersonalInformationId = "
        "MeetingInfo.PersonalInformationId"
        " WHERE ((([Personal Information].PersonalInformationId)=",
    .statementEnd = u"));",
    .columns = eventColumns,
    .command = u"Add Event",
};

void showRecordList(desktop::ListView &view, const RecordList &list, qint16 recordId)
{
    CLsDataBaseConnection store;
    data::Recordset rows = store.CreateRecordset(list.statementStart.toString() + QString::number(recordId) +
                                                 list.statementEnd.toString());
    view.setAccessibleName(list.caption.toString());
    view.setVisible(true);
    view.ListItems.Clear();
    setUpHeaders(view, list.columns);
    fillList(view, rows, {}, list.columns);
    rows.Close();
    store.DbClose();
}
