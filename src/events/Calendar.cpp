#include "events/Calendar.h"

#include "platform/desktop/Contrast.h"
#include "platform/runtime/Regional.h"
#include "platform/runtime/RuntimeError.h"

#include <QEvent>
#include <QSignalBlocker>
#include <QTextCharFormat>
#include <QToolButton>

using namespace Qt::Literals::StringLiterals;

namespace {

int within(int part, int first, int last)
{
    if (part < first || part > last)
        throw runtime::RuntimeError(runtime::InvalidPropertyValue);
    return part;
}

} // namespace

Calendar::Calendar(QWidget *parent, QAnyStringView name) : ControlOf(parent, name)
{
    setLocale(runtime::regional());
    setVerticalHeaderFormat(NoVerticalHeader);
    setColours();
    takeOver();
    connect(this, &QCalendarWidget::selectionChanged, this, &Calendar::takeOver);
    connect(this, &QCalendarWidget::clicked, this, &Calendar::Click);
    connect(this, &QCalendarWidget::activated, this, &Calendar::Click);
}

void Calendar::changeEvent(QEvent *event)
{
    ControlOf::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        setColours();
}

void Calendar::setColours()
{
    const QColor text = palette().color(QPalette::Text);
    QColor red = Qt::red;
    for (const auto ground : {QPalette::Base, QPalette::AlternateBase})
        red = desktop::readable(red, text, palette().color(ground));
    QTextCharFormat weekend;
    weekend.setForeground(red);
    for (const auto day : {Qt::Saturday, Qt::Sunday})
        setWeekdayTextFormat(day, weekend);
    // Qt's own pictures on these buttons do not grow with the letters.
    QPalette onSelection = palette();
    onSelection.setColor(QPalette::ButtonText, onSelection.color(QPalette::HighlightedText));
    for (const auto &[name, arrow] :
         {std::pair(u"qt_calendar_prevmonth"_s, Qt::LeftArrow), {u"qt_calendar_nextmonth"_s, Qt::RightArrow}}) {
        auto *button = findChild<QToolButton *>(name);
        button->setArrowType(arrow);
        button->setPalette(onSelection);
    }
}

void Calendar::takeOver()
{
    selectedDate().getDate(&m_year, &m_month, &m_day);
}

void Calendar::showDay()
{
    // While year, month and day are set one after another, the day shown may be another than the one asked for; it must
    // not be taken over.
    const QSignalBlocker quiet(this);
    const int lastDay = QDate(m_year, m_month, 1).daysInMonth();
    setSelectedDate(QDate(m_year, m_month, qMin(m_day, lastDay)));
}

void Calendar::setMonth(int month)
{
    m_month = within(month, 1, 12);
    showDay();
}

void Calendar::setDay(int day)
{
    m_day = within(day, 1, 31);
    showDay();
}

void Calendar::setYear(int year)
{
    // The first year of the calendar is not whole.
    m_year = within(year, minimumDate().year() + 1, maximumDate().year());
    showDay();
}

runtime::Value Calendar::Value() const
{
    return runtime::Value(runtime::Date(selectedDate()));
}
