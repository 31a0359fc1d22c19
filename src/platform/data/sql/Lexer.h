// Cuts a statement into tokens, which are views into the statement's text: the text must outlive them.
//
// A lexer is a small value without shared state; a copy of it reads on from the same place. It raises nothing: what is
// no token of the dialect becomes a token of a kind that no rule of the grammar accepts.
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
    // What fits nowhere, each with a fault of its own.
    UnclosedText,
    BadName, // a bracket or backquote without its fellow, or one bracket inside another
    BadNumber,
    BadDate, // "#" without its fellow
    StrayBracket,
    Unknown
};

// The words that are no names unless they stand in brackets or behind a dot.
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
