// The data file, open, between two connections: what a connection closes waits here for the next one to the same file.
//
// Opening a file costs SQLite the reading of its definitions; the handlers of the windows open it anew each time. A
// waiting handle runs no statement, holds no transaction and no lock, and remembers no page of the file. A waiting
// handle is taken up only for a file that has not been touched since, by its device, inode, size and times and by what
// this user may do with it; else the file is opened as if nothing had waited, with the errors that this gives. Then
// SQLite itself looks whether another program has changed rows or definitions. A handle on which any call has failed
// does not wait. As many handles wait as were open at the same time, but no more than four, each with the memory that
// Handle::rest() allows; opening another file closes them, and the end of the process does.
#pragma once

#include "platform/data/engine/Database.h"

#include <QByteArray>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace data {

class WarmFile
{
public:
    // A file opened as by Database::open(), with its errors. The last reference to it gives it back.
    static std::shared_ptr<Database> open(const QString &path);

private:
    // How a file looks from outside.
    struct Look
    {
        quint64 device = 0;
        quint64 inode = 0;
        int access = 0; // what this user may do with it
        qint64 size = 0;
        qint64 written[2] = {}; // seconds and nanoseconds
        qint64 changed[2] = {}; // also of its permissions and names

        bool operator==(const Look &) const = default;
        bool isSameFile(const Look &other) const { return device == other.device && inode == other.inode; }
    };
    struct Waiting
    {
        std::unique_ptr<Database> file;
        Look look;
    };

    WarmFile() { m_waiting.reserve(mostWaiting); }
    std::optional<Look> look() const;
    std::unique_ptr<Database> takeUp(const Look &now);
    void giveBack(std::unique_ptr<Database> file, const Look &opened) noexcept;

    static constexpr size_t mostWaiting = 4;
    QString m_path;
    QByteArray m_name; // of the path, as the system takes it
    std::vector<Waiting> m_waiting;
};

} // namespace data
