#include "datafile/jet/ReaderProcess.h"

#include "datafile/Progress.h"
#include "datafile/jet/TableReader.h"
#include "platform/runtime/RuntimeError.h"

#include <QElapsedTimer>
#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace jet {

namespace {

constexpr qint64 mebibyte = 1024 * 1024;
constexpr qint64 leastWait = 5000;      // milliseconds; a file of some MiB takes some hundredths of a second
constexpr qint64 waitForMebibyte = 500; // milliseconds, from a slow disk
constexpr qint64 outputForByte = 40;    // a row of Yes and No alone takes a bit there and a byte here
constexpr int betweenLooks = 100;       // milliseconds, at whether a stop was asked for

[[noreturn]] void failToRead(const QString &text)
{
    throw runtime::RuntimeError(runtime::DeviceError, text);
}

} // namespace

ReaderProcess::ReaderProcess(const QString &tool, const QString &file)
{
    const qint64 size = QFileInfo(file).size();
    m_longestWait = leastWait + size / mebibyte * waitForMebibyte;
    m_outputLeft = mebibyte + size * outputForByte;
    m_process.setStandardErrorFile(QProcess::nullDevice()); // libmdb's warnings: what they are about is checked here
    m_process.setStandardInputFile(QProcess::nullDevice());
    m_process.start(tool, {QString::fromLatin1(readerArgument), QFileInfo(file).absoluteFilePath(),
                           QString::number(m_longestWait / 1000)});
}

ReaderProcess::~ReaderProcess()
{
    m_process.kill();
    m_process.waitForFinished();
}

void ReaderProcess::waitForMore()
{
    QElapsedTimer waiting;
    waiting.start();
    const qint64 before = m_process.bytesAvailable();
    m_process.waitForReadyRead(betweenLooks);
    m_waitedFor += waiting.elapsed();
    if (datafile::isStopAsked())
        throw runtime::RuntimeError(datafile::Interrupted, u"interrupted"_s);
    if (m_process.bytesAvailable() > before)
        return;
    if (m_waitedFor > m_longestWait)
        failToRead(u"reading it takes longer than %1 s: the file is damaged"_s.arg(m_longestWait / 1000));
    if (m_process.state() == QProcess::NotRunning)
        failToRead(m_process.exitStatus() == QProcess::CrashExit && m_process.error() != QProcess::FailedToStart
                       ? u"the process that reads it crashed: the file is damaged"_s
                       : u"the process that reads it ended early (%1)"_s.arg(m_process.errorString()));
}

QByteArray ReaderProcess::take(qsizetype size)
{
    if (size > m_outputLeft || size > qsizetype(readerMemory)) // it has each frame whole before it sends it
        failToRead(u"more would be read from it than such a file can hold: the file is damaged"_s);
    m_outputLeft -= size;
    while (m_process.bytesAvailable() < size)
        waitForMore();
    return m_process.read(size);
}

} // namespace jet
