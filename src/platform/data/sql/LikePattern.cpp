#include "platform/data/sql/LikePattern.h"

namespace sql {

namespace {

bool isWildcard(QChar c)
{
    return c == u'%' || c == u'_' || c == u'[';
}

// The range ends before the next character. Behind "@" comes "A", which NOCASE sorts as "a", so that the range of "@"
// would take in the signs between the capital and the small letters. 0x7F has no successor in ASCII.
bool hasSuccessor(QChar c)
{
    return c != u'@' && c.unicode() < 0x7F;
}

} // namespace

LikePattern analyzedPattern(const QString &pattern)
{
    LikePattern parts;
    qsizetype plain = 0;
    while (plain < pattern.size() && !isWildcard(pattern[plain]))
        ++plain;
    if (plain == pattern.size())
        return {PatternKind::Literal, {}, {}};
    qsizetype run = plain;
    while (run < pattern.size() && pattern[run] == u'%')
        ++run;
    const bool endsInRun = run == pattern.size();
    if (plain == 0 && endsInRun)
        return {PatternKind::Any, {}, {}};

    qsizetype usable = 0;
    while (usable < plain && pattern[usable].unicode() < 0x80)
        ++usable;
    while (usable > 0 && !hasSuccessor(pattern[usable - 1]))
        --usable;
    if (usable > 0) {
        parts.lowest = pattern.first(usable).toLower();
        parts.beyond = parts.lowest;
        parts.beyond.back() = QChar(char16_t(parts.lowest.back().unicode() + 1));
    }
    // No letter of ASCII counts as equal to one outside, so that the texts lie behind all those that begin with ASCII.
    if (plain > 0 && pattern[0].unicode() >= 0x80)
        parts.lowest = QChar(0x80);
    parts.kind = endsInRun && usable == plain ? PatternKind::Prefix : PatternKind::Mixed;
    return parts;
}

} // namespace sql
