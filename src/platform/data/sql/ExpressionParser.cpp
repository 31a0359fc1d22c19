#include "platform/data/sql/ExpressionParser.h"

#include "platform/data/sql/Checks.h"
#include "platform/data/sql/Literal.h"
#include "platform/data/sql/SyntaxError.h"

#include <array>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace sql {

namespace {

// Bounds for statements that no one types, so that reading and writing them cannot exhaust the stack.
constexpr int deepestNesting = 200;
constexpr qsizetype mostNodes = 5000;

std::optional<Operator> comparisonOf(const Token &token)
{
    switch (token.kind) {
    case TokenKind::Equal:
        return Operator::Equal;
    case TokenKind::NotEqual:
        return Operator::NotEqual;
    case TokenKind::Less:
        return Operator::Less;
    case TokenKind::LessOrEqual:
        return Operator::LessOrEqual;
    case TokenKind::Greater:
        return Operator::Greater;
    case TokenKind::GreaterOrEqual:
        return Operator::GreaterOrEqual;
    default:
        return std::nullopt;
    }
}

// Operators of a higher level bind more tightly.
constexpr int arithmeticLevels = 5;

struct Binding
{
    Operator operation;
    int level;
};

std::optional<Binding> arithmeticOf(const Token &token)
{
    switch (token.kind) {
    case TokenKind::Ampersand:
        return Binding{Operator::Concatenate, 0};
    case TokenKind::Plus:
        return Binding{Operator::Add, 1};
    case TokenKind::Minus:
        return Binding{Operator::Subtract, 1};
    case TokenKind::Backslash:
        return Binding{Operator::DivideWhole, 3};
    case TokenKind::Star:
        return Binding{Operator::Multiply, 4};
    case TokenKind::Slash:
        return Binding{Operator::Divide, 4};
    default:
        return token.is(Keyword::Mod) ? std::optional(Binding{Operator::Modulo, 2}) : std::nullopt;
    }
}

struct KnownFunction
{
    QStringView name;
    Function function;
    int arguments;
};

constexpr std::array knownFunctions{
    KnownFunction{u"Max", Function::Max, 1},     KnownFunction{u"Min", Function::Min, 1},
    KnownFunction{u"Count", Function::Count, 1}, KnownFunction{u"Sum", Function::Sum, 1},
    KnownFunction{u"Avg", Function::Avg, 1},     KnownFunction{u"Date", Function::Date, 0},
    KnownFunction{u"Now", Function::Now, 0},
};

const KnownFunction &functionOf(QStringView name)
{
    for (const KnownFunction &known : knownFunctions) {
        if (known.name.compare(name, Qt::CaseInsensitive) == 0)
            return known;
    }
    throw syntaxError(u"Undefined function '%1' in expression."_s.arg(name));
}

} // namespace

ExpressionParser::ExpressionParser(QStringView source, Tree &tree) : m_source(source), m_tree(tree), m_lexer(source)
{
    advance();
}

bool ExpressionParser::accept(TokenKind kind)
{
    if (!m_token.is(kind))
        return false;
    advance();
    return true;
}

bool ExpressionParser::accept(Keyword keyword)
{
    if (!m_token.is(keyword))
        return false;
    advance();
    return true;
}

bool ExpressionParser::atName() const
{
    return (m_token.is(TokenKind::BracketedName) && !m_token.text.isEmpty()) ||
           (m_token.is(TokenKind::Word) && m_token.is(Keyword::None));
}

// A broken text, name, number or date counts too: reading it as an operand raises the error of its own fault, which
// tells more than that of the clause.
bool ExpressionParser::atExpression() const
{
    switch (m_token.kind) {
    case TokenKind::Word:
        break;
    case TokenKind::BracketedName:
    case TokenKind::Text:
    case TokenKind::Number:
    case TokenKind::Date:
    case TokenKind::LeftParenthesis:
    case TokenKind::Minus:
    case TokenKind::Plus:
    case TokenKind::UnclosedText:
    case TokenKind::BadName:
    case TokenKind::BadNumber:
    case TokenKind::BadDate:
        return true;
    default:
        return false;
    }
    switch (m_token.keyword) {
    case Keyword::None:
    case Keyword::Not:
    case Keyword::Null:
    case Keyword::Yes:
    case Keyword::True:
    case Keyword::On:
    case Keyword::No:
    case Keyword::False:
    case Keyword::Off:
    case Keyword::Left:
    case Keyword::Right:
        return true;
    default:
        return false;
    }
}

QStringView ExpressionParser::takeName()
{
    const QStringView name = m_token.text;
    advance();
    return name;
}

QStringView ExpressionParser::takeMember()
{
    if (!m_token.is(TokenKind::Word) && !atName())
        failInOperand();
    return takeName();
}

QStringView ExpressionParser::takeAllOf()
{
    if (!atName())
        return {};
    // A copy of the lexer looks ahead; the parser stays where it is unless all three tokens fit.
    Lexer ahead = m_lexer;
    if (!ahead.next().is(TokenKind::Dot) || !ahead.next().is(TokenKind::Star))
        return {};
    const QStringView table = m_token.text;
    m_lexer = ahead;
    advance();
    return table;
}

Node ExpressionParser::expression(Neighbours neighbours)
{
    m_expressionBegin = m_token.begin;
    m_neighbours = neighbours;
    m_depth = 0;
    return disjunction();
}

Node ExpressionParser::add(const Expression &expression)
{
    if (m_tree.expressions.size() >= mostNodes)
        throw syntaxError(u"Query is too complex."_s);
    m_tree.expressions.append(expression);
    return Node(m_tree.expressions.size() - 1);
}

Node ExpressionParser::addOperation(Operator operation, Node left, Node right)
{
    Expression node;
    node.kind = ExpressionKind::Operation;
    node.operation = operation;
    node.first = left;
    node.second = right;
    return add(node);
}

Node ExpressionParser::disjunction()
{
    if (++m_depth > deepestNesting)
        throw syntaxError(u"Query is too complex."_s);
    Node left = conjunction();
    while (accept(Keyword::Or))
        left = addOperation(Operator::Or, left, conjunction());
    --m_depth;
    return left;
}

Node ExpressionParser::conjunction()
{
    Node left = negation();
    while (accept(Keyword::And))
        left = addOperation(Operator::And, left, negation());
    return left;
}

// Not binds less than a comparison and more than And.
Node ExpressionParser::negation()
{
    int negations = 0;
    while (accept(Keyword::Not))
        ++negations;
    Node node = comparison();
    for (; negations > 0; --negations) {
        Expression negated;
        negated.kind = ExpressionKind::Not;
        negated.first = node;
        node = add(negated);
    }
    return node;
}

Node ExpressionParser::comparison()
{
    Node left = arithmetic(0);
    for (;;) {
        if (const auto operation = comparisonOf(m_token)) {
            advance();
            left = addOperation(*operation, left, arithmetic(0));
        } else if (const Node test = predicate(left); test != none) {
            left = test;
        } else {
            return left;
        }
    }
}

// Is, Like, Between and In behind their left operand; none when it is something else.
Node ExpressionParser::predicate(Node left)
{
    Expression node;
    node.first = left;
    if (accept(Keyword::Is)) {
        node.kind = ExpressionKind::IsNull;
        node.affirmed = !accept(Keyword::Not);
        if (!accept(Keyword::Null))
            failInOperand();
        return add(node);
    }
    node.affirmed = !accept(Keyword::Not);
    if (accept(Keyword::Like) || accept(Keyword::Alike)) {
        node.kind = ExpressionKind::Like;
        node.second = arithmetic(0);
    } else if (accept(Keyword::Between)) {
        node.kind = ExpressionKind::Between;
        node.second = arithmetic(0);
        if (!accept(Keyword::And))
            failBehindExpression();
        node.third = arithmetic(0);
    } else if (accept(Keyword::In)) {
        node.kind = ExpressionKind::In;
        node.second = list();
    } else if (node.affirmed) {
        return none;
    } else {
        failBehindExpression();
    }
    return add(node);
}

// The items of an In, each hanging by `next` on the one before.
Node ExpressionParser::list()
{
    if (!accept(TokenKind::LeftParenthesis))
        failInOperand();
    const Node first = arithmetic(0);
    for (Node last = first; accept(TokenKind::Comma);) {
        const Node item = arithmetic(0);
        m_tree.expressions[last].next = item;
        last = item;
    }
    closeParenthesis();
    return first;
}

// Operands joined by operators of one level, from the left. Operators that bind more tightly have higher levels and are
// read first, by the calls for the next level.
Node ExpressionParser::arithmetic(int level)
{
    if (level == arithmeticLevels)
        return operand();
    Node left = arithmetic(level + 1);
    for (;;) {
        const auto binding = arithmeticOf(m_token);
        if (!binding || binding->level != level)
            return left;
        advance();
        left = addOperation(binding->operation, left, arithmetic(level + 1));
    }
}

Node ExpressionParser::operand()
{
    Expression node;
    node.text = m_token.text;
    switch (m_token.kind) {
    case TokenKind::Text:
        node.kind = ExpressionKind::Text;
        break;
    case TokenKind::Number:
        node.kind = ExpressionKind::Number;
        break;
    case TokenKind::Date:
        node.kind = ExpressionKind::Date;
        if (!dateValue(m_token.text))
            throw faultIn(expressionText(), Fault::BadDate);
        break;
    case TokenKind::LeftParenthesis:
        return enclosed();
    case TokenKind::Plus:
    case TokenKind::Minus:
        return signedOperand(m_token.is(TokenKind::Minus));
    case TokenKind::BracketedName:
        return column();
    case TokenKind::Word:
        switch (m_token.keyword) {
        case Keyword::None:
        case Keyword::Left:
        case Keyword::Right:
            return column();
        case Keyword::Yes:
        case Keyword::True:
        case Keyword::On:
            node.kind = ExpressionKind::Flag;
            break;
        case Keyword::No:
        case Keyword::False:
        case Keyword::Off:
            node.kind = ExpressionKind::Flag;
            node.affirmed = false;
            break;
        case Keyword::Null:
            break;
        default:
            failInOperand();
        }
        break;
    default:
        failInOperand();
    }
    advance();
    return add(node);
}

Node ExpressionParser::enclosed()
{
    advance();
    const Node node = disjunction();
    closeParenthesis();
    return node;
}

// A sign and its operand. Signs in a row are counted in a loop: a call for each would let a long row exhaust the stack.
Node ExpressionParser::signedOperand(bool negative)
{
    advance();
    while (m_token.is(TokenKind::Plus) || m_token.is(TokenKind::Minus)) {
        negative = negative != m_token.is(TokenKind::Minus);
        advance();
    }
    const Node value = operand();
    if (!negative)
        return value;
    Expression node;
    node.kind = ExpressionKind::Negation;
    node.first = value;
    return add(node);
}

// A name with or without a table's name, or the call of a function.
Node ExpressionParser::column()
{
    if (m_token.is(TokenKind::BracketedName) && m_token.text.isEmpty())
        failInOperand();
    const bool isWord = m_token.is(TokenKind::Word);
    const bool isKeyword = !m_token.is(Keyword::None);
    Expression node;
    node.kind = ExpressionKind::Column;
    node.text = m_token.text;
    if (isKeyword) { // Left and Right are functions too, and no names
        const Token word = m_token;
        advance();
        if (m_token.is(TokenKind::LeftParenthesis))
            return call(word.text);
        failInOperand();
    }
    advance();
    if (isWord && m_token.is(TokenKind::LeftParenthesis))
        return call(node.text);
    if (accept(TokenKind::Dot)) {
        node.qualifier = node.text;
        node.text = takeMember();
    }
    return add(node);
}

Node ExpressionParser::call(QStringView name)
{
    const KnownFunction &known = functionOf(name);
    Expression node;
    node.kind = ExpressionKind::Call;
    node.function = known.function;
    m_tree.hasAggregate = m_tree.hasAggregate || isAggregate(node);
    advance();
    int arguments = 0;
    if (known.function == Function::Count && accept(TokenKind::Star)) {
        arguments = 1;
    } else if (!m_token.is(TokenKind::RightParenthesis)) {
        do {
            node.first = disjunction();
            ++arguments;
        } while (accept(TokenKind::Comma));
    }
    closeParenthesis();
    if (arguments != known.arguments)
        throw faultIn(expressionText(), Fault::ArgumentCount);
    return add(node);
}

// A word that no expression contains, so that the text of a faulty expression ends before it.
bool ExpressionParser::atClauseWord(const Token &token) const
{
    switch (token.keyword) {
    case Keyword::Where:
    case Keyword::Group:
    case Keyword::Having:
    case Keyword::Order:
    case Keyword::From:
    case Keyword::Union:
        return true;
    case Keyword::As:
    case Keyword::Asc:
    case Keyword::Desc:
        return m_neighbours == Neighbours::Commas;
    default:
        return false;
    }
}

// At the end of the statement or of the clause the bracket is missing; before anything else an operator is.
void ExpressionParser::closeParenthesis()
{
    if (accept(TokenKind::RightParenthesis))
        return;
    if (atEnd() || atClauseWord(m_token))
        throw faultIn(expressionText(), Fault::MissingParenthesis);
    failBehindExpression();
}

QStringView ExpressionParser::expressionText() const
{
    Lexer lexer(m_source, m_expressionBegin);
    int depth = 0;
    for (;;) {
        const Token token = lexer.next();
        depth += token.is(TokenKind::LeftParenthesis) ? 1 : token.is(TokenKind::RightParenthesis) ? -1 : 0;
        const bool isNeighbour = m_neighbours != Neighbours::None && depth == 0 && token.is(TokenKind::Comma);
        const bool closes = m_neighbours == Neighbours::EnclosedCommas && depth < 0;
        if (token.is(TokenKind::End) || token.is(TokenKind::Semicolon) || isNeighbour || closes || atClauseWord(token))
            return m_source.sliced(m_expressionBegin, token.begin - m_expressionBegin);
    }
}

void ExpressionParser::failBehindExpression() const
{
    switch (m_token.kind) {
    case TokenKind::RightParenthesis:
        throw faultIn(expressionText(), Fault::ExtraParenthesis);
    case TokenKind::Comma:
        throw faultIn(expressionText(), Fault::Comma);
    case TokenKind::BadNumber:
        throw faultIn(expressionText(), Fault::BadNumber);
    default:
        throw faultIn(expressionText(), Fault::MissingOperator);
    }
}

void ExpressionParser::failInOperand() const
{
    refuseBadName();
    switch (m_token.kind) {
    case TokenKind::UnclosedText:
        throw faultIn(expressionText(), Fault::UnclosedText);
    case TokenKind::BadNumber:
        throw faultIn(expressionText(), Fault::BadNumber);
    case TokenKind::BadDate:
        throw faultIn(expressionText(), Fault::BadDate);
    default:
        throw faultIn(expressionText(), Fault::MissingOperator);
    }
}

void ExpressionParser::refuseBadName() const
{
    if (m_token.is(TokenKind::BadName))
        throw syntaxError(u"Invalid bracketing of name '%1'."_s.arg(m_token.text));
}

} // namespace sql
