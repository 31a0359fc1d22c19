// What the fuzz targets share. A target feeds one input after another to a piece of the program and asks what must hold
// for each; libFuzzer grows the inputs by the branches that they reach. Built by the preset "fuzz", run by
// tests/proof/fuzz/run.
#pragma once

#include <QFile>

#include <cstdio>
#include <cstdlib>
#include <fuzzer/FuzzedDataProvider.h>

// Ends the run. libFuzzer keeps the input in a file "crash-...", by which the target repeats it.
[[noreturn]] inline void found(const QString &what)
{
    std::fprintf(stderr, "FOUND: %s\n", qPrintable(what));
    std::abort();
}

inline QString takenText(FuzzedDataProvider &input, size_t most)
{
    return QString::fromStdString(input.ConsumeRandomLengthString(most));
}

inline void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        found(QStringLiteral("cannot write ") + path);
}
