#include "platform/runtime/CodePage.h"

#include <QChar>

#include <algorithm>
#include <numeric>

namespace runtime {

namespace {

// The characters of the bytes 0x80 to 0x9f; every other byte is the character of the same number.
constexpr std::array<char16_t, 32> special{0x20ac, 0x0081, 0x201a, 0x0192, 0x201e, 0x2026, 0x2020, 0x2021,
                                           0x02c6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008d, 0x017d, 0x008f,
                                           0x0090, 0x2018, 0x2019, 0x201c, 0x201d, 0x2022, 0x2013, 0x2014,
                                           0x02dc, 0x2122, 0x0161, 0x203a, 0x0153, 0x009d, 0x017e, 0x0178};

bool isInCodePage(char16_t character)
{
    const CodePage &page = ansiCharacters();
    return std::find(page.cbegin(), page.cend(), character) != page.cend();
}

char16_t upperCase(char16_t character)
{
    const char16_t upper = QChar(character).toUpper().unicode();
    return isInCodePage(character) && isInCodePage(upper) ? upper : character;
}

} // namespace

const CodePage &ansiCharacters()
{
    static const CodePage page = [] {
        CodePage characters;
        std::iota(characters.begin(), characters.end(), u'\0');
        std::copy(special.cbegin(), special.cend(), characters.begin() + 0x80);
        return characters;
    }();
    return page;
}

const CodePage &ansiUpperCaseCharacters()
{
    static const CodePage page = [] {
        CodePage characters = ansiCharacters();
        std::transform(characters.cbegin(), characters.cend(), characters.begin(), upperCase);
        return characters;
    }();
    return page;
}

QString ansiUpperCase(QString text)
{
    for (QChar &character : text)
        character = upperCase(character.unicode());
    return text;
}

} // namespace runtime
