// The note of a phone conversation or a meeting: a new one is written, a stored one is shown read-only and printed.
//
// The opener sets the fields before the first touch that loads the window. Saving a note that has no member opens
// frmSelectClient, which asks whom it is about and stores it. A failure of the data store or of the printer (error 482)
// ends the program.
#pragma once

#include "events/Note.h"
#include "platform/desktop/Controls.h"
#include "platform/desktop/Form.h"

class frmMeeting : public desktop::Form, public Note
{
    Q_OBJECT
public:
    frmMeeting();

    // Empty: the note was begun from the main toolbar, for nobody yet.
    QString MemberId;
    // True: a new note; false: the stored one in the fields of Note.
    bool AddView = false;

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
    void keyPressEvent(QKeyEvent *event) override;

private:
    void setUpContent();
    void showStoredNote();
    void beginNewNote();
    Note noteInBoxes() const;
};
