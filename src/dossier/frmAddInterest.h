// A small window for one interest of a member. It is not in use: no window opens it, and "Add" has no handler.
#pragma once

#include "platform/desktop/Controls.h"
#include "platform/desktop/Form.h"

class frmAddInterest : public desktop::Form
{
    Q_OBJECT
public:
    frmAddInterest();

    desktop::Frame *Frame1;
    desktop::TextBox *txtInterestName;
    desktop::MultilineTextBox *txtInterestDescription;
    desktop::CommandButton *Command1;
    desktop::CommandButton *Command2;

    void Command2_Click();
};
