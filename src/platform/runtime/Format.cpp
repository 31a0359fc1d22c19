#include "platform/runtime/Format.h"

#include "platform/runtime/Conversion.h"
#include "platform/runtime/Regional.h"
#include "platform/runtime/RuntimeError.h"

#include <array>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace runtime {

namespace {

constexpr int currencyDecimals = 4;

quint64 magnitude(Currency amount)
{
    return amount.scaled() < 0 ? 0 - quint64(amount.scaled()) : quint64(amount.scaled());
}

quint64 powerOfTen(int exponent)
{
    constexpr std::array<quint64, currencyDecimals + 1> powers{1, 10, 100, 1'000, 10'000};
    return powers.at(size_t(exponent));
}

// The amount without its sign in units of its last decimal, halves rounded up.
quint64 roundedMagnitude(Currency amount, int decimals)
{
    const quint64 unit = powerOfTen(currencyDecimals - decimals);
    return (magnitude(amount) + unit / 2) / unit;
}

QString wholeDigits(const Value &value)
{
    if (value.is<Currency>())
        return QString::number(roundedMagnitude(value.get<Currency>(), 0));
    return QString::number(std::round(std::abs(toDouble(value))), 'f', 0);
}

int regionalDecimals(const QLocale &locale)
{
    const qsizetype zeros = locale.toCurrencyString(0.0).count(locale.zeroDigit());
    return qBound(0, int(zeros) - 1, currencyDecimals);
}

// The number in the region's digits with its grouping. QLocale formats decimals only from a double, which is not exact.
QString groupedText(QLocale locale, quint64 number, int decimals)
{
    const quint64 one = powerOfTen(decimals);
    QString text = locale.toString(qulonglong(number / one));
    if (decimals > 0) {
        locale.setNumberOptions(QLocale::OmitGroupSeparator);
        const QString fraction = locale.toString(qulonglong(one + number % one)); // the leading one keeps the zeros
        text += locale.decimalPoint() + fraction.sliced(locale.zeroDigit().size());
    }
    return text;
}

// The region's text for the amount 1, in which FormatCurrency replaces the 1 by another amount. Qt gives negative
// amounts the brackets of bookkeeping in many regions; only the United States use them in everyday amounts.
QString regionalForm(const QLocale &locale, bool negative)
{
    QString form = locale.toCurrencyString(qlonglong(negative ? -1 : 1));
    if (form.contains(u'(') && locale.territory() != QLocale::UnitedStates)
        form = locale.negativeSign() + locale.toCurrencyString(qlonglong(1));
    return form;
}

} // namespace

QString Format(const Value &value, QStringView pattern)
{
    if (pattern.isEmpty() || pattern.count(u'0') != pattern.size())
        throw RuntimeError(InvalidProcedureCall);
    if (value.isNull())
        return {};
    if (value.is<QString>() && !IsNumeric(value))
        return value.get<QString>();
    const QString digits = wholeDigits(value).rightJustified(pattern.size(), u'0');
    return toDouble(value) < 0 ? u'-' + digits : digits;
}

QString FormatCurrency(const Value &value)
{
    const Currency amount = toCurrency(value);
    const QLocale locale = regional();
    const int decimals = regionalDecimals(locale);
    const quint64 number = roundedMagnitude(amount, decimals);
    const bool negative = amount.scaled() < 0 && number != 0;
    const QString one = locale.toString(qlonglong(1));
    return regionalForm(locale, negative).replace(one, groupedText(locale, number, decimals));
}

} // namespace runtime
