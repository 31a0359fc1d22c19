// Splits a statement into tokens. They are views into the statement's text, which must outlive them.
//
// A copy of a lexer continues from the same place, independently. Raises nothing: what is no token of the dialect
// becomes a token of one of the last kinds below, which the parser refuses.
#pragma once

#include <QStringView>

namespace sql {

enum class TokenKind {
    End,
    Word, // a bare name, or a keyword when `keyword` says so
    BracketedName,
    Text,
    Number,
    Date, // "#", anything, "#"
    LeftParenthesis,
    RightParenthesis,
    Comma,
    Dot, // "." or "!" between table and column
    Semicolon,
    Star,
    Plus,
    Minus,
    Slash,
    Backslash,
    Ampersand,
    Equal,
    NotEqual,
    Less,
    LessOrEqual,
    Greater,
    GreaterOrEqual,
    // Faults; the parser raises an error of its own for most of them.
    UnclosedText, // or one with a zero character in it
    BadName,      // the same of a bracket or backquote, or an opening bracket inside brackets
    BadNumber,
    BadDate, // "#" that is not closed
    StrayBracket,
    Unknown
};

// Words that are names only in brackets or behind a dot.
enum class Keyword {
    None,
    Alike,
    And,
    As,
    Asc,
    Between,
    By,
    Delete,
    Desc,
    Distinct,
    False,
    From,
    Group,
    Having,
    In,
    Inner,
    Insert,
    Into,
    Is,
    Join,
    Left,
    Like,
    Mod,
    No,
    Not,
    Null,
    Off,
    On,
    Or,
    Order,
    Outer,
    Right,
    Select,
    Set,
    Top,
    True,
    Union,
    Update,
    Values,
    Where,
    Yes
};

struct Token
{
    TokenKind kind = TokenKind::End;
    Keyword keyword = Keyword::None;
    qsizetype begin = 0; // in the statement's text
    QStringView text;    // a name without its brackets, anything else as it is written

    bool is(TokenKind other) const { return kind == other; }
    bool is(Keyword other) const { return keyword == other; }
};

class Lexer
{
public:
    explicit Lexer(QStringView source, qsizetype position = 0) : m_source(source), m_position(position) {}

    Token next();

private:
    Token word();
    Token number();
    Token text(QChar quote);
    Token date();
    Token bracketedName(QChar closing);
    Token comparison();
    Token take(TokenKind kind, qsizetype length);
    QChar at(qsizetype position) const { return position < m_source.size() ? m_source[position] : QChar(); }
    qsizetype digitsEnd(qsizetype from) const;

    QStringView m_source;
    qsizetype m_position;
};

} // namespace sql
