// A day and a time of day, to the second, on the workstation's own clock; it knows no time zones.
//
// Day 0 is 1899-12-30: a time of day alone is a date on that day. Days reach from the year 100 to the year 9999.
#pragma once

#include <QDate>
#include <QString>
#include <QTime>

#include <compare>
#include <optional>

namespace runtime {

class Date
{
public:
    Date() = default;
    // Raises error 6 (Overflow) for a day outside the range and error 13 for an invalid day or time.
    explicit Date(QDate day, QTime time = QTime(0, 0));
    // The time of day on day 0. Error 13 for an invalid one.
    static Date timeAlone(QTime time);
    // Whole part: days from day 0; fraction: time of day, which counts forward also on days before day 0.
    static Date fromSerial(double serial);
    // Reads the store's form "yyyy-mm-dd", optionally followed by a blank or "T" and "hh:mm:ss".
    static std::optional<Date> fromIsoText(QStringView text);

    QDate day() const
    {
        return QDate::fromJulianDay(dayZero + m_seconds / secondsPerDay - (m_seconds < 0 && rest() ? 1 : 0));
    }
    QTime time() const;
    bool isTimeOnly() const { return m_seconds >= 0 && m_seconds < secondsPerDay; }
    bool hasTime() const { return rest() != 0; }

    double toSerial() const;
    // The store's form, always "yyyy-mm-dd hh:mm:ss", so that texts sort as the moments do.
    QString toIsoText() const;
    // Seconds since day 0.
    qint64 seconds() const { return m_seconds; }

    friend auto operator<=>(const Date &, const Date &) = default;

private:
    static constexpr qint64 secondsPerDay = 86'400;
    static constexpr qint64 dayZero = 2'415'019; // Julian day of 1899-12-30
    qint64 rest() const { return m_seconds % secondsPerDay; }

    qint64 m_seconds = 0;
};

// The year that two digits mean: 2000 to 2029, 1930 to 1999.
constexpr int yearOfTwoDigits(int digits)
{
    return digits < 30 ? 2000 + digits : 1900 + digits;
}

} // namespace runtime
