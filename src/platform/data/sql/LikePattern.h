// Finds out which part of a LIKE pattern an index can search for, and which has to be compared row by row.
#pragma once

#include <QString>

namespace sql {

enum class PatternKind {
    Literal, // no wildcard: equality
    Any,     // "%": every value but Null
    Prefix,  // a text and "%": the texts from `lowest` on and before `beyond`, and no others
    Mixed    // anything else: store_like, within that range where there is one
};

struct LikePattern
{
    PatternKind kind = PatternKind::Mixed;
    // In lower case. Both are empty when no index can help; only `beyond` is for a pattern that begins outside ASCII,
    // whose range has no upper end.
    QString lowest;
    QString beyond;
};

LikePattern analyzedPattern(const QString &pattern);

} // namespace sql
