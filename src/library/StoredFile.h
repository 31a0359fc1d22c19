// How a whole file goes into a binary field and comes out of it, for every window that stores files.
//
// The stored value is the file and one zero byte, which is not removed when the file is written out again. Each file is
// opened under the next free number; a failure before it is closed leaves it open and the number taken.
// Errors: those of BinaryFile.h, and 94 for a field without a value.
#pragma once

#include "platform/data/Recordset.h"
#include "platform/desktop/LongWork.h"

#include <QByteArray>
#include <QString>

// Reads a file to be stored: pass bytes() to AppendChunk in one piece, and close() after Update. While it lives the
// upload is shown as long work.
class FileToStore
{
public:
    explicit FileToStore(const QString &path);

    // The file's bytes and one zero byte. The field's pending value shares them.
    const QByteArray &bytes() const { return m_bytes; }
    void close() const;

private:
    desktop::LongWork m_work;
    qint16 m_handle;
    QByteArray m_bytes;
};

// Writes the field of the current row over the beginning of the file, which is made when there is none. What stood
// there beyond the written bytes stays. The file is opened first: a column that is missing (error 3265) leaves it made
// and open.
void fetchInto(data::Recordset &rows, QStringView column, const QString &path);

// Where the copy of a stored file goes in order to be opened, or to be scanned. The stored name decides alone: two
// versions of one name share a path. Error 75 for a name that is no plain file name, so that a data file cannot lead
// out of the folder, and where a link stands at that place.
QString temporaryPath(const QString &storedName);
QString scanPath(const QString &storedName);
