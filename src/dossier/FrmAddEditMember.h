// A new member is keyed in, with employer and interests, and written in one action. It only ever adds.
//
// No failure is held back: a value with an apostrophe breaks its statement and ends the program; rows written before
// stay.
#pragma once

#include "dossier/InterestEntry.h"
#include "dossier/NewMemberStatements.h"
#include "platform/desktop/Form.h"

class FrmAddEditMember : public desktop::Form
{
    Q_OBJECT
public:
    FrmAddEditMember();

    desktop::TabbedDialog *SSTab1;
    desktop::CommandButton *Command1;
    desktop::CommandButton *Command2;

    desktop::TextBox *txtMemberFirstName;
    desktop::TextBox *txtMemberMiddleName;
    desktop::TextBox *txtMemberLastName;
    desktop::TextBox *txtMemberAddressOne;
    desktop::TextBox *txtMemberAddressTwo;
    desktop::TextBox *txtCity;
    desktop::ListBox *LstState;
    desktop::TextBox *txtMemberZip;
    desktop::TextBox *txtMemberHomePhone;
    desktop::TextBox *txtMemberCellPhone;
    desktop::TextBox *txtMemberWorkExtension; // stored nowhere
    desktop::TextBox *txtMemberEmail;

    desktop::TextBox *txtEmployerName;
    desktop::TextBox *txtEmployerAddressOne;
    desktop::TextBox *txtEmployerAddressTwo;
    desktop::TextBox *txtEmployerCity;
    desktop::ListBox *LstEmployerState;
    desktop::TextBox *txtEmployerZip;
    desktop::TextBox *txtEmployerMainPhone;
    desktop::TextBox *txtEmployerExtension;
    desktop::TextBox *txtEmployerCellPhone; // stored nowhere
    desktop::TextBox *txtEmployerEmail;

    InterestEntry *Frame3;

    void Command1_Click();
    void Command2_Click();

private:
    QWidget *setUpMember();
    QWidget *setUpEmployer();
    void setUpButtons();
    MemberValues memberValues() const;
    EmployerValues employerValues() const;
    void save();

    bool m_saved = false;
};
