#include "platform/runtime/Conversion.h"

#include "platform/runtime/DateText.h"
#include "platform/runtime/NumberText.h"
#include "platform/runtime/Regional.h"
#include "platform/runtime/RuntimeError.h"

#include <cmath>
#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace runtime {

namespace {

template <class Whole> Whole rounded(double number)
{
    const double whole = std::nearbyint(number); // the default rounding mode goes half to even
    if (!(whole >= double(std::numeric_limits<Whole>::min()) && whole <= double(std::numeric_limits<Whole>::max())))
        throw RuntimeError(Overflow);
    return Whole(whole);
}

QString numberText(double number, int digits)
{
    QString plain = QString::number(number, 'g', digits);
    qsizetype exponentAt = plain.indexOf(u'e');
    if (exponentAt >= 0) { // a small number is written out where that takes no more digits
        const qsizetype significant = plain.first(exponentAt).count(u'.') ? exponentAt - plain.indexOf(u'.') : 1;
        const qsizetype decimals = significant - 1 - plain.sliced(exponentAt + 1).toInt();
        if (std::abs(number) < 1 && decimals <= digits) {
            plain = QString::number(number, 'f', int(decimals));
            exponentAt = -1;
        }
    }
    QString text = plain.first(exponentAt < 0 ? plain.size() : exponentAt);
    text.replace(u"."_s, regional().decimalPoint());
    if (exponentAt >= 0)
        text += u'E' + plain.sliced(exponentAt + 1);
    return text;
}

QString dateText(const Date &date)
{
    if (date.isTimeOnly()) // midnight too
        return longTimeText(date.time());
    const QString day = shortDateText(date.day());
    return date.hasTime() ? day + u' ' + longTimeText(date.time()) : day;
}

bool textAsBoolean(const QString &text)
{
    if (text.compare(u"True", Qt::CaseInsensitive) == 0)
        return true;
    if (text.compare(u"False", Qt::CaseInsensitive) == 0)
        return false;
    return toDouble(Value(text)) != 0.0;
}

} // namespace

double toDouble(const Value &value)
{
    switch (value.type()) {
    case Value::Type::Null:
        throw RuntimeError(InvalidUseOfNull);
    case Value::Type::Boolean:
        return value.get<bool>() ? -1.0 : 0.0;
    case Value::Type::Integer:
        return value.get<qint16>();
    case Value::Type::Long:
        return value.get<qint32>();
    case Value::Type::Double:
        return value.get<double>();
    case Value::Type::Currency:
        return value.get<Currency>().toDouble();
    case Value::Type::Date:
        return value.get<Date>().toSerial();
    case Value::Type::Text:
        if (const auto number = parseDouble(value.get<QString>())) {
            if (!std::isfinite(*number))
                throw RuntimeError(Overflow);
            return *number;
        }
        break;
    case Value::Type::Binary:
        break;
    }
    throw RuntimeError(TypeMismatch);
}

bool toBoolean(const Value &value)
{
    return value.is<QString>() ? textAsBoolean(value.get<QString>()) : toDouble(value) != 0.0;
}

qint16 toInteger(const Value &value)
{
    return rounded<qint16>(toDouble(value));
}

qint32 toLong(const Value &value)
{
    return rounded<qint32>(toDouble(value));
}

float toSingle(const Value &value)
{
    const double number = toDouble(value);
    if (std::abs(number) > double(std::numeric_limits<float>::max()))
        throw RuntimeError(Overflow);
    return float(number);
}

Currency toCurrency(const Value &value)
{
    if (value.is<Currency>())
        return value.get<Currency>();
    if (value.is<QString>()) {
        if (const auto amount = parseCurrency(value.get<QString>()))
            return *amount;
        throw RuntimeError(TypeMismatch);
    }
    return Currency::fromDouble(toDouble(value));
}

Date toDate(const Value &value)
{
    if (value.is<Date>())
        return value.get<Date>();
    if (value.is<QString>()) {
        if (const auto date = parseDate(value.get<QString>()))
            return *date;
        if (!mayCountDays(value.get<QString>()))
            throw RuntimeError(TypeMismatch);
    }
    return Date::fromSerial(toDouble(value));
}

QString toText(const Value &value)
{
    switch (value.type()) {
    case Value::Type::Null:
        throw RuntimeError(InvalidUseOfNull);
    case Value::Type::Boolean:
        return value.get<bool>() ? u"True"_s : u"False"_s;
    case Value::Type::Integer:
        return QString::number(value.get<qint16>());
    case Value::Type::Long:
        return QString::number(value.get<qint32>());
    case Value::Type::Double:
        return numberText(value.get<double>(), 15);
    case Value::Type::Currency:
        return value.get<Currency>().toPlainText().replace(u"."_s, regional().decimalPoint());
    case Value::Type::Date:
        return dateText(value.get<Date>());
    case Value::Type::Text:
        return value.get<QString>();
    case Value::Type::Binary:
        break;
    }
    throw RuntimeError(TypeMismatch);
}

QString singleText(float number)
{
    return numberText(double(number), 7);
}

QString toText(Value &&value)
{
    return value.is<QString>() ? std::move(value).get<QString>() : toText(std::as_const(value));
}

bool IsNumeric(const Value &value)
{
    switch (value.type()) {
    case Value::Type::Null:
    case Value::Type::Date:
    case Value::Type::Binary:
        return false;
    case Value::Type::Text:
        return std::isfinite(parseDouble(value.get<QString>()).value_or(qQNaN()));
    default:
        return true;
    }
}

qint32 sum(qint32 left, qint32 right)
{
    return rounded<qint32>(double(left) + double(right));
}

QString joinedText(const Value &value)
{
    return value.isNull() ? QString() : toText(value);
}

} // namespace runtime
