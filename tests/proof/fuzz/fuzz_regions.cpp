// Any value in any region: what is shown reads back to the same. Any text: read by each conversion or refused with
// error 6 or 13, and what it was read as, once shown, reads back to the same.
#include "platform/runtime/Conversion.h"
#include "platform/runtime/Format.h"
#include "platform/runtime/Regional.h"
#include "platform/runtime/RuntimeError.h"
#include "proof/fuzz/Fuzz.h"

#include <cmath>

using namespace Qt::Literals::StringLiterals;
using runtime::Currency;
using runtime::Date;
using runtime::Value;

namespace {

constexpr qint64 secondsOfADay = 86'400;

[[noreturn]] void reads(const QString &text, const QString &as, const QString &expected)
{
    found(u"in %1 \"%2\" reads as %3, not as %4"_s.arg(QLocale().name(), text, as, expected));
}

// To the 15 digits that are shown.
void numberComesBack(double number)
{
    const QString shown = runtime::toText(Value(number));
    const double expected = QString::number(number, 'g', 15).toDouble();
    if (!std::isfinite(expected)) // the rounding to 15 digits left the type
        return;
    if (!runtime::IsNumeric(Value(shown)) || runtime::toDouble(Value(shown)) != expected)
        reads(shown, QString::number(runtime::toDouble(Value(shown)), 'g', 17), QString::number(expected, 'g', 17));
}

void amountComesBack(Currency amount)
{
    const QString shown = runtime::toText(Value(amount));
    if (runtime::toCurrency(Value(shown)) != amount)
        reads(shown, runtime::toCurrency(Value(shown)).toPlainText(), amount.toPlainText());
    const Currency whole = Currency::fromScaled(amount.scaled() / 10'000 * 10'000); // some currencies show no decimals
    const QString money = runtime::FormatCurrency(Value(whole));
    if (runtime::toCurrency(Value(money)) != whole)
        reads(money, runtime::toCurrency(Value(money)).toPlainText(), whole.toPlainText());
}

void momentComesBack(const Date &moment)
{
    const QString shown = runtime::toText(Value(moment));
    if (runtime::toDate(Value(shown)) != moment)
        reads(shown, runtime::toDate(Value(shown)).toIsoText(), moment.toIsoText());
    if (Date::fromIsoText(moment.toIsoText()) != moment || Date::fromSerial(moment.toSerial()) != moment)
        found(u"the store's form of "_s + moment.toIsoText());
}

// What the conversion makes of a text; nothing when it refuses it by one of its own numbers.
template <class Convert> auto readBy(Convert convert, const QString &text) -> std::optional<decltype(convert(Value()))>
{
    try {
        return convert(Value(text));
    } catch (const runtime::RuntimeError &error) {
        if (error.number() != runtime::TypeMismatch && error.number() != runtime::Overflow)
            found(QString::fromUtf8(error.what()) + u": "_s + text);
        return std::nullopt;
    }
}

void textIsReadOrRefused(const QString &text)
{
    const auto number = readBy([](const Value &value) { return runtime::toDouble(value); }, text);
    if (number)
        numberComesBack(*number);
    if (number && !runtime::IsNumeric(Value(text)))
        found(u"in %1 a number that is not numeric: %2"_s.arg(QLocale().name(), text));
    const auto whole = readBy([](const Value &value) { return runtime::toLong(value); }, text);
    if (number && std::abs(*number) < 2'147'483'647 && whole != qint32(std::nearbyint(*number)))
        found(u"in %1 a number of which there is no whole one: %2"_s.arg(QLocale().name(), text));
    if (const auto amount = readBy([](const Value &value) { return runtime::toCurrency(value); }, text))
        amountComesBack(*amount);
    if (const auto moment = readBy([](const Value &value) { return runtime::toDate(value); }, text))
        momentComesBack(*moment);
    readBy([](const Value &value) { return runtime::toBoolean(value); }, text);
    readBy([](const Value &value) { return runtime::toInteger(value); }, text);
    runtime::Format(Value(text), u"00");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QList<QLocale> regions =
        QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory);
    FuzzedDataProvider input(data, size);
    QLocale::setDefault(regions[input.ConsumeIntegralInRange<qsizetype>(0, regions.size() - 1)]);
    const double number = input.ConsumeFloatingPoint<double>();
    if (std::isfinite(number))
        numberComesBack(number);
    amountComesBack(Currency::fromScaled(input.ConsumeIntegral<qint64>()));
    const QDate first(100, 1, 1);
    const QDate day = first.addDays(input.ConsumeIntegralInRange<qint64>(0, first.daysTo(QDate(9999, 12, 31))));
    momentComesBack(Date(day, QTime(0, 0).addSecs(input.ConsumeIntegralInRange(0, int(secondsOfADay) - 1))));
    textIsReadOrRefused(QString::fromUtf8(input.ConsumeRemainingBytesAsString()));
    return 0;
}
