#include "platform/runtime/DateText.h"

#include "platform/runtime/Clock.h"
#include "platform/runtime/Regional.h"

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace runtime {

namespace {

// As two texts are compared here, whichever case and signs they came in.
QString comparable(QStringView text)
{
    return plainlyTyped(text).toUpper();
}

QString literalPattern(const QString &text)
{
    return QRegularExpression::escape(comparable(text)).replace(u"\\ "_s, u"\\s*"_s);
}

QString halfOfDayPattern()
{
    const QLocale locale = regional();
    return u"(?:(?<am>AM|%1)|(?<pm>PM|%2))"_s.arg(literalPattern(locale.amText()), literalPattern(locale.pmText()));
}

// How a text in the form reads. Years have four digits; a field that is always written with two digits but for the
// hour's and the day's has two, so that "1.2" is no time.
QString patternOf(const QString &form)
{
    QString pattern;
    for (const FormPiece &piece : piecesOf(form)) {
        if (piece.field.isEmpty())
            pattern += literalPattern(piece.text);
        else if (piece.field == u"AP")
            pattern += halfOfDayPattern();
        else if (piece.field == u"y")
            pattern += u"(?<y>\\d{4})"_s;
        else if ((piece.field == u"m" || piece.field == u"s") && piece.text.size() == 2)
            pattern += u"(?<%1>\\d{2})"_s.arg(piece.field);
        else
            pattern += u"(?<%1>\\d{1,2})"_s.arg(piece.field);
    }
    return pattern;
}

QRegularExpression wholeWords(const QString &pattern)
{
    return QRegularExpression(u"(?<!\\S)(?:"_s + pattern + u")(?!\\S)"_s);
}

// The patterns of one region, made once as long as it stays the user's.
struct Forms
{
    QLocale region;
    QRegularExpression day;
    QList<QRegularExpression> times;
};

const Forms &regionalForms()
{
    static std::optional<Forms> forms;
    if (!forms || forms->region != regional()) {
        const QString typed = u"(?<h>\\d{1,2})(?::(?<m>\\d{1,2})(?::(?<s>\\d{1,2}))?(?:\\s*%1)?|\\s*%2)"_s;
        // A name may stand but once in a pattern.
        const QString hourAlone = halfOfDayPattern().replace(u"<am>"_s, u"<am2>"_s).replace(u"<pm>"_s, u"<pm2>"_s);
        forms = Forms{regional(),
                      QRegularExpression(QRegularExpression::anchoredPattern(patternOf(shortDateForm()))),
                      {wholeWords(patternOf(shortTimeForm())), wholeWords(patternOf(longTimeForm())),
                       wholeWords(typed.arg(halfOfDayPattern(), hourAlone))}};
    }
    return *forms;
}

// Invalid for an impossible one.
QTime timeOf(const QRegularExpressionMatch &match)
{
    const auto number = [&match](const QString &field) { return match.captured(field).toInt(); };
    const auto has = [&match](const QString &name) { return !match.captured(name).isEmpty(); };
    int hour = number(u"h"_s);
    const bool morning = has(u"am"_s) || has(u"am2"_s);
    const bool afternoon = has(u"pm"_s) || has(u"pm2"_s);
    if (morning || afternoon) {
        if (hour < 1 || hour > 12)
            return {};
        hour = hour % 12 + (afternoon ? 12 : 0);
    }
    return QTime(hour, number(u"m"_s), number(u"s"_s));
}

int monthOfName(const QString &name)
{
    const QLocale locale = regional();
    const QLocale english(QLocale::English, QLocale::UnitedStates);
    for (int month = 1; month <= 12; ++month) {
        for (const QLocale &names : {locale, english}) {
            for (const auto form : {QLocale::LongFormat, QLocale::ShortFormat}) {
                // A short name may end in a point ("janv."), which in the typed text was taken for a separator.
                if (name == comparable(names.monthName(month, form).remove(u'.')))
                    return month;
            }
        }
    }
    return 0;
}

bool dayComesFirst()
{
    const QString form = shortDateForm();
    return form.indexOf(u'd', 0, Qt::CaseInsensitive) < form.indexOf(u'M', 0, Qt::CaseSensitive);
}

QDate inEitherOrder(int first, int second, int year)
{
    const QDate usual = dayComesFirst() ? QDate(year, second, first) : QDate(year, first, second);
    return usual.isValid() ? usual : dayComesFirst() ? QDate(year, first, second) : QDate(year, second, first);
}

int yearOf(int number, qsizetype digits)
{
    return digits > 2 ? number : yearOfTwoDigits(number);
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
    return inEitherOrder(numbers[0], numbers[1], yearOf(numbers[2], pieces[2].size()));
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
    const int year = pieces.size() == 2 ? yearOf(pieces[1].toInt(&yearOk), pieces[1].size()) : clockNow().day().year();
    return dayOk && yearOk ? QDate(year, month, day) : QDate();
}

QDate parseDay(const QString &text)
{
    if (const auto match = regionalForms().day.match(text); match.hasMatch()) {
        const QDate day(match.captured(u"y"_s).toInt(), match.captured(u"M"_s).toInt(), match.captured(u"d"_s).toInt());
        if (day.isValid())
            return day;
    }
    static const QRegularExpression partings(u"[/.,\\-\\s]+"_s);
    const QStringList pieces = text.split(partings, Qt::SkipEmptyParts);
    const QDate day = dayOfNumbers(pieces);
    return day.isValid() ? day : dayWithMonthName(pieces);
}

bool isInRange(QDate day)
{
    return day.isValid() && day.year() >= 100 && day.year() <= 9999;
}

} // namespace

std::optional<Date> parseDate(QStringView text)
{
    const QString whole = comparable(text).trimmed();
    for (const QRegularExpression &form : regionalForms().times) {
        for (auto matches = form.globalMatch(whole); matches.hasNext();) {
            const auto match = matches.next();
            const QTime time = timeOf(match);
            if (!time.isValid())
                continue;
            const QString rest = QString(whole).remove(match.capturedStart(), match.capturedLength()).trimmed();
            if (rest.isEmpty())
                return Date::timeAlone(time);
            if (const QDate day = parseDay(rest); isInRange(day))
                return Date(day, time);
        }
    }
    const QDate day = parseDay(whole);
    return isInRange(day) ? std::optional(Date(day)) : std::nullopt;
}

bool mayCountDays(QStringView text)
{
    const QList<FormPiece> time = piecesOf(shortTimeForm());
    const auto minute =
        std::find_if(time.cbegin(), time.cend(), [](const FormPiece &piece) { return piece.field == u"m"; });
    const QString plain = plainlyTyped(text).trimmed();
    const auto has = [&plain](const QString &sign) {
        const QString typed = plainlyTyped(sign);
        return !typed.isEmpty() && plain.contains(typed);
    };
    return !has(regional().groupSeparator()) && !(minute > time.cbegin() && has(std::prev(minute)->text));
}

} // namespace runtime
