// Texts that are dates by the run-time's rule, read by the user's regional settings.
//
// What the region's own forms wrote (Regional.h) is read first and to the same value, also without its marks for the
// direction of writing and with plain blanks. Beside them people type: a day by numbers in the regional order (the
// other order is tried when that is impossible), as "yyyy-mm-dd", or with the name of a month, its pieces parted by
// "/", "-", ".", "," or blanks; two digits of a year mean 2000 to 2029 and 1930 to 1999, and a missing year is this
// one; a time as "h:nn", "h:nn:ss" or "5 PM". Day and time come in either order.
//
// Where a region parts times by a point, "10.05" and "10.05.33" are times, though a day could be typed so.
#pragma once

#include "platform/runtime/Date.h"

namespace runtime {

std::optional<Date> parseDate(QStringView text);

// Whether a text that is no date may still be a number of days. Not where it has the region's thousands sign, or the
// sign by which the region parts hours and minutes: a mistyped "31.02.99" or "22.60" is no day of another year.
bool mayCountDays(QStringView text);

} // namespace runtime
