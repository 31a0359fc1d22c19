// Appends the pieces of SQLite's SQL to a UTF-8 text.
#pragma once

#include <QByteArray>
#include <QStringView>

namespace sql {

void appendUtf8(QByteArray &sql, QStringView text);
// Between two of the quotes, those inside doubled.
void appendQuoted(QByteArray &sql, QStringView text, char quote);

inline void appendName(QByteArray &sql, QStringView name)
{
    appendQuoted(sql, name, '"');
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
