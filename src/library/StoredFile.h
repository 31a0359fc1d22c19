// How a whole file goes into a binary field and comes out of it: what every window that keeps files does in its own
// handler.
//
// The stored value is the file and one zero byte, which nothing takes off again on the way out. Each file goes through
// the next free number. Whoever fails before it is closed leaves it open, as the run-time does, and the number taken.
// Errors: those of BinaryFile.h, and 94 for a field without a value.
#pragma once

#include "platform/data/Recordset.h"

#include <QByteArray>
#include <QString>

// On its way in: AppendChunk takes bytes() in one piece, close() comes after Update.
class FileToStore
{
public:
    explicit FileToStore(const QString &path);

    // The file's bytes and one zero byte. The field's pending value shares them.
    const QByteArray &bytes() const { return m_bytes; }
    void close() const;

private:
    qint16 m_handle;
    QByteArray m_bytes;
};

// Writes the field of the current row over the beginning of the file, which is made when there is none. What stood
// there beyond the written bytes stays. The file is opened first: a column that is missing (error 3265) leaves it made
// and open.
void fetchInto(data::Recordset &rows, QStringView column, const QString &path);

// Where the copy of a stored file goes in order to be opened, or to be scanned. The stored name decides alone: two
// versions of one name share a path.
QString temporaryPath(const QString &storedName);
QString scanPath(const QString &storedName);
