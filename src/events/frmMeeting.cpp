#include "events/frmMeeting.h"

#include "events/frmSelectClient.h"
#include "parts/FieldGrid.h"
#include "platform/desktop/Keys.h"
#include "platform/desktop/MsgBox.h"
#include "platform/desktop/Printer.h"
#include "platform/desktop/Twips.h"
#include "platform/runtime/Clock.h"
#include "platform/runtime/Conversion.h"
#include "platform/runtime/Regional.h"
#include "shell/store/CLsDataBaseConnection.h"

using namespace Qt::Literals::StringLiterals;

using desktop::CommandButton;

namespace {

constexpr int linesOfAList = 5;

QString today()
{
    return runtime::shortDateText(runtime::clockNow().day());
}

QString presentTime()
{
    return runtime::shortTimeText(runtime::clockNow().time());
}

// Adds the column's texts behind the items that the list was designed with, and selects the first item of all.
void addRows(desktop::ListBox &list, const QString &statement, QStringView column)
{
    CLsDataBaseConnection connection;
    data::Recordset rows = connection.CreateRecordset(statement);
    for (; !rows.Eof(); rows.MoveNext())
        list.addItem(runtime::joinedText(rows[column].Value()));
    list.setSelected(0);
    rows.Close();
    connection.DbClose();
}

} // namespace

frmMeeting::frmMeeting() : Form(Place::InFrame, u"frmMeeting")
{
    setDesignCaption(u"Tolmark Note"_s);
    setUpContent();
    desktop::on(cmdStartTime, &QPushButton::clicked, this, &frmMeeting::cmdStartTime_Click);
    desktop::on(cmdEndTime, &QPushButton::clicked, this, &frmMeeting::cmdEndTime_Click);
    desktop::on(cmdSave, &QPushButton::clicked, this, &frmMeeting::cmdSave_Click);
    desktop::on(cmdClear, &QPushButton::clicked, this, &frmMeeting::cmdClear_Click);
    desktop::on(cmdCancel, &QPushButton::clicked, this, &frmMeeting::cmdCancel_Click);
    desktop::on(cmdPrint, &QPushButton::clicked, this, &frmMeeting::cmdPrint_Click);
}

void frmMeeting::setUpContent()
{
    const QString presentTimePurpose = u"Fill in the present time as the %1 time"_s;
    FieldGrid grid(this);
    lstEventType = grid.addList(u"lstEventType", u"Note Type"_s,
                                {u"Phone Conversation"_s, u"Member Meeting"_s, u"Member Conference"_s}, linesOfAList);
    lstCategory =
        grid.addList(u"lstCategory", u"Note Category"_s,
                     {u"Instructional"_s, u"Event Planning"_s, u"Disciplinary Action"_s, u"Training"_s}, linesOfAList);
    txtEventDate = grid.addText(u"txtEventDate", u"Note Date"_s);
    txtEventStartTime = grid.addText(u"txtEventStartTime", u"Start Time"_s);
    cmdStartTime = grid.addButtonBehind(u"cmdStartTime", u"Now"_s, presentTimePurpose.arg(u"start"_s));
    txtEventEndTime = grid.addText(u"txtEventEndTime", u"End Time"_s);
    cmdEndTime = grid.addButtonBehind(u"cmdEndTime", u"Now"_s, presentTimePurpose.arg(u"end"_s));
    txtEventPurpose = grid.addText(u"txtEventPurpose", u"Note Title"_s);
    txtEventNotes = grid.addMultilineText(u"txtEventNotes", u"Notes"_s);
    txtEventNotes->wrapLines();
    cmdSave = new CommandButton(this, u"cmdSave", u"Save"_s);
    cmdClear = new CommandButton(this, u"cmdClear", u"Clear"_s);
    cmdCancel = new CommandButton(this, u"cmdCancel", u"Cancel"_s);
    cmdPrint = new CommandButton(this, u"cmdPrint", u"Print"_s);
    grid.addButtons({cmdSave, cmdClear, cmdCancel, cmdPrint});
    constexpr double comfortableWidth = 7800; // twips
    resize(sizeHint().expandedTo({desktop::pixels(comfortableWidth), 0}));
}

void frmMeeting::Form_Load()
{
    if (AddView)
        beginNewNote();
    else
        showStoredNote();
}

void frmMeeting::showStoredNote()
{
    lstEventType->clear();
    lstCategory->clear();
    lstEventType->addItem(EventType);
    lstCategory->addItem(EventCategory);
    txtEventDate->setText(EventDate);
    txtEventPurpose->setText(EventPurpose);
    txtEventStartTime->setText(EventStartTime);
    txtEventEndTime->setText(EventEndTime);
    txtEventNotes->setText(EventNotes);
    for (CommandButton *button : {cmdClear, cmdSave, cmdStartTime, cmdEndTime})
        button->setEnabled(false);
    for (QLineEdit *box : findChildren<QLineEdit *>())
        box->setReadOnly(true);
    txtEventNotes->setReadOnly(true);
}

void frmMeeting::beginNewNote()
{
    addRows(*lstEventType, u"select * from EventInformation Where Active = Yes"_s, u"EventName");
    addRows(*lstCategory, u"select * from CategoryInfo Where CategoryActive = Yes"_s, u"CategoryName");
    txtEventDate->setText(today());
    txtEventStartTime->setText(presentTime());
}

void frmMeeting::cmdStartTime_Click()
{
    txtEventStartTime->setText(presentTime());
}

void frmMeeting::cmdEndTime_Click()
{
    txtEventEndTime->setText(presentTime());
}

void frmMeeting::cmdClear_Click()
{
    txtEventPurpose->clear();
    txtEventDate->setText(today());
    txtEventEndTime->clear();
    txtEventNotes->clear();
    txtEventStartTime->setText(presentTime());
}

void frmMeeting::cmdCancel_Click()
{
    Unload();
}

void frmMeeting::cmdSave_Click()
{
    if (txtEventStartTime->text().isEmpty()) {
        desktop::MsgBox(u"Invalid start time"_s, desktop::vbCritical, u"Halvic"_s);
        return;
    }
    if (txtEventPurpose->text().isEmpty()) {
        desktop::MsgBox(u"Invalid event title"_s, desktop::vbCritical, u"Halvic"_s);
        return;
    }
    if (txtEventEndTime->text().isEmpty())
        txtEventEndTime->setText(presentTime());
    if (MemberId.isEmpty())
        desktop::showNew<frmSelectClient>(
            [this](frmSelectClient &picker) { static_cast<Note &>(picker) = noteInBoxes(); });
    else
        storeNote(u"MemberId", runtime::Value(MemberId), noteInBoxes());
    Unload();
}

// A stored note is only read, so that Esc loses nothing.
void frmMeeting::keyPressEvent(QKeyEvent *event)
{
    if (!AddView && desktop::keyCode(*event) == desktop::vbKeyEscape)
        cmdCancel->click();
    else
        Form::keyPressEvent(event);
}

Note frmMeeting::noteInBoxes() const
{
    return {.EventType = lstEventType->Text(),
            .EventDate = txtEventDate->text(),
            .EventCategory = lstCategory->Text(),
            .EventPurpose = txtEventPurpose->text(),
            .EventStartTime = txtEventStartTime->text(),
            .EventEndTime = txtEventEndTime->text(),
            .EventNotes = txtEventNotes->text()};
}

void frmMeeting::cmdPrint_Click()
{
    desktop::Printer printer;
    printer.Print(txtEventPurpose->text() + u'\n');
    printer.Print(u"Date : "_s + txtEventDate->text() + u'\n');
    printer.Print(u"Start Time : "_s + txtEventStartTime->text() + u"\t\tEnd Time : "_s + txtEventEndTime->text() +
                  u"\n\nNotes:\n"_s);
    printer.Print(txtEventNotes->text());
    printer.EndDoc();
}
