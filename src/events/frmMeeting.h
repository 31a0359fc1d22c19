// The note of a phone conversation or a meeting: a new one is written, a stored one is shown read-only and printed.
//
// The opener sets the fields before the first touch that loads the window. A note without a member goes on to
// frmSelectClient when it is saved, and this window closes. Failures of the data store and of the printer (error 482)
// are not held back.
#pragma once

#include "platform/desktop/Controls.h"
#include "platform/desktop/Form.h"

class frmMeeting : public desktop::Form
{
    Q_OBJECT
public:
    frmMeeting();

    // Empty: the note was started with no member in hand.
    QString MemberId;
    // True: a new note; false: the stored note of the fields below.
    bool AddView = false;
    QString EventType;
    QString EventDate;
    QString EventCategory;
    QString EventPurpose;
    QString EventStartTime;
    QString EventEndTime;
    QString EventNotes;

    desktop::ListBox *lstEventType;
    desktop::ListBox *lstCategory;
    desktop::TextBox *txtEventDate;
    desktop::TextBox *txtEventStartTime;
    desktop::CommandButton *cmdStartTime;
    desktop::TextBox *txtEventEndTime;
    desktop::CommandButton *cmdEndTime;
    desktop::TextBox *txtEventPurpose;
    desktop::MultilineTextBox *txtEventNotes;
    desktop::CommandButton *cmdSave;
    desktop::CommandButton *cmdClear;
    desktop::CommandButton *cmdCancel;
    desktop::CommandButton *cmdPrint;

    void cmdStartTime_Click();
    void cmdEndTime_Click();
    void cmdSave_Click();
    void cmdClear_Click();
    void cmdCancel_Click();
    void cmdPrint_Click();

protected:
    void Form_Load() override;

private:
    void setUpContent();
    void showStoredNote();
    void beginNewNote();
    void saveForMember();
    void handOver();
};
