#include "dossier/NotesTab.h"

#include "dossier/RowDeletion.h"
#include "events/StoredNotes.h"
#include "parts/RowTexts.h"
#include "platform/desktop/ErrorReport.h"
#include "platform/desktop/Keys.h"
#include "platform/desktop/MsgBox.h"
#include "platform/runtime/DateDiff.h"
#include "platform/runtime/Format.h"
#include "shell/store/CLsDataBaseConnection.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include <array>

using namespace Qt::Literals::StringLiterals;

using desktop::CommandButton;
using runtime::Value;

namespace {

struct NoteColumn
{
    QStringView header;
    double width; // twips
};

constexpr std::array noteColumns{
    NoteColumn{u"Date", 1500},
    NoteColumn{u"Type", 2500},
    NoteColumn{u"Start Time", 1500},
    NoteColumn{u"End Time", 1500},
    NoteColumn{u"Duration (HH:MM:SS)", 2200},
    NoteColumn{u"Purpose", 1500},
    NoteColumn{u"Category", 1500},
    NoteColumn{u"Notes", 1500},
};

} // namespace

QString durationText(const runtime::Date &start, const runtime::Date &end)
{
    const qint32 seconds = runtime::DateDiff(u"s", start, end);
    return hoursAndMinutes(start, end) + u':' + runtime::Format(Value(seconds - 60 * (seconds / 60)), u"00");
}

NotesTab::NotesTab(QWidget *parent, Dossier &dossier)
    : Frame(parent, u"Frame6", u"Member's Phone Notes"_s), lstPhoneNotes(new desktop::ListView(this, u"lstPhoneNotes")),
      butAddPhoneNotes(new CommandButton(this, u"butAddPhoneNotes", u"Add Notes"_s)),
      Command1(new CommandButton(this, u"Command1", u"Refresh"_s)),
      butClosePhone(new CommandButton(this, u"butClosePhone", u"Close"_s)),
      MnuMeetingNotesOptions(new desktop::PopupMenu(this, u"MnuMeetingNotesOptions", u"Notes Options"_s)),
      m_dossier(dossier)
{
    setUpContent();
    setUpMenu();
    using desktop::on;
    on(butAddPhoneNotes, &QPushButton::clicked, this, &NotesTab::butAddPhoneNotes_Click);
    on(Command1, &QPushButton::clicked, this, &NotesTab::Command1_Click);
    on(lstPhoneNotes, &desktop::ListView::DblClick, this, &NotesTab::lstPhoneNotes_DblClick);
    on(lstPhoneNotes, &desktop::ListView::KeyUp, this, &NotesTab::lstPhoneNotes_KeyUp);
}

void NotesTab::setUpContent()
{
    lstPhoneNotes->setAccessibleName(u"Notes"_s);
    auto *whole = new QVBoxLayout(this);
    whole->addWidget(lstPhoneNotes);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(butAddPhoneNotes);
    buttons->addWidget(Command1);
    buttons->addStretch();
    buttons->addWidget(butClosePhone);
    whole->addLayout(buttons);
}

// A stored note cannot be changed from here: the item that would begin it stays hidden.
void NotesTab::setUpMenu()
{
    QAction *edit = MnuMeetingNotesOptions->addItem(u"mnuEditNotes", u"Edit Note"_s);
    QAction *line = MnuMeetingNotesOptions->addLine(u"MnuSep1");
    QAction *remove = MnuMeetingNotesOptions->addItem(u"mnuDeleteNote", u"Delete Note"_s);
    edit->setVisible(false);
    line->setVisible(false);
    desktop::on(edit, &QAction::triggered, this, &NotesTab::mnuEditNotes_Click);
    desktop::on(remove, &QAction::triggered, this, &NotesTab::mnuDeleteNote_Click);
    MnuMeetingNotesOptions->popUpOver(*lstPhoneNotes);
}

void NotesTab::loadColumns()
{
    desktop::ColumnHeaders &headers = lstPhoneNotes->ColumnHeaders;
    headers.Clear();
    for (const NoteColumn &column : noteColumns) {
        headers.Add(column.header.toString());
        headers.setWidth(headers.Count(), column.width);
    }
}

void NotesTab::load()
{
    CLsDataBaseConnection store;
    data::Recordset notes = store.CreateRecordset(
        u"SELECT MeetingInfo.MeetingId, MeetingInfo.MeetingDate, MeetingInfo.MeetingCatagory, "
        "MeetingInfo.MeetingType, MeetingInfo.MeetingSubject, MeetingInfo.MeetingNotes, "
        "MeetingInfo.MeetingStartTime, MeetingInfo.MeetingEndTime, MeetingInfo.MeetingEnteredDate "
        " FROM [MemberInformation] INNER JOIN MeetingInfo ON [MemberInformation].MemberId = MeetingInfo.MemberId"
        " WHERE ((([MemberInformation].MemberId)="_s +
        m_dossier.member() + u"));"_s);
    lstPhoneNotes->setEnabled(true);
    lstPhoneNotes->ListItems.Clear();
    loadColumns();
    addItems(*lstPhoneNotes, notes, &NotesTab::fillItem);
    notes.Close();
    store.DbClose();
}

void NotesTab::fillItem(desktop::ListItem &item, data::Recordset &note)
{
    const Value date = note[u"MeetingDate"].Value();
    if (!date.isNull()) {
        item.setText(runtime::toText(date));
        item.Tag = runtime::joinedText(note[u"MeetingId"].Value());
    }
    putSubItem(item, 1, note[u"MeetingType"]);
    putSubItem(item, 2, note[u"MeetingStartTime"]);
    putSubItem(item, 3, note[u"MeetingEndTime"]);
    const Value start = note[u"MeetingStartTime"].Value();
    const Value end = note[u"MeetingEndTime"].Value();
    if (!start.isNull() && !end.isNull())
        item.setSubItem(4, durationText(runtime::toDate(start), runtime::toDate(end)));
    putSubItem(item, 5, note[u"MeetingSubject"]);
    putSubItem(item, 6, note[u"MeetingCatagory"]);
    putSubItem(item, 7, note[u"MeetingNotes"]);
}

void NotesTab::butAddPhoneNotes_Click()
{
    desktop::showNew<frmMeeting>([this](frmMeeting &note) {
        note.AddView = true;
        note.setCaption(u"Tolmark Add Event Manager"_s);
        note.MemberId = m_dossier.member();
    });
}

void NotesTab::lstPhoneNotes_DblClick()
{
    const desktop::ListItem &item = *lstPhoneNotes->SelectedItem();
    desktop::showNew<frmMeeting>([this, &item](frmMeeting &note) {
        takeStoredNote(note, item);
        note.MemberId = m_dossier.member();
        note.setCaption(u"Tolmark View Event"_s);
    });
}

// Enter does for the keyboard what the double click does.
void NotesTab::lstPhoneNotes_KeyUp(int keyCode)
{
    if (keyCode == desktop::vbKeyReturn && lstPhoneNotes->SelectedItem())
        lstPhoneNotes_DblClick();
}

void NotesTab::Command1_Click()
{
    load();
}

void NotesTab::mnuEditNotes_Click()
{
    desktop::MsgBox(lstPhoneNotes->SelectedItem()->Tag);
}

void NotesTab::mnuDeleteNote_Click()
{
    deleteSelectedRow(m_dossier, *lstPhoneNotes,
                      {u"Warning you are about to delete the selected note",
                       u"DELETE * FROM MeetingInfo WHERE (MeetingId =", u"Note deleted",
                       RowDeletion::Order::RefreshThenMessage},
                      [this] { load(); });
}
