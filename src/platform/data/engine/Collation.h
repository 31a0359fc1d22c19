// How the store compares texts: without regard to case in all of Unicode, with regard to accents; trailing blanks
// count.
//
// An ASCII letter equals only its own other case, so that on ASCII texts the rule agrees with SQLite's NOCASE, on which
// the file's indexes stand. Order: by letters without accents first, then by accents, so that an accented name stands
// beside its plain fellow. All texts are UTF-8.
#pragma once

#include <QByteArrayView>

namespace data {

// Negative, zero or positive, as for sorting; zero for texts that count as equal.
int compareTexts(QByteArrayView a, QByteArrayView b);

// LIKE: "%" any run, "_" one character, "[abc]", "[a-z]" and "[^a]" one of a set, "[%]" the sign itself.
bool matchesLike(QByteArrayView pattern, QByteArrayView text);

} // namespace data
