// A new member is keyed in, with employer and interests, and stored in one action. Despite its caption the window never
// changes a member who is stored already.
//
// No failure is held back: a value with an apostrophe breaks its statement and ends the program. The statements do not
// stand in a transaction, so the rows stored before the failure stay.
#pragma once

#include "dossier/InterestEntry.h"
#include "dossier/MemberBoxes.h"
#include "platform/desktop/Form.h"

class FrmAddEditMember : public desktop::Form
{
    Q_OBJECT
public:
    FrmAddEditMember();

    desktop::TabbedDialog *SSTab1;
    desktop::Frame *Frame1;
    desktop::Frame *Frame2;
    InterestEntry *Frame3;
    desktop::CommandButton *Command1;
    desktop::CommandButton *Command2;

    void Command1_Click();
    void Command2_Click();

private:
    void setUpButtons();
    void save();

    MemberBoxes m_member;
    MemberBoxes m_employer;
    bool m_saved = false;
};
