#include "platform/data/engine/Collation.h"

#include "platform/data/sql/SqlText.h"

#include <QList>
#include <QString>

namespace data {

namespace {

constexpr char32_t foldedAscii(char32_t c)
{
    return c >= U'A' && c <= U'Z' ? c + 32 : c;
}

// The character in the case by which texts compare. The Kelvin sign and the long s would become ASCII letters, which
// the file's indexes do not take them for: they stay as they are.
char32_t folded(char32_t c)
{
    if (c < 0x80)
        return foldedAscii(c);
    const char32_t lower = QChar::toCaseFolded(c);
    return lower < 0x80 ? c : lower;
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

// The letter without its accents; another character as it is.
char32_t base(char32_t c)
{
    if (c < 0x80)
        return foldedAscii(c); // may be a capital: the Kelvin sign decomposes into one
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

// One element of a pattern: any run of characters, any one character, one of a set, or one certain character.
struct PatternElement
{
    enum class Kind { Run, Any, Set, Same } kind = Kind::Same;
    char32_t character = 0;
    bool negated = false;
    QList<char32_t> set; // pairs: first and last of a range
};

// Reads a set that opens at `at` and returns where it closes. An opening bracket that is not closed is a plain
// character: then `at` is returned.
qsizetype readSet(const QList<char32_t> &pattern, qsizetype at, PatternElement &out)
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
    out.kind = PatternElement::Kind::Set;
    for (qsizetype in = begin; in < end; ++in) {
        const bool range = in + 2 < end && pattern[in + 1] == U'-';
        out.set << pattern[in] << pattern[range ? in + 2 : in];
        in += range ? 2 : 0;
    }
    return end;
}

QList<PatternElement> elementsOf(QByteArrayView pattern)
{
    const QList<char32_t> characters = foldedCharacters(pattern);
    QList<PatternElement> parts;
    for (qsizetype at = 0; at < characters.size(); ++at) {
        PatternElement part;
        part.character = characters[at];
        if (part.character == U'%')
            part.kind = PatternElement::Kind::Run;
        else if (part.character == U'_')
            part.kind = PatternElement::Kind::Any;
        else if (part.character == U'[')
            at = readSet(characters, at, part);
        parts << part;
    }
    return parts;
}

bool matchesOne(const PatternElement &part, char32_t c)
{
    if (part.kind == PatternElement::Kind::Any)
        return true;
    if (part.kind == PatternElement::Kind::Same)
        return part.character == c;
    bool inSet = false;
    for (qsizetype at = 0; at + 1 < part.set.size(); at += 2)
        inSet = inSet || (c >= part.set[at] && c <= part.set[at + 1]);
    return inSet != part.negated;
}

} // namespace

int compareTexts(QByteArrayView a, QByteArrayView b)
{
    if (sql::isAscii(a) && sql::isAscii(b))
        return compareAscii(a, b);
    const QList<char32_t> inA = foldedCharacters(a);
    const QList<char32_t> inB = foldedCharacters(b);
    const int byLetters = compareBy(inA, inB, base);
    return byLetters ? byLetters : compareBy(inA, inB, [](char32_t c) { return c; });
}

bool matchesLike(QByteArrayView pattern, QByteArrayView text)
{
    const QList<PatternElement> parts = elementsOf(pattern);
    const QList<char32_t> characters = foldedCharacters(text);
    qsizetype part = 0;
    qsizetype at = 0;
    qsizetype runPart = -1; // the last run so far; it takes one character more when what follows it does not match
    qsizetype runAt = 0;
    while (at < characters.size()) {
        if (part < parts.size() && parts[part].kind == PatternElement::Kind::Run) {
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
    while (part < parts.size() && parts[part].kind == PatternElement::Kind::Run)
        ++part;
    return part == parts.size();
}

} // namespace data
