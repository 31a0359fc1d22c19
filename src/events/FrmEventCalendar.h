// A month calendar that puts the clicked day into a date box of an event's window and closes.
//
// Its opener gives it the event's window. When that is closed by the time of the click, the click loads it again: the
// shared one keeps the day for its next opening. When the window was deleted by its closing, or none was
// given, the calendar makes one, which is never shown and is deleted with the calendar.
#pragma once

#include "events/Calendar.h"
#include "events/FrmAddEvent.h"

#include <QPointer>

class FrmEventCalendar : public desktop::Form
{
    Q_OBJECT
public:
    FrmEventCalendar();

    // "txtEventStartDate" fills the start date; any other name the end date.
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
