#include "platform/data/engine/Collation.h"

#include "platform/data/sql/SqlText.h"

#include <QList>
#include <QString>
#include <QStringDecoder>

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

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

// In containers of the standard library, which raise std::bad_alloc when memory is refused. Some of Qt's go on with a
// null pointer then, others end the process.
std::u32string foldedCharacters(QByteArrayView text)
{
    QStringDecoder fromUtf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    std::vector<QChar> units(size_t(fromUtf8.requiredSpace(text.size())));
    units.resize(size_t(fromUtf8.appendToBuffer(units.data(), text) - units.data()));
    std::u32string characters;
    characters.reserve(units.size());
    for (size_t at = 0; at < units.size(); ++at) {
        const bool isPair = units[at].isHighSurrogate() && at + 1 < units.size() && units[at + 1].isLowSurrogate();
        characters += folded(isPair ? QChar::surrogateToUcs4(units[at], units[at + 1]) : units[at].unicode());
        at += isPair ? 1 : 0;
    }
    return characters;
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

template <class Key> int compareBy(const std::u32string &a, const std::u32string &b, Key key)
{
    const size_t common = std::min(a.size(), b.size());
    for (size_t at = 0; at < common; ++at) {
        const char32_t inA = key(a[at]);
        const char32_t inB = key(b[at]);
        if (inA != inB)
            return inA < inB ? -1 : 1;
    }
    return sign(qsizetype(a.size()) - qsizetype(b.size()));
}

// One element of a pattern: any run of characters, any one character, one of a set, or one certain character.
struct PatternElement
{
    enum class Kind { Run, Any, Set, Same } kind = Kind::Same;
    char32_t character = 0;
    bool negated = false;
    std::u32string set; // pairs: first and last of a range
};

// Reads a set that opens at `at` and returns where it closes. An opening bracket that is not closed is a plain
// character: then `at` is returned.
size_t readSet(const std::u32string &pattern, size_t at, PatternElement &out)
{
    size_t end = at + 1;
    if (end < pattern.size() && pattern[end] == U'^') {
        out.negated = true;
        ++end;
    }
    const size_t begin = end;
    while (end < pattern.size() && (pattern[end] != U']' || end == begin))
        ++end;
    if (end >= pattern.size())
        return at;
    out.kind = PatternElement::Kind::Set;
    for (size_t in = begin; in < end; ++in) {
        const bool range = in + 2 < end && pattern[in + 1] == U'-';
        out.set += pattern[in];
        out.set += pattern[range ? in + 2 : in];
        in += range ? 2 : 0;
    }
    return end;
}

std::vector<PatternElement> elementsOf(QByteArrayView pattern)
{
    const std::u32string characters = foldedCharacters(pattern);
    std::vector<PatternElement> parts;
    for (size_t at = 0; at < characters.size(); ++at) {
        PatternElement part;
        part.character = characters[at];
        if (part.character == U'%')
            part.kind = PatternElement::Kind::Run;
        else if (part.character == U'_')
            part.kind = PatternElement::Kind::Any;
        else if (part.character == U'[')
            at = readSet(characters, at, part);
        parts.push_back(part);
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
    for (size_t at = 0; at + 1 < part.set.size(); at += 2)
        inSet = inSet || (c >= part.set[at] && c <= part.set[at + 1]);
    return inSet != part.negated;
}

} // namespace

thread_local bool comparisonFailed = false;

int compareTexts(QByteArrayView a, QByteArrayView b)
{
    if (sql::isAscii(a) && sql::isAscii(b))
        return compareAscii(a, b);
    const std::u32string inA = foldedCharacters(a);
    const std::u32string inB = foldedCharacters(b);
    const int byLetters = compareBy(inA, inB, base);
    return byLetters ? byLetters : compareBy(inA, inB, [](char32_t c) { return c; });
}

bool matchesLike(QByteArrayView pattern, QByteArrayView text)
{
    const std::vector<PatternElement> parts = elementsOf(pattern);
    const std::u32string characters = foldedCharacters(text);
    size_t part = 0;
    size_t at = 0;
    // The last run so far; it takes one character more when what follows it does not match.
    std::optional<size_t> runPart;
    size_t runAt = 0;
    while (at < characters.size()) {
        if (part < parts.size() && parts[part].kind == PatternElement::Kind::Run) {
            runPart = part++;
            runAt = at;
        } else if (part < parts.size() && matchesOne(parts[part], characters[at])) {
            ++part;
            ++at;
        } else if (runPart) {
            part = *runPart + 1;
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
