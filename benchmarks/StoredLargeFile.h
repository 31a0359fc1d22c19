// A file of 200 MB on its way into the store and out of it: as the windows' handlers do it, and through the C API with
// the plain reading or writing of the file.
#pragma once

#include "benchmarks/Files.h"
#include "benchmarks/RawFiles.h"
#include "benchmarks/RawStore.h"
#include "library/StoredFile.h"

#include <QFileInfo>

#include <memory>

namespace largefile {

constexpr qint64 bytes = 200'000'000;

// Written piece by piece, so that making it takes no memory to speak of.
inline QString file()
{
    const QString path = files::folder() + QStringLiteral("/large.bin");
    if (!QFileInfo::exists(path)) {
        for (qint64 at = 0; at < bytes; at += 1'000'000)
            raw::writeFile(path, QByteArray(1'000'000, char(at / 1'000'000)), at);
    }
    return path;
}

inline void storeOurs(const QString &store)
{
    data::Connection connection;
    connection.Open(files::connectionString(store));
    data::Recordset attachments;
    attachments.Open(QStringLiteral("select * from Attachments"), connection);
    attachments.AddNew();
    const FileToStore content(file());
    attachments[u"Attachments"].AppendChunk(content.bytes());
    attachments.Update();
    content.close();
}

inline void storeFloor(const QString &store)
{
    const raw::File database(store);
    const raw::Statement insert(database, "INSERT INTO Attachments (Attachments) VALUES (?1)");
    const std::unique_ptr<char[]> content(new char[bytes + 1]);
    raw::readFile(file(), content.get(), bytes);
    content[bytes] = '\0';
    sqlite3_bind_blob(insert.get(), 1, content.get(), int(bytes + 1), SQLITE_STATIC);
    insert.step();
}

// A store whose one attachment is the file.
inline QString storeWithFile()
{
    const QString store = files::empty(QStringLiteral("fetched.mdb"));
    if (QFileInfo(store).size() < bytes)
        storeFloor(store);
    return store;
}

inline QString target()
{
    return files::folder() + QStringLiteral("/fetched.bin");
}

inline void fetchOurs(const QString &store)
{
    data::Connection connection;
    connection.Open(files::connectionString(store));
    data::Recordset attachments;
    attachments.Open(QStringLiteral("select * from Attachments"), connection);
    fetchInto(attachments, u"Attachments", target());
}

inline void fetchFloor(const QString &store)
{
    const raw::File database(store);
    const raw::Statement select(database, "SELECT Attachments FROM Attachments");
    select.step();
    const auto *blob = static_cast<const char *>(sqlite3_column_blob(select.get(), 0));
    raw::writeFile(target(), {blob, sqlite3_column_bytes(select.get(), 0)});
}

} // namespace largefile
