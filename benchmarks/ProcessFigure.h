// Figures of this process from the system: its memory and its processor time.
#pragma once

#include <QByteArray>
#include <QFile>

#include <cstdio>
#include <cstdlib>
#include <sys/resource.h>

// In bytes: its size now (VmRSS) or the largest ever (VmHWM).
inline qint64 processFigure(const QByteArray &name)
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (status.open(QIODevice::ReadOnly)) {
        for (const QByteArray &line : status.readAll().split('\n')) {
            if (line.startsWith(name + ':'))
                return line.mid(name.size() + 1).trimmed().chopped(3).toLongLong() * 1024;
        }
    }
    std::fprintf(stderr, "This system does not tell %s\n", name.constData());
    std::exit(1);
}

// Of this process and of those that it has waited for.
inline double processorSeconds()
{
    double seconds = 0;
    for (const auto who : {RUSAGE_SELF, RUSAGE_CHILDREN}) {
        rusage usage{};
        getrusage(who, &usage);
        for (const timeval &spent : {usage.ru_utime, usage.ru_stime})
            seconds += double(spent.tv_sec) + double(spent.tv_usec) * 1e-6;
    }
    return seconds;
}
