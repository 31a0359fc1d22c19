// The reader process (TableReader.h) from outside: starts it, takes what it writes, and ends it when it takes too long
// or writes too much.
#pragma once

#include <QByteArray>
#include <QProcess>
#include <QString>

namespace jet {

class ReaderProcess
{
public:
    // `tool` is this program. Time and output may grow with the size of the file.
    ReaderProcess(const QString &tool, const QString &file);
    ReaderProcess(const ReaderProcess &) = delete;
    ReaderProcess &operator=(const ReaderProcess &) = delete;
    ~ReaderProcess();

    // The next bytes, exactly so many. Raises RuntimeError 57 for a process that crashes, ends early, keeps us waiting
    // for longer than reading such a file can take, or writes more than such a file can hold; 18 when a stop was asked
    // for.
    QByteArray take(qsizetype size);

private:
    void waitForMore();

    QProcess m_process;
    qint64 m_waitedFor = 0; // milliseconds, all in all
    qint64 m_longestWait;
    qint64 m_outputLeft; // bytes
};

} // namespace jet
