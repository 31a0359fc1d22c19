// A month calendar that is set to a day by its parts and reports the day that is chosen, by mouse or by Enter.
//
// The parts may be set one after another in any order: a day that the month on the way does not have is kept in mind
// until month and year have it. A part that no month has raises error 380.
#pragma once

#include "platform/desktop/Control.h"
#include "platform/runtime/Value.h"

#include <QCalendarWidget>

class Calendar : public desktop::ControlOf<QCalendarWidget>
{
    Q_OBJECT
public:
    Calendar(QWidget *parent, QAnyStringView name);

    void setMonth(int month);
    void setDay(int day);
    void setYear(int year);
    // The day that is set; as text it has the regional short form.
    runtime::Value Value() const;

Q_SIGNALS:
    void Click();

private:
    void takeOver();
    void showDay();

    int m_year = 0;
    int m_month = 0;
    int m_day = 0; // as it was asked for
};
