// A value of 100 MB on its way into the store and out of it: through a recordset, and through the C API.
#pragma once

#include "benchmarks/Files.h"
#include "benchmarks/RawStore.h"
#include "platform/data/Recordset.h"

namespace largevalue {

constexpr qint64 bytes = 100'000'000;

inline QByteArray content()
{
    return QByteArray(bytes, 'a');
}

inline void appendOurs(data::Connection &connection, const QByteArray &content)
{
    data::Recordset attachments;
    attachments.Open(QStringLiteral("select * from Attachments"), connection);
    attachments.AddNew();
    attachments[u"Attachments"].AppendChunk(content);
    attachments.Update();
    attachments.Close();
}

inline void appendFloor(const raw::File &file, const QByteArray &content)
{
    const raw::Statement insert(file, "INSERT INTO Attachments (Attachments) VALUES (?1)");
    sqlite3_bind_blob(insert.get(), 1, content.constData(), int(content.size()), SQLITE_STATIC);
    insert.step();
}

// The file's one row holds the value.
inline QByteArray readOurs(data::Connection &connection)
{
    data::Recordset attachments;
    attachments.Open(QStringLiteral("select * from Attachments"), connection);
    const data::Field field = attachments[u"Attachments"];
    runtime::Value chunk = attachments[u"Attachments"].GetChunk(field.ActualSize());
    attachments.Close();
    return std::move(chunk).get<QByteArray>();
}

inline QByteArray readFloor(const raw::File &file)
{
    const raw::Statement select(file, "SELECT Attachments FROM Attachments");
    select.step();
    const void *blob = sqlite3_column_blob(select.get(), 0);
    return {static_cast<const char *>(blob), sqlite3_column_bytes(select.get(), 0)};
}

// A file whose one attachment is the value.
inline QString fileWithValue()
{
    const QString path = files::empty(QStringLiteral("value.mdb"));
    const raw::File file(path);
    const raw::Statement count(file, "SELECT COUNT(*) FROM Attachments");
    count.step();
    if (sqlite3_column_int(count.get(), 0) == 0)
        appendFloor(file, content());
    return path;
}

} // namespace largevalue
