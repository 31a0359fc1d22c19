#include "platform/data/engine/Collation.h"

#include <QList>
#include <QString>

namespace data {

namespace {

constexpr char32_t foldedAscii(char32_t c)
{
    return c >= U'A' && c <= U'Z' ? c + 32 : c;
}

// The character in its one case. What folds to an ASCII letter without being one (the Kelvin sign, the long s) stays.
char32_t folded(char32_t c)
{
    if (c < 0x80)
        return foldedAscii(c);
    const char32_t lower = QChar::toCaseFolded(c);
    return lower < 0x80 ? c : lower;
}

bool isAscii(QByteArrayView text)
{
    for (const char c : text) {
        if (uchar(c) >= 0x80)
            return false;
    }
    return true;
}

int sign(qsizetype difference)
{
    return difference < 0 ? -1 : difference > 0 ? 1 : 0;
}

int compareAscii(QByteArrayView a, QByteArrayView b)
{
    const qsizetype common = qMin(a.size(), b.size());
    for (qsizetype at = 0; at < common; ++at) {
        const char32_t inA = foldedAscii(uchar(a[at]));
        const char32_t inB = foldedAscii(uchar(b[at]));
        if (inA != inB)
            return inA < inB ? -1 : 1;
    }
    return sign(a.size() - b.size());
}

QList<char32_t> foldedCharacters(QByteArrayView text)
{
    const QList<uint> characters = QString::fromUtf8(text).toUcs4();
    QList<char32_t> foldedOnes;
    foldedOnes.reserve(characters.size());
    for (const uint c : characters)
        foldedOnes << folded(c);
    return foldedOnes;
}

// The letter without its accents, where the character is composed of one.
char32_t base(char32_t c)
{
    if (c < 0x80)
        return foldedAscii(c); // the Kelvin sign is composed of a capital
    const QString parts = QChar::decomposition(c);
    const bool isCompatibility = QChar::decompositionTag(c) != QChar::Canonical;
    if (parts.isEmpty() || isCompatibility)
        return c;
    return base(parts.toUcs4().constFirst());
}

template <class Key> int compareBy(const QList<char32_t> &a, const QList<char32_t> &b, Key key)
{
    const qsizetype common = qMin(a.size(), b.size());
    for (qsizetype at = 0; at < common; ++at) {
        const char32_t inA = key(a[at]);
        const char32_t inB = key(b[at]);
        if (inA != inB)
            return inA < inB ? -1 : 1;
    }
    return sign(a.size() - b.size());
}

// One position of a pattern: a run, any character, a set or the character itself.
struct Likeness
{
    enum class Kind { Run, Any, Set, Same } kind = Kind::Same;
    char32_t character = 0;
    bool negated = false;
    QList<char32_t> set; // pairs: first and last of a range
};

// A bracket without its fellow stands for itself.
qsizetype readSet(const QList<char32_t> &pattern, qsizetype at, Likeness &out)
{
    qsizetype end = at + 1;
    if (end < pattern.size() && pattern[end] == U'^') {
        out.negated = true;
        ++end;
    }
    const qsizetype begin = end;
    while (end < pattern.size() && (pattern[end] != U']' || end == begin))
        ++end;
    if (end >= pattern.size())
        return at;
    out.kind = Likeness::Kind::Set;
    for (qsizetype in = begin; in < end; ++in) {
        const bool range = in + 2 < end && pattern[in + 1] == U'-';
        out.set << pattern[in] << pattern[range ? in + 2 : in];
        in += range ? 2 : 0;
    }
    return end;
}

QList<Likeness> likenessesOf(QByteArrayView pattern)
{
    const QList<char32_t> characters = foldedCharacters(pattern);
    QList<Likeness> parts;
    for (qsizetype at = 0; at < characters.size(); ++at) {
        Likeness part;
        part.character = characters[at];
        if (part.character == U'%')
            part.kind = Likeness::Kind::Run;
        else if (part.character == U'_')
            part.kind = Likeness::Kind::Any;
        else if (part.character == U'[')
            at = readSet(characters, at, part);
        parts << part;
    }
    return parts;
}

bool matchesOne(const Likeness &part, char32_t c)
{
    if (part.kind == Likeness::Kind::Any)
        return true;
    if (part.kind == Likeness::Kind::Same)
        return part.character == c;
    bool inSet = false;
    for (qsizetype at = 0; at + 1 < part.set.size(); at += 2)
        inSet = inSet || (c >= part.set[at] && c <= part.set[at + 1]);
    return inSet != part.negated;
}

} // namespace

int compareTexts(QByteArrayView a, QByteArrayView b)
{
    if (isAscii(a) && isAscii(b))
        return compareAscii(a, b);
    const QList<char32_t> inA = foldedCharacters(a);
    const QList<char32_t> inB = foldedCharacters(b);
    const int byLetters = compareBy(inA, inB, base);
    return byLetters ? byLetters : compareBy(inA, inB, [](char32_t c) { return c; });
}

bool matchesLike(QByteArrayView pattern, QByteArrayView text)
{
    const QList<Likeness> parts = likenessesOf(pattern);
    const QList<char32_t> characters = foldedCharacters(text);
    qsizetype part = 0;
    qsizetype at = 0;
    qsizetype runPart = -1; // where to go back to when what follows the last run fails
    qsizetype runAt = 0;
    while (at < characters.size()) {
        if (part < parts.size() && parts[part].kind == Likeness::Kind::Run) {
            runPart = part++;
            runAt = at;
        } else if (part < parts.size() && matchesOne(parts[part], characters[at])) {
            ++part;
            ++at;
        } else if (runPart >= 0) {
            part = runPart + 1;
            at = ++runAt;
        } else {
            return false;
        }
    }
    while (part < parts.size() && parts[part].kind == Likeness::Kind::Run)
        ++part;
    return part == parts.size();
}

} // namespace data
