// Literals of the dialect, from their written form (texts and dates with their quotes) to their value.
#pragma once

#include "platform/runtime/Value.h"

#include <QStringView>

#include <optional>

namespace sql {

// Without the quotes, doubled closing quotes made one.
QString textValue(QStringView written);
// A whole number of 32 bits, or a floating-point number for any other.
runtime::Value numberValue(QStringView written, bool negative);
// #m/d/yyyy# (day and month swapped when the month is impossible) or #yyyy-mm-dd#, a time of day, or both.
std::optional<runtime::Date> dateValue(QStringView written);

} // namespace sql
