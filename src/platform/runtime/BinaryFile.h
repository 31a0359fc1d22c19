// Binary files by their numbers, as the run-time has them: a handler takes the next free number, opens a file under it,
// reads or writes at positions that count bytes from 1, and closes the number.
//
// The table of open files belongs to the process. A number stays taken until CloseFile: a handler that fails on its way
// there leaves its file open. Error 52 for a number under which nothing is open, 63 for a position before the first
// byte. Trap: a file that was read bytewise is mapped into memory; no other program may shorten it while it is
// open.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QFile>
#include <QString>

namespace runtime {

enum class BinaryAccess { Read, ReadWrite };

// An open file.
class BinaryFile
{
public:
    // Opens the file; errors as OpenBinary.
    BinaryFile(const QString &path, BinaryAccess access);

    // In bytes.
    qint64 size() const { return m_file.size(); }
    // Reads as many bytes as the buffer has; where the file ends before, the rest of the buffer keeps its content.
    void get(qint64 position, QByteArray &buffer);
    // The whole file, mapped into memory so that reading it byte by byte is cheap. The view ends with the file, or when
    // bytes() is called again.
    QByteArrayView bytes();
    // Error 54 on a file that is open for reading, 61 when the disk is full, 57 when it fails otherwise.
    void put(qint64 position, const QByteArray &bytes);

private:
    void seek(qint64 position);

    QFile m_file;
    uchar *m_mapped = nullptr;
    QByteArray m_content; // what bytes() shows where the file system cannot map
};

// The lowest number from 1 to 511 that is not taken; error 67 when all are. It is not taken before a file is opened.
qint16 FreeFile();
// For reading and writing a missing file is made, and one that stands there keeps what it holds. Error 52 for a number
// outside 1 to 511, 55 for one that is taken, 53 for reading a missing file, 76 in a missing folder, 75 where the
// system refuses and for what is no plain file, 67 when the process may open no more.
void OpenBinary(const QString &path, qint16 handle, BinaryAccess access);
BinaryFile &openFile(qint16 handle);
void CloseFile(qint16 handle);

inline qint64 LOF(qint16 handle)
{
    return openFile(handle).size();
}
inline void Get(qint16 handle, qint64 position, QByteArray &buffer)
{
    openFile(handle).get(position, buffer);
}
inline void Put(qint16 handle, qint64 position, const QByteArray &bytes)
{
    openFile(handle).put(position, bytes);
}

} // namespace runtime
