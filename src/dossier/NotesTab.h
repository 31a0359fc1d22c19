// The member's notes of calls and meetings, with how long each took. frmMeeting writes and shows them; a note that is
// saved there is listed here after Refresh.
//
// Error 13 for a stored start or end that is no date, 91 for a double click without a selected line.
#pragma once

#include "dossier/Dossier.h"
#include "platform/desktop/Controls.h"
#include "platform/desktop/PopupMenu.h"
#include "platform/runtime/Date.h"

class NotesTab : public desktop::Frame
{
    Q_OBJECT
public:
    NotesTab(QWidget *parent, Dossier &dossier);

    desktop::ListView *lstPhoneNotes;
    desktop::CommandButton *butAddPhoneNotes;
    desktop::CommandButton *Command1;
    desktop::CommandButton *butClosePhone;
    desktop::PopupMenu *MnuMeetingNotesOptions;

    void load();
    void butAddPhoneNotes_Click();
    void Command1_Click();
    void lstPhoneNotes_DblClick();
    void lstPhoneNotes_KeyUp(int keyCode);
    void mnuEditNotes_Click();
    void mnuDeleteNote_Click();

private:
    void setUpContent();
    void setUpMenu();

    Dossier &m_dossier;
};

// "HH:MM:SS". Hours and minutes count the changes of the minute, the seconds are the remainder of the difference in
// seconds: from 10:00:50 to 10:01:10 it is "00:01:20". Kept so because users compare it with what they noted before. An
// end before the start gives a sign to each part that is not 0.
QString durationText(const runtime::Date &start, const runtime::Date &end);
