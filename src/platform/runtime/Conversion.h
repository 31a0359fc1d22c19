// How values become other types. Each function raises error 94 for Null, 13 for a value that has no such form and 6 for
// a number outside the type; numbers are rounded half to even, texts are read by the user's regional settings.
#pragma once

#include "platform/runtime/Value.h"

namespace runtime {

bool toBoolean(const Value &value);
// Signed 16-bit.
qint16 toInteger(const Value &value);
// Signed 32-bit.
qint32 toLong(const Value &value);
double toDouble(const Value &value);
// 32-bit floating point.
float toSingle(const Value &value);
Currency toCurrency(const Value &value);
Date toDate(const Value &value);
// True and False, regional short date and long time, up to 15 digits of a number with the regional decimal sign.
QString toText(const Value &value);
QString toText(Value &&value);

// Up to 7 digits, otherwise as toText gives a number.
QString singleText(float number);

// Whether the value is a number, a Boolean, or a text that can be read as a number. Raises nothing.
bool IsNumeric(const Value &value);

// Error 6 where the sum is no 32-bit number.
qint32 sum(qint32 left, qint32 right);

// The value's text, the empty text for Null: what joining it to a text gives.
QString joinedText(const Value &value);

} // namespace runtime
