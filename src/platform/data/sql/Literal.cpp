#include "platform/data/sql/Literal.h"

#include <QDate>
#include <QTime>
#include <QVarLengthArray>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace sql {

namespace {

// One to three numbers with the separator between them, as in "1/31/2001" or "10:05"; empty when the text is anything
// else.
QVarLengthArray<int, 4> numbersBetween(QStringView text, QChar separator)
{
    QVarLengthArray<int, 4> numbers;
    for (const QStringView part : text.tokenize(separator)) {
        bool isNumber = false;
        numbers.append(part.toInt(&isNumber));
        if (!isNumber || part.startsWith(u'-') || part.startsWith(u'+') || numbers.size() > 3)
            return {};
    }
    return numbers;
}

// Month, day, year; day, month, year where that is impossible; or year, month, day with hyphens.
QDate dayOf(QStringView text)
{
    if (const auto parts = numbersBetween(text, u'-'); parts.size() == 3)
        return QDate(parts[0], parts[1], parts[2]);
    const auto parts = numbersBetween(text, u'/');
    if (parts.size() != 3)
        return {};
    const bool twoDigits = text.size() - text.lastIndexOf(u'/') <= 3;
    const int year = twoDigits ? runtime::yearOfTwoDigits(parts[2]) : parts[2];
    const QDate usual(year, parts[0], parts[1]);
    return usual.isValid() ? usual : QDate(year, parts[1], parts[0]);
}

// "17:04", "17:04:30", "5:04 PM" or "5 PM".
QTime timeOf(QStringView text)
{
    const bool morning = text.endsWith(u"am", Qt::CaseInsensitive);
    const bool afternoon = text.endsWith(u"pm", Qt::CaseInsensitive);
    if (morning || afternoon)
        text = text.chopped(2).trimmed();
    const auto parts = numbersBetween(text, u':');
    if (parts.isEmpty() || (parts.size() == 1 && !morning && !afternoon))
        return {};
    int hour = parts[0];
    if (morning || afternoon) {
        if (hour < 1 || hour > 12)
            return {};
        hour = hour % 12 + (afternoon ? 12 : 0);
    }
    return QTime(hour, parts.size() > 1 ? parts[1] : 0, parts.size() > 2 ? parts[2] : 0);
}

} // namespace

QString textValue(QStringView literal)
{
    const QChar quote = literal.front();
    QString text = literal.sliced(1, literal.size() - 2).toString();
    if (text.contains(quote))
        text.replace(QString(2, quote), QString(quote));
    return text;
}

runtime::Value numberValue(QStringView literal, bool negative)
{
    bool isWhole = false;
    const qint64 whole = literal.toLongLong(&isWhole);
    const qint64 value = negative ? -whole : whole;
    if (isWhole && std::in_range<qint32>(value))
        return runtime::Value(qint32(value));
    const double number = literal.toDouble();
    return runtime::Value(negative ? -number : number);
}

std::optional<runtime::Date> dateValue(QStringView literal)
{
    const QStringView text = literal.sliced(1, literal.size() - 2).trimmed();
    const qsizetype blank = text.indexOf(u' ');
    const QDate day = dayOf(blank < 0 ? text : text.first(blank));
    const QStringView rest = !day.isValid() ? text : blank < 0 ? QStringView() : text.sliced(blank).trimmed();
    const QTime time = rest.isEmpty() && day.isValid() ? QTime(0, 0) : timeOf(rest);
    if (!time.isValid() || (day.isValid() && (day.year() < 100 || day.year() > 9999)))
        return std::nullopt;
    return day.isValid() ? runtime::Date(day, time) : runtime::Date::timeAlone(time);
}

} // namespace sql
