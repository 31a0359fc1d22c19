#include "datafile/jet/Frames.h"

#include <QtEndian>

namespace jet {

namespace {

template <class Number> void append(QByteArray &bytes, Number number)
{
    const Number little = qToLittleEndian(number);
    bytes.append(reinterpret_cast<const char *>(&little), sizeof little);
}

void appendText(QByteArray &bytes, const QString &text)
{
    const QByteArray utf8 = text.left(1000).toUtf8();
    append(bytes, quint16(utf8.size()));
    bytes += utf8;
}

QByteArray frame(FrameKind kind, const QByteArray &content)
{
    QByteArray bytes(1, char(kind));
    append(bytes, quint32(content.size()));
    return bytes + content;
}

template <class Number> QByteArray numberFrame(FrameKind kind, Number number)
{
    QByteArray content;
    append(content, number);
    return frame(kind, content);
}

QByteArray textFrame(FrameKind kind, const QString &text)
{
    QByteArray content;
    appendText(content, text);
    return frame(kind, content);
}

} // namespace

QByteArray beginFrame(quint64 rows)
{
    return numberFrame(FrameKind::Begin, rows);
}

QByteArray tableFrame(const TableHead &table)
{
    QByteArray content;
    append(content, table.declaredRows);
    append(content, table.lastNumber);
    appendText(content, table.name);
    append(content, quint16(table.columns.size()));
    for (const ColumnHead &column : table.columns) {
        content += char(column.kind);
        content += char(column.isCounter);
        content += char(column.scale);
        appendText(content, column.name);
    }
    return frame(FrameKind::Table, content);
}

QByteArray rowFrame(const QList<ColumnHead> &columns, const QList<CellBytes> &cells)
{
    QByteArray content;
    for (qsizetype i = 0; i < cells.size(); ++i) {
        if (!cells.at(i)) {
            content += '\0';
        } else if (columns.at(i).kind == ColumnKind::Boolean) {
            content += '\1';
        } else {
            content += '\2';
            append(content, quint32(cells.at(i)->size()));
            content += *cells.at(i);
        }
    }
    return frame(FrameKind::Row, content);
}

QByteArray endOfTableFrame(quint32 rows)
{
    return numberFrame(FrameKind::EndOfTable, rows);
}

QByteArray linkedFrame(const QString &name)
{
    return textFrame(FrameKind::Linked, name);
}

QByteArray failureFrame(const QString &text)
{
    return textFrame(FrameKind::Failure, text);
}

QByteArray endFrame(quint32 tables)
{
    return numberFrame(FrameKind::End, tables);
}

} // namespace jet
