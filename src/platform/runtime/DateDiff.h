// The time from one moment to another, counted by the boundaries that are crossed between them.
#pragma once

#include "platform/runtime/Date.h"

namespace runtime {

// The interval is "yyyy", "m", "d", "h", "n" (minutes) or "s"; from 10:00:59 to 10:01:00 is one "n". Negative when `to`
// is the earlier one. Error 5 for another interval, 6 for a count outside 32 bits.
qint32 DateDiff(QStringView interval, const Date &from, const Date &to);

} // namespace runtime
