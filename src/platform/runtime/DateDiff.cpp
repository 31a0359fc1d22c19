#include "platform/runtime/DateDiff.h"

#include "platform/runtime/RuntimeError.h"

#include <limits>

namespace runtime {

namespace {

// Units that ended before the moment, counted from day 0; rounded towards the past, so that days before it count alike.
qint64 unitsUpTo(const Date &moment, qint64 secondsInUnit)
{
    const qint64 seconds = moment.seconds();
    return seconds / secondsInUnit - (seconds % secondsInUnit < 0 ? 1 : 0);
}

// The number of the unit in which the moment lies.
qint64 ordinal(QStringView interval, const Date &moment)
{
    const auto is = [interval](QStringView name) { return interval.compare(name, Qt::CaseInsensitive) == 0; };
    if (is(u"s"))
        return moment.seconds();
    if (is(u"n"))
        return unitsUpTo(moment, 60);
    if (is(u"h"))
        return unitsUpTo(moment, 60 * 60);
    if (is(u"d"))
        return unitsUpTo(moment, 24 * 60 * 60);
    if (is(u"m"))
        return moment.day().year() * 12 + moment.day().month();
    if (is(u"yyyy"))
        return moment.day().year();
    throw RuntimeError(InvalidProcedureCall);
}

} // namespace

qint32 DateDiff(QStringView interval, const Date &from, const Date &to)
{
    const qint64 count = ordinal(interval, to) - ordinal(interval, from);
    if (count < std::numeric_limits<qint32>::min() || count > std::numeric_limits<qint32>::max())
        throw RuntimeError(Overflow);
    return qint32(count);
}

} // namespace runtime
