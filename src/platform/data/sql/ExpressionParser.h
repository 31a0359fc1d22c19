// Reads names and expressions from a statement's tokens into a tree; StatementParser puts the clauses round them.
//
// It stands on one token, the first that is not read yet. A fault raises the dialect's error, which quotes the
// expression that began last, from where it begins to where its clause ends.
#pragma once

#include "platform/data/sql/Ast.h"
#include "platform/data/sql/Lexer.h"
#include "platform/data/sql/SyntaxError.h"

namespace sql {

// What parts an expression from its neighbours: nothing (a condition), commas, or commas inside brackets.
enum class Neighbours { None, Commas, EnclosedCommas };

class ExpressionParser
{
public:
    ExpressionParser(QStringView source, Tree &tree);

    const Token &token() const { return m_token; }
    void advance() { m_token = m_lexer.next(); }
    bool accept(TokenKind kind);
    bool accept(Keyword keyword);
    bool atEnd() const { return m_token.is(TokenKind::End) || m_token.is(TokenKind::Semicolon); }
    // A name in brackets or a word that is no keyword.
    bool atName() const;
    bool atExpression() const;
    // The name at which the parser stands.
    QStringView takeName();
    // The name behind a dot, which may be a keyword.
    QStringView takeMember();
    // T of "T.*", which is read, or nothing of it is.
    QStringView takeAllOf();

    Node expression(Neighbours neighbours);

    // The expression read last as it is written, read on past a fault to the end of its clause.
    QStringView written() const;
    // For a token that cannot follow the expression read last.
    [[noreturn]] void failBehindExpression() const;
    // For a bracket that does not close, where a name is due.
    void refuseBadName() const;

private:
    Node disjunction();
    Node conjunction();
    Node negation();
    Node comparison();
    Node sum(int level);
    Node operand();
    Node enclosed();
    Node number(bool negative);
    Node column();
    Node call(QStringView name);
    Node predicate(Node left);
    Node list();
    Node add(const Expression &expression);
    Node addOperation(Operator operation, Node left, Node right);
    bool atClauseWord(const Token &token) const;
    void closeParenthesis();
    [[noreturn]] void failInOperand() const;

    QStringView m_source;
    Tree &m_tree;
    Lexer m_lexer;
    Token m_token;
    qsizetype m_expressionBegin = 0;
    Neighbours m_neighbours = Neighbours::None;
    int m_depth = 0;
};

} // namespace sql
