#include "platform/runtime/NumberText.h"

#include "platform/runtime/Regional.h"

using namespace Qt::Literals::StringLiterals;

namespace runtime {

namespace {

// "&H1F" and "&O17": a value of up to 16 bits is a signed 16-bit number, a longer one a signed 32-bit number.
std::optional<QString> plainRadixNumber(QStringView text)
{
    if (text.size() < 3 || text[0] != u'&')
        return std::nullopt;
    const QChar mark = text[1].toUpper();
    const int base = mark == u'H' ? 16 : mark == u'O' ? 8 : 0;
    if (base == 0 || !text[2].isLetterOrNumber() || text.contains(u'x', Qt::CaseInsensitive)) // Qt reads 0x too
        return std::nullopt;
    bool ok = false;
    const quint32 bits = text.sliced(2).toUInt(&ok, base);
    if (!ok)
        return std::nullopt;
    return QString::number(bits <= 0xffff ? qint32(qint16(bits)) : qint32(bits));
}

struct Trimmings
{
    QStringView rest;
    bool negative = false;
    bool valid = true;
};

// Takes off what may stand round the digits: sign, currency sign and brackets, each at most once.
Trimmings trimmed(QStringView text, const QString &currencySign)
{
    Trimmings out{text.trimmed()};
    bool sign = false;
    bool currency = false;
    if (out.rest.size() > 2 && out.rest.front() == u'(' && out.rest.back() == u')') {
        out.negative = sign = true;
        out.rest = out.rest.sliced(1, out.rest.size() - 2).trimmed();
    }
    for (bool again = true; again && !out.rest.isEmpty();) {
        const auto signAt = [&](QChar c) { return c == u'-' || c == u'+'; };
        if (!sign && signAt(out.rest.front())) {
            out.negative = out.rest.front() == u'-';
            out.rest = out.rest.sliced(1).trimmed();
            sign = true;
        } else if (!sign && signAt(out.rest.back())) {
            out.negative = out.rest.back() == u'-';
            out.rest = out.rest.chopped(1).trimmed();
            sign = true;
        } else if (!currency && out.rest.startsWith(currencySign)) {
            out.rest = out.rest.sliced(currencySign.size()).trimmed();
            currency = true;
        } else if (!currency && out.rest.endsWith(currencySign)) {
            out.rest = out.rest.chopped(currencySign.size()).trimmed();
            currency = true;
        } else {
            again = false;
        }
    }
    out.valid = !out.rest.isEmpty();
    return out;
}

// The one that amounts are shown with: a currency without a sign has its code.
QString currencySign(const QLocale &locale)
{
    const QString sign = locale.currencySymbol();
    return plainlyTyped(sign.isEmpty() ? locale.currencySymbol(QLocale::CurrencyIsoCode) : sign);
}

std::optional<QString> plainDigits(QStringView text, const QString &decimalSign, const QString &groupSign)
{
    QString plain;
    qsizetype at = 0;
    int digits = 0;
    bool pointSeen = false;
    while (at < text.size()) {
        const QStringView rest = text.sliced(at);
        if (rest.front() >= u'0' && rest.front() <= u'9') {
            plain += rest.front();
            ++digits;
            ++at;
        } else if (!pointSeen && rest.startsWith(decimalSign)) {
            pointSeen = true;
            plain += u'.';
            at += decimalSign.size();
        } else if (!pointSeen && digits > 0 && !groupSign.isEmpty() && rest.startsWith(groupSign)) {
            at += groupSign.size();
        } else {
            break;
        }
    }
    if (digits == 0)
        return std::nullopt;
    if (at < text.size()) {
        const QChar mark = text[at].toUpper();
        bool ok = false;
        const int exponent = mark == u'E' || mark == u'D' ? text.sliced(at + 1).toInt(&ok) : 0;
        if (!ok || text.sliced(at + 1).contains(u' '))
            return std::nullopt;
        plain += u'e' + QString::number(exponent);
    }
    return plain;
}

// The number in the plain form "-1200.50e3".
std::optional<QString> plainNumber(QStringView text)
{
    const QString typed = plainlyTyped(text);
    if (auto radix = plainRadixNumber(QStringView(typed).trimmed()))
        return radix;
    const QLocale locale = regional();
    const Trimmings number = trimmed(typed, currencySign(locale));
    if (!number.valid)
        return std::nullopt;
    auto plain = plainDigits(number.rest, plainlyTyped(locale.decimalPoint()), plainlyTyped(locale.groupSeparator()));
    if (plain && number.negative)
        plain->prepend(u'-');
    return plain;
}

} // namespace

std::optional<double> parseDouble(QStringView text)
{
    const auto plain = plainNumber(text);
    return plain ? std::optional(plain->toDouble()) : std::nullopt;
}

std::optional<Currency> parseCurrency(QStringView text)
{
    const auto plain = plainNumber(text);
    return plain ? Currency::fromPlainText(*plain) : std::nullopt;
}

} // namespace runtime
