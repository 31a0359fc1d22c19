#include "platform/runtime/Date.h"

#include "platform/runtime/RuntimeError.h"

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace runtime {

namespace {

// -1 when there is anything but digits.
int numberOf(QStringView digits)
{
    int number = 0;
    for (const QChar digit : digits) {
        if (digit < u'0' || digit > u'9')
            return -1;
        number = number * 10 + (digit.unicode() - u'0');
    }
    return number;
}

} // namespace

Date::Date(QDate day, QTime time)
{
    if (!day.isValid() || !time.isValid())
        throw RuntimeError(TypeMismatch);
    if (day.year() < 100 || day.year() > 9999)
        throw RuntimeError(Overflow);
    m_seconds = (day.toJulianDay() - dayZero) * secondsPerDay + time.msecsSinceStartOfDay() / 1000;
}

Date Date::timeAlone(QTime time)
{
    return Date(Date().day(), time);
}

Date Date::fromSerial(double serial)
{
    if (!(serial > -657'435.0 && serial < 2'958'466.0))
        throw RuntimeError(Overflow);
    const double day = std::trunc(serial);
    qint64 second = std::llround(std::abs(serial - day) * double(secondsPerDay));
    Date date;
    date.m_seconds = qint64(day) * secondsPerDay + second;
    if (date.m_seconds >= 2'958'466 * secondsPerDay) // rounded into the year 10000
        throw RuntimeError(Overflow);
    return date;
}

// The usual form is read by hand: long lists have thousands of them, and Qt is much slower.
std::optional<Date> Date::fromIsoText(QStringView text)
{
    const bool usual = text.size() == 19 && text[4] == u'-' && text[7] == u'-' && text[13] == u':' && text[16] == u':';
    const auto part = [text](qsizetype at, qsizetype size) { return numberOf(text.sliced(at, size)); };
    const QDate day = usual ? QDate(part(0, 4), part(5, 2), part(8, 2))
                            : QDate::fromString(text.first(qMin<qsizetype>(10, text.size())), Qt::ISODate);
    if (!day.isValid() || day.year() < 100 || day.year() > 9999)
        return std::nullopt;
    if (text.size() == 10)
        return Date(day);
    if (text[10] != u' ' && text[10] != u'T')
        return std::nullopt;
    const QTime time =
        usual ? QTime(part(11, 2), part(14, 2), part(17, 2)) : QTime::fromString(text.sliced(11), Qt::ISODate);
    return time.isValid() ? std::optional(Date(day, time)) : std::nullopt;
}

QTime Date::time() const
{
    return QTime::fromMSecsSinceStartOfDay(int((rest() + secondsPerDay) % secondsPerDay) * 1000);
}

double Date::toSerial() const
{
    const qint64 second = (rest() + secondsPerDay) % secondsPerDay;
    const qint64 dayNumber = (m_seconds - second) / secondsPerDay;
    const double wholeDays = double(dayNumber);
    const double fraction = double(second) / double(secondsPerDay);
    return wholeDays < 0 ? wholeDays - fraction : wholeDays + fraction;
}

QString Date::toIsoText() const
{
    return day().toString(Qt::ISODate) + u' ' + time().toString(u"HH:mm:ss"_s);
}

} // namespace runtime
