#include "platform/data/sql/Lexer.h"

#include <string_view>

namespace sql {

namespace {

constexpr qsizetype longestKeyword = 8;

// A word of at most eight letters as one number, so that all keywords are told apart in one switch.
consteval quint64 packed(std::string_view word)
{
    quint64 key = 0;
    for (const char c : word)
        key = key << 8 | quint64(c);
    return key;
}

quint64 packed(QStringView word)
{
    quint64 key = 0;
    for (const QChar c : word) {
        if (c.unicode() >= 0x80)
            return 0;
        key = key << 8 | (c.unicode() | 0x20U);
    }
    return key;
}

Keyword keywordOf(QStringView word)
{
    if (word.size() > longestKeyword)
        return Keyword::None;
    // clang-format off
    switch (packed(word)) {
    case packed("alike"): return Keyword::Alike;
    case packed("and"): return Keyword::And;
    case packed("as"): return Keyword::As;
    case packed("asc"): return Keyword::Asc;
    case packed("between"): return Keyword::Between;
    case packed("by"): return Keyword::By;
    case packed("delete"): return Keyword::Delete;
    case packed("desc"): return Keyword::Desc;
    case packed("distinct"): return Keyword::Distinct;
    case packed("false"): return Keyword::False;
    case packed("from"): return Keyword::From;
    case packed("group"): return Keyword::Group;
    case packed("having"): return Keyword::Having;
    case packed("in"): return Keyword::In;
    case packed("inner"): return Keyword::Inner;
    case packed("insert"): return Keyword::Insert;
    case packed("into"): return Keyword::Into;
    case packed("is"): return Keyword::Is;
    case packed("join"): return Keyword::Join;
    case packed("left"): return Keyword::Left;
    case packed("like"): return Keyword::Like;
    case packed("mod"): return Keyword::Mod;
    case packed("no"): return Keyword::No;
    case packed("not"): return Keyword::Not;
    case packed("null"): return Keyword::Null;
    case packed("off"): return Keyword::Off;
    case packed("on"): return Keyword::On;
    case packed("or"): return Keyword::Or;
    case packed("order"): return Keyword::Order;
    case packed("outer"): return Keyword::Outer;
    case packed("right"): return Keyword::Right;
    case packed("select"): return Keyword::Select;
    case packed("set"): return Keyword::Set;
    case packed("top"): return Keyword::Top;
    case packed("true"): return Keyword::True;
    case packed("union"): return Keyword::Union;
    case packed("update"): return Keyword::Update;
    case packed("values"): return Keyword::Values;
    case packed("where"): return Keyword::Where;
    case packed("yes"): return Keyword::Yes;
    default: return Keyword::None;
    }
    // clang-format on
}

bool isBlank(QChar c)
{
    return c == u' ' || c == u'\t' || c == u'\r' || c == u'\n';
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
    // clang-format off
    switch (c.unicode()) {
    case u'(': return TokenKind::LeftParenthesis;
    case u')': return TokenKind::RightParenthesis;
    case u',': return TokenKind::Comma;
    case u'.': case u'!': return TokenKind::Dot;
    case u';': return TokenKind::Semicolon;
    case u'*': return TokenKind::Star;
    case u'+': return TokenKind::Plus;
    case u'-': return TokenKind::Minus;
    case u'/': return TokenKind::Slash;
    case u'\\': return TokenKind::Backslash;
    case u'&': return TokenKind::Ampersand;
    case u']': return TokenKind::StrayBracket;
    default: return TokenKind::Unknown;
    }
    // clang-format on
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

// "12", "1.5", ".5", "5." and "1.5E-3"; a second point spoils it.
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

// Between two equal quotes; the quote itself stands doubled inside.
Token Lexer::text(QChar quote)
{
    qsizetype end = m_source.indexOf(quote, m_position + 1);
    while (end >= 0 && at(end + 1) == quote)
        end = m_source.indexOf(quote, end + 2);
    if (end < 0)
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
    if (name.contains(u'['))
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
