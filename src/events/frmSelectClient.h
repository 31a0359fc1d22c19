// Asks whom a note is about that was started with no member in hand, and writes it.
//
// From the hand-over until OK the note lives here alone: closing the window drops it without a warning. With nobody to
// choose from, the load raises error 380.
#pragma once

#include "platform/desktop/Controls.h"
#include "platform/desktop/Form.h"
#include "platform/runtime/Value.h"

class frmSelectClient : public desktop::Form
{
    Q_OBJECT
public:
    frmSelectClient();

    // The note, as it stood in the boxes.
    QString EventType;
    QString EventDate;
    QString EventCategory;
    QString EventPurpose;
    QString EventStartTime;
    QString EventEndTime;
    QString EventNotes;

    desktop::ListBox *lstClient;
    desktop::CommandButton *cmdOK;

    void cmdOK_Click();

protected:
    void Form_Load() override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    QList<runtime::Value> m_clientIds; // one more than the list has items: element 0 is nobody's
};
