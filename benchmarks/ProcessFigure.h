// A figure of this process from the system, in bytes: its size now (VmRSS) or the largest ever (VmHWM).
#pragma once

#include <QByteArray>
#include <QFile>

#include <cstdio>
#include <cstdlib>

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
