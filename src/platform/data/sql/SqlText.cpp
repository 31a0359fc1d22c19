#include "platform/data/sql/SqlText.h"

namespace sql {

void appendUtf8(QByteArray &sql, QStringView text)
{
    const qsizetype begin = sql.size(); // nearly every text is ASCII, which takes one byte a character
    sql.resize(begin + text.size());
    char *out = sql.data() + begin;
    for (qsizetype at = 0; at < text.size(); ++at) {
        const char16_t c = text[at].unicode();
        if (c >= 0x80) {
            sql.truncate(begin + at);
            sql += text.sliced(at).toUtf8();
            return;
        }
        *out++ = char(c);
    }
}

void appendQuoted(QByteArray &sql, QStringView text, char quote)
{
    sql += quote;
    const QLatin1Char mark(quote);
    qsizetype inside = text.indexOf(mark);
    while (inside >= 0) {
        appendUtf8(sql, text.first(inside + 1));
        sql += quote;
        text = text.sliced(inside + 1);
        inside = text.indexOf(mark);
    }
    appendUtf8(sql, text);
    sql += quote;
}

} // namespace sql
