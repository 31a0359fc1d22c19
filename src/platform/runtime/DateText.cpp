#include "platform/runtime/DateText.h"

#include "platform/runtime/Clock.h"
#include "platform/runtime/Regional.h"

#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace runtime {

namespace {

// Takes the time out of the text, leaving the day. An empty result: there is a time and it is impossible.
std::optional<QTime> takeTime(QString &text, bool &found)
{
    static const QRegularExpression clock(u"(?:^|\\s)(\\d{1,2})(?::(\\d{1,2})(?::(\\d{1,2}))?)?\\s*(am|pm)?(?=\\s|$)"_s,
                                          QRegularExpression::CaseInsensitiveOption);
    for (auto matches = clock.globalMatch(text); matches.hasNext();) {
        const auto match = matches.next();
        const bool half = match.hasCaptured(4);
        if (!match.hasCaptured(2) && !half)
            continue; // a number alone is a piece of the day
        found = true;
        int hour = match.captured(1).toInt();
        if (half && (hour < 1 || hour > 12))
            return std::nullopt;
        if (half)
            hour = hour % 12 + (match.captured(4).startsWith(u'p', Qt::CaseInsensitive) ? 12 : 0);
        const QTime time(hour, match.captured(2).toInt(), match.captured(3).toInt());
        text.remove(match.capturedStart(), match.capturedLength());
        text = text.trimmed();
        return time.isValid() ? std::optional(time) : std::nullopt;
    }
    return std::nullopt;
}

int fullYear(int year, qsizetype digits)
{
    if (digits > 2)
        return year;
    return year < 30 ? 2000 + year : 1900 + year;
}

int monthOfName(const QString &name)
{
    const QLocale locale = regional();
    const QLocale english(QLocale::English, QLocale::UnitedStates);
    for (int month = 1; month <= 12; ++month) {
        for (const QLocale &names : {locale, english}) {
            for (const auto form : {QLocale::LongFormat, QLocale::ShortFormat}) {
                // The point of a short form has parted it from the year already.
                if (name.compare(names.monthName(month, form).remove(u'.'), Qt::CaseInsensitive) == 0)
                    return month;
            }
        }
    }
    return 0;
}

bool dayComesFirst()
{
    const QString format = regional().dateFormat(QLocale::ShortFormat);
    return format.indexOf(u'd', 0, Qt::CaseInsensitive) < format.indexOf(u'M', 0, Qt::CaseSensitive);
}

QDate inEitherOrder(int first, int second, int year)
{
    const QDate usual = dayComesFirst() ? QDate(year, second, first) : QDate(year, first, second);
    return usual.isValid() ? usual : dayComesFirst() ? QDate(year, first, second) : QDate(year, second, first);
}

QDate dayOfNumbers(const QStringList &pieces)
{
    QList<int> numbers;
    for (const QString &piece : pieces) {
        bool ok = false;
        numbers.append(piece.toInt(&ok));
        if (!ok || piece.size() > 4)
            return {};
    }
    const int thisYear = clockNow().day().year();
    if (numbers.size() == 2)
        return inEitherOrder(numbers[0], numbers[1], thisYear);
    if (numbers.size() != 3)
        return {};
    if (pieces[0].size() > 2)
        return QDate(numbers[0], numbers[1], numbers[2]);
    return inEitherOrder(numbers[0], numbers[1], fullYear(numbers[2], pieces[2].size()));
}

QDate dayWithMonthName(QStringList pieces)
{
    int month = 0;
    qsizetype at = 0;
    for (; at < pieces.size() && month == 0; ++at)
        month = monthOfName(pieces[at]);
    if (month == 0)
        return {};
    pieces.removeAt(at - 1);
    if (pieces.isEmpty() || pieces.size() > 2)
        return {};
    bool dayOk = false;
    bool yearOk = true;
    const int day = pieces[0].toInt(&dayOk);
    const int year =
        pieces.size() == 2 ? fullYear(pieces[1].toInt(&yearOk), pieces[1].size()) : clockNow().day().year();
    return dayOk && yearOk ? QDate(year, month, day) : QDate();
}

QDate parseDay(const QString &text)
{
    static const QRegularExpression partings(u"[/.,\\-\\s]+"_s);
    const QStringList pieces = text.split(partings, Qt::SkipEmptyParts);
    const QDate day = dayOfNumbers(pieces);
    return day.isValid() ? day : dayWithMonthName(pieces);
}

} // namespace

std::optional<Date> parseDate(QStringView text)
{
    QString rest = text.trimmed().toString().replace(QChar(0x202f), u' ');
    bool timeFound = false;
    const std::optional<QTime> time = takeTime(rest, timeFound);
    if (timeFound && !time)
        return std::nullopt;
    if (rest.isEmpty())
        return timeFound ? std::optional(Date(QDate(1899, 12, 30), *time)) : std::nullopt;
    const QDate day = parseDay(rest);
    if (!day.isValid() || day.year() < 100 || day.year() > 9999)
        return std::nullopt;
    return Date(day, time.value_or(QTime(0, 0)));
}

} // namespace runtime
