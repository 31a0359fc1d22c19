// The window with which the process starts: it shows the splash, opens the main window and closes itself. It can also
// check a user's name and password, for an edition that keeps it on the screen.
#pragma once

#include "platform/desktop/ControlArray.h"
#include "platform/desktop/Controls.h"
#include "platform/desktop/Form.h"

class frmLogin : public desktop::Form
{
    Q_OBJECT
public:
    frmLogin();

    // The one window of this kind, made at its first use.
    static frmLogin &shared();

    // The main window already runs: neither the splash nor the main window is shown.
    bool ReLogin = false;

    desktop::ControlArray<desktop::Label> lblLabels;
    desktop::TextBox *txtUserName;
    desktop::TextBox *txtPassword;
    desktop::CommandButton *cmdOK;
    desktop::CommandButton *cmdCancel;

    void cmdOK_Click();
    void cmdCancel_Click();

protected:
    void Form_Load() override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void setUpContent();
    void showSplashAndMainWindow();
};
