// The user's regional settings: decimal and thousands signs, currency sign, forms of dates and times.
//
// They are those of QLocale's default, which the desktop session decides. A session without regional settings (the "C"
// locale) counts as United States English.
#pragma once

#include <QDateTime>
#include <QLocale>

namespace runtime {

QLocale regional();

// The day in the regional short form, with four digits of the year: "1/31/2001".
QString shortDateText(QDate day);
// The time in the regional form with seconds ("10:05:00 AM") and without ("10:05 AM").
QString longTimeText(QTime time);
QString shortTimeText(QTime time);

} // namespace runtime
