// Texts that are dates by the run-time's rule, read by the user's regional settings.
//
// A day is given by numbers in the regional order (the other order is tried when that is impossible), as "yyyy-mm-dd",
// or with the name of a month; "/", "-", "." and blanks part its pieces. Two digits of a year mean 2000 to 2029 and
// 1930 to 1999; a missing year is this one. A time is "h:nn", "h:nn:ss" or "5 PM". Day and time come in either order.
#pragma once

#include "platform/runtime/Date.h"

namespace runtime {

std::optional<Date> parseDate(QStringView text);

} // namespace runtime
