// What a call gives, as text: its result or "error <number>", so that tables hold invalid rows beside valid ones.
#pragma once

#include "platform/runtime/RuntimeError.h"

#include <QString>

inline QString asText(const QString &text)
{
    return text;
}
inline QString asText(bool flag)
{
    return flag ? QStringLiteral("True") : QStringLiteral("False");
}
inline QString asText(int number)
{
    return QString::number(number);
}
inline QString asText(double number)
{
    return QString::number(number, 'g', 17);
}

template <class Call> QString outcomeOf(Call &&call)
{
    try {
        return asText(call());
    } catch (const runtime::RuntimeError &error) {
        return QStringLiteral("error %1").arg(error.number());
    }
}

// The number of the error that the call raises, 0 when it raises none.
template <class Call> int errorNumberOf(Call &&call)
{
    try {
        call();
        return 0;
    } catch (const runtime::RuntimeError &error) {
        return error.number();
    }
}

// "<number> <description>" of the error that the call raises; empty when it raises none.
template <class Call> QString errorOf(Call &&call)
{
    try {
        call();
    } catch (const runtime::RuntimeError &error) {
        return QString::number(error.number()) + QLatin1Char(' ') + error.description();
    }
    return {};
}
