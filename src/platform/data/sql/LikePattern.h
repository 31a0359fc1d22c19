// A pattern of LIKE, taken apart: what of it an index can find, and what has to be looked at in each row.
#pragma once

#include <QString>

namespace sql {

enum class PatternKind {
    Literal, // no wildcard: equality
    Any,     // "%": whatever is not Null
    Prefix,  // a text and "%": exactly the range from `lowest` to below `beyond`
    Mixed    // store_like, within that range unless it is empty
};

struct LikePattern
{
    PatternKind kind = PatternKind::Mixed;
    // In lower case, ASCII; both empty when no index can help.
    QString lowest;
    QString beyond;
};

LikePattern takenApart(const QString &pattern);

} // namespace sql
