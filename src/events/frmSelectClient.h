// Asks for the person of a note that was begun without one, and stores the note.
//
// The window that the note was written in is closed by then and nothing is stored before OK: closing this one drops the
// note without a warning. With nobody to choose from, the load raises error 380.
#pragma once

#include "events/Note.h"
#include "platform/desktop/Controls.h"
#include "platform/desktop/Form.h"
#include "platform/runtime/Value.h"

class frmSelectClient : public desktop::Form, public Note
{
    Q_OBJECT
public:
    frmSelectClient();

    desktop::ListBox *lstClient;
    desktop::CommandButton *cmdOK;

    void cmdOK_Click();

protected:
    void Form_Load() override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    QList<runtime::Value> m_clientIds; // from 1, as the list's items count from 0; element 0 is not used
};
