// Reads what Frames.h describes, and believes none of it: what comes from the reader process may be what a damaged or
// hostile file made of it.
#pragma once

#include "datafile/jet/Frames.h"

#include <QStringList>

#include <functional>

namespace jet {

class FrameReader
{
public:
    // `take` delivers so many bytes as it is asked for, or raises a RuntimeError. Every failure is a RuntimeError 57
    // whose text tells the table and row where it came up.
    using Take = std::function<QByteArray(qsizetype size)>;
    explicit FrameReader(Take take);

    // The number of rows that all tables declare; for telling how far the work is, and no more.
    quint64 expectedRows() const { return m_expectedRows; }
    // The next table; nothing behind the last one. The rows of the one before have all been read.
    std::optional<TableHead> nextTable();
    // The next row of the table, a cell for each column; nothing behind the last one. Raises 57 unless there were as
    // many rows as the table declares and the reader has counted.
    std::optional<QList<CellBytes>> nextRow();
    // The row that was read last, from 1 on.
    quint32 row() const { return m_row; }
    // Tables that lie in other files; complete behind the last table.
    const QStringList &linkedTables() const { return m_linked; }

private:
    struct Frame
    {
        FrameKind kind;
        QByteArray content;
    };
    Frame nextFrame();
    QList<CellBytes> cellsOf(QByteArrayView content) const;
    [[noreturn]] void fail(const QString &text) const;

    Take m_take;
    quint64 m_expectedRows = 0;
    TableHead m_table; // its name is empty between tables
    quint32 m_row = 0;
    quint32 m_tables = 0;
    QStringList m_linked;
};

} // namespace jet
