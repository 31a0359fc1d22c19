// The values of the dialect's literals, given as the statement has them: texts with their quotes, dates with their "#".
#pragma once

#include "platform/runtime/Value.h"

#include <QStringView>

#include <optional>

namespace sql {

// The text between the quotes; a quote that is doubled inside stands for one.
QString textValue(QStringView literal);
// A qint32 for a whole number of 32 bits, a double for any other.
runtime::Value numberValue(QStringView literal, bool negative);
// #m/d/yyyy# (day and month swapped when the month is impossible) or #yyyy-mm-dd#, a time of day, or both.
std::optional<runtime::Date> dateValue(QStringView literal);

} // namespace sql
