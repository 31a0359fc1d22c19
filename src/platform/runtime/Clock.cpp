#include "platform/runtime/Clock.h"

#include <utility>

namespace runtime {

namespace {

std::function<QDateTime()> &replacement()
{
    static std::function<QDateTime()> clock;
    return clock;
}

QDateTime now()
{
    return replacement() ? replacement()() : QDateTime::currentDateTime();
}

} // namespace

double Timer()
{
    return now().time().msecsSinceStartOfDay() / 1000.0;
}

Date clockNow()
{
    const QDateTime moment = now();
    return Date(moment.date(), moment.time());
}

void setClock(std::function<QDateTime()> clock)
{
    replacement() = std::move(clock);
}

} // namespace runtime
