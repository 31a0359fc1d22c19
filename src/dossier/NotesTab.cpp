#include "dossier/NotesTab.h"

#include "dossier/RowDeletion.h"
#include "events/StoredNotes.h"
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

constexpr std::array noteColumns{
    ListedColumn{.header = u"Date", .column = u"MeetingDate", .width = 1500},
    ListedColumn{.header = u"Type", .column = u"MeetingType", .width = 2500},
    ListedColumn{.header = u"Start Time", .column = u"MeetingStartTime", .width = 1500},
    ListedColumn{.header = u"End Time", .column = u"MeetingEndTime", .width = 1500},
    ListedColumn{.header = u"Duration (HH:MM:SS)",
                 .width = 2200,
                 .cell = [](data::Recordset &note) { return durationCell(note, durationText); }},
    ListedColumn{.header = u"Purpose", .column = u"MeetingSubject", .width = 1500},
    ListedColumn{.header = u"Category", .column = u"MeetingCatagory", .width = 1500},
    ListedColumn{.header = u"Notes", .column = u"MeetingNotes", .width = 1500},
};

} // namespace

QString durationText(const runtime::Date &start, const runtime::Date &end)
{
    const qint32 seconds = runtime::DateDiff(u"s", start, end);
    return hoursAndMinutes(start, end) + u':' + runtime::Format(Value(seconds % 60), u"00");
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

// A stored note cannot be changed, so the item for that is hidden. Its handler only shows the note's key.
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
    setUpHeaders(*lstPhoneNotes, noteColumns);
    fillList(*lstPhoneNotes, notes, u"MeetingId", noteColumns, Keyed::LinesWithFirstCell);
    notes.Close();
    store.DbClose();
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
        takeStoredNote(note, item, noteColumns);
        note.MemberId = m_dossier.member();
        note.setCaption(u"Tolmark View Event"_s);
    });
}

// Enter opens the selected note, so that the keyboard reaches what the double click does.
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
