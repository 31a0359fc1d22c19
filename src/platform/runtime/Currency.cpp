#include "platform/runtime/Currency.h"

#include "platform/runtime/RuntimeError.h"

#include <QtNumeric>

#include <cmath>
#include <limits>

namespace runtime {

namespace {

constexpr qint64 scale = 10'000;
constexpr int storedDecimals = 4;

// Appends a decimal digit; error 6 when the amount leaves its range.
void pushDigit(quint64 &scaled, int digit)
{
    constexpr quint64 limit = quint64(std::numeric_limits<qint64>::max()) + 1;
    if (scaled > (limit - quint64(digit)) / 10)
        throw RuntimeError(Overflow);
    scaled = scaled * 10 + quint64(digit);
}

qint64 withSign(quint64 scaled, bool negative)
{
    if (scaled > quint64(std::numeric_limits<qint64>::max()) + (negative ? 1 : 0))
        throw RuntimeError(Overflow);
    return negative ? qint64(0 - scaled) : qint64(scaled);
}

// The digits of a decimal number and where its point stands in them.
struct Decimal
{
    QString digits;
    qsizetype pointAt = 0;
    bool negative = false;
};

std::optional<Decimal> readDecimal(QStringView text)
{
    Decimal number;
    qsizetype at = 0;
    if (at < text.size() && (text[at] == u'-' || text[at] == u'+'))
        number.negative = text[at++] == u'-';
    bool pointSeen = false;
    const auto isDigit = [](QChar sign) { return sign >= u'0' && sign <= u'9'; };
    for (; at < text.size() && (isDigit(text[at]) || (text[at] == u'.' && !pointSeen)); ++at) {
        if (text[at] == u'.') {
            pointSeen = true;
            number.pointAt = number.digits.size();
        } else {
            number.digits += text[at];
        }
    }
    if (!pointSeen)
        number.pointAt = number.digits.size();
    if (number.digits.isEmpty())
        return std::nullopt;
    if (at < text.size() && (text[at] == u'e' || text[at] == u'E')) {
        bool ok = false;
        const int exponent = text.sliced(at + 1).toInt(&ok);
        if (!ok)
            return std::nullopt;
        number.pointAt += exponent;
        at = text.size();
    }
    return at == text.size() ? std::optional(number) : std::nullopt;
}

// Whether the digits from `at` on round the one before them up, halves going to the even neighbour.
bool roundsUp(const QString &digits, qsizetype at, bool odd)
{
    if (at < 0 || at >= digits.size() || digits[at] < u'5')
        return false;
    if (digits[at] > u'5')
        return true;
    for (qsizetype rest = at + 1; rest < digits.size(); ++rest) {
        if (digits[rest] != u'0')
            return true;
    }
    return odd;
}

} // namespace

Currency Currency::fromDouble(double amount)
{
    // Whole and fraction by themselves: their product with the scale would have more digits than a double.
    constexpr qint64 largestWhole = std::numeric_limits<qint64>::max() / scale;
    const double whole = std::trunc(amount);
    if (!(std::abs(whole) <= double(largestWhole)))
        throw RuntimeError(Overflow);
    const auto fraction = qint64(std::nearbyint((amount - whole) * double(scale)));
    qint64 scaled = 0;
    if (qAddOverflow(qint64(whole) * scale, fraction, &scaled))
        throw RuntimeError(Overflow);
    return fromScaled(scaled);
}

std::optional<Currency> Currency::fromPlainText(QStringView text)
{
    const std::optional<Decimal> number = readDecimal(text);
    if (!number)
        return std::nullopt;
    const qsizetype kept = number->pointAt + storedDecimals;
    quint64 scaled = 0;
    for (qsizetype at = 0; at < kept; ++at) {
        // Zeros before the first digit or behind the last one: an exponent may ask for very many of them.
        const int digit = at < number->digits.size() ? number->digits[at].digitValue() : 0;
        pushDigit(scaled, digit);
        if (scaled == 0 && at >= number->digits.size())
            break;
    }
    if (roundsUp(number->digits, kept, scaled % 2 == 1))
        ++scaled;
    return fromScaled(withSign(scaled, number->negative));
}

double Currency::toDouble() const
{
    return double(m_scaled) / double(scale);
}

QString Currency::toPlainText() const
{
    const bool negative = m_scaled < 0;
    const quint64 magnitude = negative ? 0 - quint64(m_scaled) : quint64(m_scaled);
    QString text = QString::number(magnitude / quint64(scale));
    if (const quint64 fraction = magnitude % quint64(scale)) {
        text += u'.' + QString::number(fraction).rightJustified(storedDecimals, u'0');
        while (text.endsWith(u'0'))
            text.chop(1);
    }
    return negative ? u'-' + text : text;
}

} // namespace runtime
