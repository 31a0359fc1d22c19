// The member's own particulars. Update writes them all but the city and the state, which keep their stored values
// whatever is shown; nothing is validated.
#pragma once

#include "dossier/Dossier.h"
#include "dossier/StoredBoxes.h"
#include "platform/desktop/Controls.h"

class MemberTab : public desktop::Frame
{
    Q_OBJECT
public:
    MemberTab(QWidget *parent, Dossier &dossier);

    desktop::TextBox *txtFirstName;
    desktop::TextBox *txtMiddleName;
    desktop::TextBox *txtLastName;
    desktop::TextBox *txtAddressOne;
    desktop::TextBox *txtAddressTwo;
    desktop::TextBox *txtCity;
    desktop::ListBox *LstState;
    desktop::TextBox *txtZip;
    desktop::TextBox *txtHomePhone;
    desktop::TextBox *txtCellPhone;
    desktop::TextBox *txtEMailAddress;
    desktop::CommandButton *butEditMember;
    desktop::CommandButton *butCloseMember;

    // A member who is no longer active leaves the boxes empty.
    void load();
    void butEditMember_Click();

private:
    Dossier &m_dossier;
    StoredBoxes m_boxes;
};
