// What the reader process sends: the tables of a Jet file and their rows, with the bytes of each value as they are in
// the file.
//
// A stream is `mark` and then frames: a byte for the kind, the size in 4 bytes, and so many bytes. All numbers are
// little-endian and without sign but the last number given out. A text is UTF-8 and has its size in 2 bytes before it.
//   Begin    the number of rows that all tables declare (8)
//   Table    declared rows (4), last number given out (4), name (text), columns (2); for each column type (1),
//            whether it is a counter (1), scale (1), name (text)
//   Row      for each column 0 for nothing, 1 for Yes, or 2, the size (4) and the bytes
//   EndOfTable   the number of rows that were found (4)
//   Linked   name (text) of a table that lies in another file
//   Failure  why the file cannot be read further (text); nothing comes behind it
//   End      the number of tables (4); nothing comes behind it
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

namespace jet {

inline constexpr QByteArrayView mark = "TolmarkJet1";

enum class FrameKind : char {
    Begin = 'B',
    Table = 'T',
    Row = 'R',
    EndOfTable = 'E',
    Linked = 'L',
    Failure = 'F',
    End = 'Z',
};

// The numbers are those of the format.
enum class ColumnKind : quint8 {
    Boolean = 1,
    Byte = 2,
    Integer = 3,
    Long = 4,
    Currency = 5,
    Float = 6,
    Double = 7,
    Date = 8,
    Binary = 9,
    Text = 10,
    Ole = 11,
    Memo = 12,
    Guid = 15,
    Numeric = 16,
};

struct ColumnHead
{
    QString name;
    ColumnKind kind = ColumnKind::Text;
    bool isCounter = false;
    quint8 scale = 0; // of a Numeric: how many of its digits are decimals
};

struct TableHead
{
    QString name;
    quint32 declaredRows = 0;
    qint32 lastNumber = 0; // that the counter has given out
    QList<ColumnHead> columns;
};

// Nothing for Null and for a No; the Yes of a boolean is empty.
using CellBytes = std::optional<QByteArray>;

QByteArray beginFrame(quint64 rows);
QByteArray tableFrame(const TableHead &table);
QByteArray rowFrame(const QList<ColumnHead> &columns, const QList<CellBytes> &cells);
QByteArray endOfTableFrame(quint32 rows);
QByteArray linkedFrame(const QString &name);
QByteArray failureFrame(const QString &text);
QByteArray endFrame(quint32 tables);

} // namespace jet
