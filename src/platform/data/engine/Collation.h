// How the store compares texts: upper and lower case are equal in all of Unicode, letters with and without accents
// differ, trailing blanks count.
//
// On ASCII texts this is SQLite's NOCASE, the collation of the file's indexes; so no other character equals an ASCII
// letter. Texts are ordered by their letters without accents first and then by the accents, so that "Élan" stands
// beside "Elan". All texts are UTF-8. Both functions may raise std::bad_alloc.
#pragma once

#include <QByteArrayView>

namespace data {

// Negative, zero or positive, as for sorting; zero for texts that count as equal.
int compareTexts(QByteArrayView a, QByteArrayView b);

// Set when a comparison inside SQLite lacked memory: the statement that asked for it fails.
extern thread_local bool comparisonFailed;

// LIKE: "%" any run, "_" one character, "[abc]", "[a-z]" and "[^a]" one of a set, "[%]" the sign itself.
bool matchesLike(QByteArrayView pattern, QByteArrayView text);

} // namespace data
