// A tip from the file TIPOFDAY.TXT, and the check box with which the user says whether tips are wanted at start-up.
//
// With the user's setting at 0 the window closes while it loads and is never seen; a setting that is no number fails
// the load with error 13. No window opens this one, and the start does not either.
#pragma once

#include "platform/desktop/Controls.h"
#include "platform/desktop/Form.h"

#include <QStringList>

class frmTip : public desktop::Form
{
    Q_OBJECT
public:
    frmTip();

    // Adds the lines of the file to the tips and shows one of them. False when there is no such file.
    bool LoadTips(const QString &FileName);
    void DisplayCurrentTip();

    desktop::PictureBox *Picture1;
    desktop::Label *Label1;
    desktop::Label *lblTipText;
    desktop::CheckBox *chkLoadTipsAtStartup;
    desktop::CommandButton *cmdNextTip;
    desktop::CommandButton *cmdOK;

    void chkLoadTipsAtStartup_Click();
    void cmdNextTip_Click();
    void cmdOK_Click();

protected:
    void Form_Load() override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void setUpContent();
    void chooseNextTip();

    QStringList m_tips;
    qint32 CurrentTip = 0; // counts from 1
};
