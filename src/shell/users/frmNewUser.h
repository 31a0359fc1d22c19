// A user is added, or the names and the e-mail address of one are changed: SecurityId decides which when the window
// loads. It suggests a user name and a password.
//
// No failure is held back. A new user's level is the store's own default: no window writes it. After "Save" the window
// stays as it is, so that a second click adds a second user.
#pragma once

#include "platform/desktop/Controls.h"
#include "platform/desktop/Form.h"

class frmNewUser : public desktop::Form
{
    Q_OBJECT
public:
    frmNewUser();

    // The row's SecurityId; empty: a new row.
    QString SecurityId;

    desktop::Frame *Frame1;
    desktop::TextBox *txtFirstName;
    desktop::TextBox *txtMiddleName;
    desktop::TextBox *txtLastName;
    desktop::TextBox *txtEMailAddress;
    desktop::TextBox *txtUserName;
    desktop::TextBox *txtPassword;
    desktop::Label *lblPasswordRedtyped;
    desktop::TextBox *txtPasswordRetypes;
    desktop::Label *lblGeneratedPassword;
    desktop::CommandButton *CmdUserName;
    desktop::CommandButton *CmdPassword;
    desktop::CommandButton *cmdOk;
    desktop::CommandButton *cmdClear;
    desktop::CommandButton *cmdCancel;

    void CmdUserName_Click();
    void CmdPassword_Click();
    void cmdOk_Click();
    void cmdClear_Click();
    void cmdCancel_Click();

protected:
    void Form_Load() override;

private:
    void setUpContent();
    void setUpBoxes();
    void showStoredUser();
    void showGenerated(const QString &password);
    void addUser();
    void changeUser();
    // Tells what is missing. True when nothing is.
    bool isComplete() const;

    QString Mode; // "Edit", or empty while a user is added
};
