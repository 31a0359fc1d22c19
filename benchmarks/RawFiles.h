// Plain reading and writing as the floors do it; a failure ends the program.
#pragma once

#include <QByteArrayView>
#include <QString>

#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

namespace raw {

inline void require(bool good)
{
    if (good)
        return;
    std::perror("The benchmark failed");
    std::abort();
}

// Over the file's bytes from the position on; what stands behind them stays.
inline void writeFile(const QString &path, QByteArrayView bytes, qint64 position = 0)
{
    const int file = open(path.toUtf8().constData(), O_WRONLY | O_CREAT, 0600);
    require(file >= 0);
    while (!bytes.isEmpty()) {
        const ssize_t written = pwrite(file, bytes.data(), size_t(bytes.size()), position);
        require(written > 0);
        bytes = bytes.sliced(written);
        position += written;
    }
    close(file);
}

inline void readFile(const QString &path, char *bytes, qint64 count)
{
    const int file = open(path.toUtf8().constData(), O_RDONLY);
    require(file >= 0);
    while (count > 0) {
        const ssize_t taken = read(file, bytes, size_t(count));
        require(taken > 0);
        bytes += taken;
        count -= taken;
    }
    close(file);
}

} // namespace raw
