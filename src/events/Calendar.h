// A month calendar that is set to a day by its parts and reports the day that is chosen, by mouse or by Enter.
//
// Year, month and day may be set in any order: day 31 set while a shorter month is shown is remembered until a month
// that has it is set. Error 380 for a day, month or year outside the calendar.
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
    // The day that is shown; as text it has the regional short form.
    runtime::Value Value() const;

Q_SIGNALS:
    void Click();

protected:
    void changeEvent(QEvent *event) override;

private:
    // Weekends are as red as can be read in the palette; the arrows have the colour of the month between them.
    void setColours();
    void takeOver();
    void showDay();

    int m_year = 0;
    int m_month = 0;
    int m_day = 0; // as set, also where the month shown is shorter
};
