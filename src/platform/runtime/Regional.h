// The user's regional settings: decimal and thousands signs, currency sign, forms of dates and times.
//
// They are those of QLocale's default, which the desktop session decides. A session without regional settings (the "C"
// locale) counts as United States English. Whatever is shown in a form of this header, DateText.h reads back.
#pragma once

#include <QDateTime>
#include <QLocale>

namespace runtime {

QLocale regional();

// The forms themselves, as QLocale words them: the day by numbers with four digits of the year, the time with seconds
// and without. The time with seconds is the region's short time with the seconds behind the minutes, set off by the
// same sign; where words part hours and minutes it is the region's long time without the zone.
QString shortDateForm();
QString longTimeForm();
QString shortTimeForm();

// The day in the regional short form: "1/31/2001".
QString shortDateText(QDate day);
// The time in the regional form with seconds ("10:05:00 AM") and without ("10:05 AM").
QString longTimeText(QTime time);
QString shortTimeText(QTime time);

// The text as a keyboard without the region's own keys would type it: digits 0 to 9, plain blanks, hyphen and
// apostrophe, point and comma for the Arabic signs, no marks for the direction of writing. Two texts are alike to a
// reader when these are the same.
QString plainlyTyped(QStringView text);

// One piece of a form: a field, named by its letter ("y", "M", "d", "h" also for the hour of 24, "m", "s", and "AP" for
// the half of the day), or the text between two fields, whose field is empty.
struct FormPiece
{
    QString field;
    QString text; // as it stands in the form, without quotes
};
QList<FormPiece> piecesOf(const QString &form);

} // namespace runtime
