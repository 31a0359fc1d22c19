#include "platform/data/sql/Lexer.h"

#include "platform/data/sql/SqlText.h"

#include <QString>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace sql {

namespace {

struct KeywordText
{
    QLatin1StringView text;
    Keyword keyword;
};

constexpr std::array keywords{
    KeywordText{"alike"_L1, Keyword::Alike},
    KeywordText{"and"_L1, Keyword::And},
    KeywordText{"as"_L1, Keyword::As},
    KeywordText{"asc"_L1, Keyword::Asc},
    KeywordText{"between"_L1, Keyword::Between},
    KeywordText{"by"_L1, Keyword::By},
    KeywordText{"delete"_L1, Keyword::Delete},
    KeywordText{"desc"_L1, Keyword::Desc},
    KeywordText{"distinct"_L1, Keyword::Distinct},
    KeywordText{"false"_L1, Keyword::False},
    KeywordText{"from"_L1, Keyword::From},
    KeywordText{"group"_L1, Keyword::Group},
    KeywordText{"having"_L1, Keyword::Having},
    KeywordText{"in"_L1, Keyword::In},
    KeywordText{"inner"_L1, Keyword::Inner},
    KeywordText{"insert"_L1, Keyword::Insert},
    KeywordText{"into"_L1, Keyword::Into},
    KeywordText{"is"_L1, Keyword::Is},
    KeywordText{"join"_L1, Keyword::Join},
    KeywordText{"left"_L1, Keyword::Left},
    KeywordText{"like"_L1, Keyword::Like},
    KeywordText{"mod"_L1, Keyword::Mod},
    KeywordText{"no"_L1, Keyword::No},
    KeywordText{"not"_L1, Keyword::Not},
    KeywordText{"null"_L1, Keyword::Null},
    KeywordText{"off"_L1, Keyword::Off},
    KeywordText{"on"_L1, Keyword::On},
    KeywordText{"or"_L1, Keyword::Or},
    KeywordText{"order"_L1, Keyword::Order},
    KeywordText{"outer"_L1, Keyword::Outer},
    KeywordText{"right"_L1, Keyword::Right},
    KeywordText{"select"_L1, Keyword::Select},
    KeywordText{"set"_L1, Keyword::Set},
    KeywordText{"top"_L1, Keyword::Top},
    KeywordText{"true"_L1, Keyword::True},
    KeywordText{"union"_L1, Keyword::Union},
    KeywordText{"update"_L1, Keyword::Update},
    KeywordText{"values"_L1, Keyword::Values},
    KeywordText{"where"_L1, Keyword::Where},
    KeywordText{"yes"_L1, Keyword::Yes},
};

Keyword keywordOf(QStringView word)
{
    const auto *const known = std::ranges::find_if(keywords, [word](const KeywordText &entry) {
        return word.size() == entry.text.size() && word.compare(entry.text, Qt::CaseInsensitive) == 0;
    });
    // Comparing without case takes the Kelvin sign for a "k", which the dialect does not.
    return known != keywords.end() && isAscii(word) ? known->keyword : Keyword::None;
}

bool isBlank(QChar c)
{
    return c == u' ' || c == u'\t' || c == u'\r' || c == u'\n';
}

// SQLite reads a statement as far as its first U+0000, so that nothing in it may hold one.
bool holdsNul(QStringView text)
{
    return text.contains(QChar());
}

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

bool isNameStart(QChar c)
{
    const char16_t lower = c.unicode() | 0x20;
    if (c.unicode() < 0x80)
        return (lower >= u'a' && lower <= u'z') || c == u'_';
    return c.isLetter() || c.isSurrogate();
}

bool isNamePart(QChar c)
{
    return isNameStart(c) || isDigit(c) || (c.unicode() >= 0x80 && (c.isMark() || c.isNumber()));
}

TokenKind punctuationOf(QChar c)
{
    switch (c.unicode()) {
    case u'(':
        return TokenKind::LeftParenthesis;
    case u')':
        return TokenKind::RightParenthesis;
    case u',':
        return TokenKind::Comma;
    case u'.':
    case u'!':
        return TokenKind::Dot;
    case u';':
        return TokenKind::Semicolon;
    case u'*':
        return TokenKind::Star;
    case u'+':
        return TokenKind::Plus;
    case u'-':
        return TokenKind::Minus;
    case u'/':
        return TokenKind::Slash;
    case u'\\':
        return TokenKind::Backslash;
    case u'&':
        return TokenKind::Ampersand;
    case u']':
        return TokenKind::StrayBracket;
    default:
        return TokenKind::Unknown;
    }
}

} // namespace

Token Lexer::take(TokenKind kind, qsizetype length)
{
    const qsizetype begin = m_position;
    m_position += length;
    return {kind, Keyword::None, begin, m_source.sliced(begin, length)};
}

Token Lexer::next()
{
    while (m_position < m_source.size() && isBlank(m_source[m_position]))
        ++m_position;
    if (m_position >= m_source.size())
        return take(TokenKind::End, 0);
    const QChar c = m_source[m_position];
    if (isNameStart(c))
        return word();
    if (isDigit(c) || (c == u'.' && isDigit(at(m_position + 1))))
        return number();
    switch (c.unicode()) {
    case u'\'':
    case u'"':
        return text(c);
    case u'[':
        return bracketedName(u']');
    case u'`':
        return bracketedName(u'`');
    case u'#':
        return date();
    case u'=':
    case u'<':
    case u'>':
        return comparison();
    default:
        return take(punctuationOf(c), 1);
    }
}

Token Lexer::word()
{
    qsizetype end = m_position + 1;
    while (end < m_source.size() && isNamePart(m_source[end]))
        ++end;
    Token token = take(TokenKind::Word, end - m_position);
    token.keyword = keywordOf(token.text);
    return token;
}

qsizetype Lexer::digitsEnd(qsizetype from) const
{
    while (isDigit(at(from)))
        ++from;
    return from;
}

// "12", "1.5", ".5", "5." and "1.5E-3". With a second point it is a bad number as far as digits and points go.
Token Lexer::number()
{
    qsizetype end = digitsEnd(m_position);
    if (at(end) == u'.')
        end = digitsEnd(end + 1);
    if ((at(end).unicode() | 0x20) == u'e') {
        const bool isSigned = at(end + 1) == u'+' || at(end + 1) == u'-';
        const qsizetype exponent = end + (isSigned ? 2 : 1);
        end = isDigit(at(exponent)) ? digitsEnd(exponent) : end;
    }
    if (at(end) != u'.')
        return take(TokenKind::Number, end - m_position);
    while (at(end) == u'.' || isDigit(at(end)))
        ++end;
    return take(TokenKind::BadNumber, end - m_position);
}

// From a quote to the next one that is not doubled.
Token Lexer::text(QChar quote)
{
    qsizetype end = m_source.indexOf(quote, m_position + 1);
    while (end >= 0 && at(end + 1) == quote)
        end = m_source.indexOf(quote, end + 2);
    if (end < 0 || holdsNul(m_source.sliced(m_position, end - m_position)))
        return take(TokenKind::UnclosedText, m_source.size() - m_position);
    return take(TokenKind::Text, end + 1 - m_position);
}

Token Lexer::date()
{
    const qsizetype end = m_source.indexOf(u'#', m_position + 1);
    return end < 0 ? take(TokenKind::BadDate, 1) : take(TokenKind::Date, end + 1 - m_position);
}

// No name holds an opening bracket.
Token Lexer::bracketedName(QChar closing)
{
    const qsizetype end = m_source.indexOf(closing, m_position + 1);
    if (end < 0)
        return take(TokenKind::BadName, m_source.size() - m_position);
    Token token = take(TokenKind::BracketedName, end + 1 - m_position);
    const QStringView name = token.text.sliced(1, token.text.size() - 2);
    if (name.contains(u'[') || holdsNul(name))
        token.kind = TokenKind::BadName;
    else
        token.text = name;
    return token;
}

Token Lexer::comparison()
{
    const QChar first = m_source[m_position];
    const QChar second = at(m_position + 1);
    if (first == u'=')
        return take(TokenKind::Equal, 1);
    if (second == u'=')
        return take(first == u'<' ? TokenKind::LessOrEqual : TokenKind::GreaterOrEqual, 2);
    if (first == u'<' && second == u'>')
        return take(TokenKind::NotEqual, 2);
    return take(first == u'<' ? TokenKind::Less : TokenKind::Greater, 1);
}

} // namespace sql
