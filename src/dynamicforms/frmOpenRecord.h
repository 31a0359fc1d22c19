// Asks the administrator whose record to open, and opens it.
//
// It offers the persons who are not marked as deleted. Error 6 for a key above 32,767, which no record window can show.
#pragma once

#include "platform/desktop/Controls.h"
#include "platform/desktop/Form.h"
#include "platform/runtime/Value.h"

class frmOpenRecord : public desktop::Form
{
    Q_OBJECT
public:
    frmOpenRecord();

    desktop::ListBox *lstPerson;
    desktop::CommandButton *cmdOpen;
    desktop::CommandButton *cmdCancel;

    void cmdOpen_Click();
    void cmdCancel_Click();

protected:
    void Form_Load() override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    QList<runtime::Value> m_ids; // as the list has its items
};
