// Pieces of SQLite's SQL, as UTF-8.
#pragma once

#include <QByteArray>
#include <QStringView>

#include <algorithm>

namespace sql {

// For UTF-16 and for UTF-8.
inline bool isAscii(QStringView text)
{
    return std::ranges::all_of(text, [](QChar c) { return c.unicode() < 0x80; });
}
inline bool isAscii(QByteArrayView text)
{
    return std::ranges::all_of(text, [](char c) { return uchar(c) < 0x80; });
}

void appendUtf8(QByteArray &sql, QStringView text);
// Puts the text between two quotes and doubles those inside.
void appendQuoted(QByteArray &sql, QStringView text, char quote);

inline void appendName(QByteArray &sql, QStringView name)
{
    appendQuoted(sql, name, '"');
}

inline QByteArray quotedName(QStringView name)
{
    QByteArray sql;
    appendName(sql, name);
    return sql;
}

inline void appendColumn(QByteArray &sql, QStringView qualifier, QStringView column)
{
    if (!qualifier.isEmpty()) {
        appendName(sql, qualifier);
        sql += '.';
    }
    appendName(sql, column);
}

} // namespace sql
