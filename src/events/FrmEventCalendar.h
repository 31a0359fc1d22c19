// A month calendar that puts the day that is clicked into a date box of an event's window, and closes.
//
// Its opener gives it the event's window; without one, or when that has been closed meanwhile, it makes one of its own,
// which stays unseen and goes with it unless somebody shows it.
#pragma once

#include "events/Calendar.h"
#include "events/FrmAddEvent.h"

#include <QPointer>

class FrmEventCalendar : public desktop::Form
{
    Q_OBJECT
public:
    FrmEventCalendar();

    // The name of the box to fill: "txtEventStartDate"; any other fills the end date.
    QString ControlName;
    FrmAddEvent *frmEvent();
    void setFrmEvent(FrmAddEvent *window) { m_frmEvent = window; }

    desktop::Frame *frEventCalendar;
    Calendar *Calendar1;

    void Calendar1_Click();

protected:
    void Form_Load() override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    QPointer<FrmAddEvent> m_frmEvent;
};
