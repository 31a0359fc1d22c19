// Reads names and expressions from a statement's tokens into a tree; StatementParser puts the clauses round them.
//
// It looks one token ahead: token() is the first one that is not read yet. A fault raises the dialect's error, whose
// text quotes the whole expression that was being read.
#pragma once

#include "platform/data/sql/Ast.h"
#include "platform/data/sql/Lexer.h"

namespace sql {

// What may stand behind an expression: the next clause alone (a condition), a comma and another expression, or such a
// list whose closing bracket ends it.
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
    // Reads "T.*" and returns T; reads nothing and returns an empty name when anything else stands there.
    QStringView takeAllOf();

    Node expression(Neighbours neighbours);

    // The text of the expression read last, for an error's description. It goes on behind the fault, to the end of the
    // clause or to the comma that separates the next expression.
    QStringView expressionText() const;
    // Raises the error for a token that cannot follow the expression read last.
    [[noreturn]] void failBehindExpression() const;
    // Raises the error for a bracketed name without its closing bracket, where a name is expected.
    void refuseBadName() const;

private:
    Node disjunction();
    Node conjunction();
    Node negation();
    Node comparison();
    Node arithmetic(int level);
    Node operand();
    Node enclosed();
    Node signedOperand(bool negative);
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
