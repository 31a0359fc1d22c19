// Texts that are numbers by the run-time's rule, read by the user's regional settings.
//
// Accepted: blanks round the number, one sign before or behind it, the currency sign (its code where the currency has
// no sign), thousands signs anywhere in the whole part (any kind of blank where it is a blank), the decimal sign, an
// exponent by E or D, brackets for a negative number, "&H1F" and "&O17". Empty and blank texts, per cents, dates and
// words are no numbers.
#pragma once

#include "platform/runtime/Currency.h"

namespace runtime {

// Empty when the text is no number.
std::optional<double> parseDouble(QStringView text);
// Exact to four decimals. Raises error 6 for an amount outside the range of Currency.
std::optional<Currency> parseCurrency(QStringView text);

} // namespace runtime
