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

// Puts a clock of the caller's in place of the system's; an empty function puts the system's back.
void setClock(std::function<QDateTime()> clock);

} // namespace runtime
