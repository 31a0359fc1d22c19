// The workstation's clock, with a seam through which a test sets the time.
#pragma once

#include "platform/runtime/Date.h"

#include <QDateTime>

#include <functional>

namespace runtime {

// Seconds since midnight with their fraction; back to 0 at midnight.
double Timer();
// The present moment to the second.
Date clockNow();

// For tests: another clock; an empty function goes back to the system's.
void setClock(std::function<QDateTime()> clock);

} // namespace runtime
