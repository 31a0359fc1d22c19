// Values as texts by a pattern of digits and as amounts of money.
//
// Halves are rounded away from zero, unlike in every conversion. Error 13 for bytes, 5 for a pattern that is not known
// here, and from FormatCurrency what toCurrency raises.
#pragma once

#include "platform/runtime/Value.h"

namespace runtime {

// The whole number with at least as many digits as the pattern has zeros: "00" gives "05", "-05" and "123". The empty
// text for Null; a text that is no number stays as it is.
QString Format(const Value &value, QStringView pattern);

// The regional form of an amount with the regional number of decimals: "$1,234.50", "($1,234.50)". Exact.
QString FormatCurrency(const Value &value);

} // namespace runtime
