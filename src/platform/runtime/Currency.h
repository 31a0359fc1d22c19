// An amount of money, exact to four decimals, between -922,337,203,685,477.5808 and 922,337,203,685,477.5807.
//
// Raises error 6 (Overflow) for an amount outside; a fifth decimal is rounded half to even.
#pragma once

#include <QString>

#include <compare>
#include <optional>

namespace runtime {

class Currency
{
public:
    constexpr Currency() = default;
    static constexpr Currency fromScaled(qint64 tenThousandths)
    {
        Currency amount;
        amount.m_scaled = tenThousandths;
        return amount;
    }
    static Currency fromDouble(double amount);
    // Reads digits with an optional sign, "." as decimal sign and an optional exponent; empty when it is anything else.
    static std::optional<Currency> fromPlainText(QStringView text);

    // Ten-thousandths of the unit.
    constexpr qint64 scaled() const { return m_scaled; }
    double toDouble() const;
    // The shortest exact form with "." as decimal sign: "12.5", "-0.0001", "1200".
    QString toPlainText() const;

    friend constexpr auto operator<=>(const Currency &, const Currency &) = default;

private:
    qint64 m_scaled = 0;
};

} // namespace runtime
