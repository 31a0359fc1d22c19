// Options on the pages of a tab strip, of which one has a use: it changes the password of the user whose key is SecId.
//
// The old password has to be given but is not compared with the stored one. A page is moved out of view, not hidden. No
// failure is held back: without a user the statement is malformed and ends the program.
#pragma once

#include "platform/desktop/ControlArray.h"
#include "platform/desktop/Controls.h"
#include "platform/desktop/Form.h"
#include "platform/desktop/TabStrip.h"

class QSpacerItem;

class frmOptions : public desktop::Form
{
    Q_OBJECT
public:
    frmOptions();

    // The SecurityId of the user.
    const QString &SecId() const { return m_secId; }
    void setSecId(const QString &id) { m_secId = id; }

    desktop::TabStrip *tbsOptions;
    desktop::ControlArray<desktop::PictureBox> picOptions;
    desktop::Frame *fraSample1;
    desktop::TextBox *txtOldPassword;
    desktop::TextBox *txtNewPassword;
    desktop::TextBox *txtNewPasswordRetyped;
    desktop::CommandButton *cmdOK;
    desktop::CommandButton *cmdCancel;
    desktop::CommandButton *cmdApply;

    void tbsOptions_Click();
    // Ctrl+Tab selects the next tab, and after the last one the first; any other key does nothing.
    void Form_KeyDown(int keyCode, int shift);
    void cmdOK_Click();
    void cmdCancel_Click();
    void cmdApply_Click();

protected:
    void Form_Load() override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void setUpPages();
    void setUpPassword();
    void setUpLayout();
    void changePassword();
    // Tells what is wrong with the boxes. True when nothing is.
    bool isAccepted() const;
    void storePassword();

    QString m_secId;
    QSpacerItem *m_pagePlace; // what the layout keeps free for the pages
};
