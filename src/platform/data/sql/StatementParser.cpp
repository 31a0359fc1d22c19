#include "platform/data/sql/StatementParser.h"

#include "platform/data/sql/ExpressionParser.h"
#include "platform/data/sql/Literal.h"
#include "platform/data/sql/SyntaxError.h"

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace sql {

namespace {

class StatementParser
{
public:
    StatementParser(QStringView source, Tree &tree) : m_in(source, tree), m_tree(tree) {}

    void statement();

private:
    void select();
    void insert();
    void update();
    void remove();
    void selectList();
    void fromClause();
    Node join(bool enclosed);
    Node joined();
    JoinKind joinKind();
    void endJoinCondition(bool enclosed);
    void whereClause();
    void groupByClause();
    void havingClause();
    void orderByClause();
    Node clauseExpression(Clause clause, Neighbours neighbours);
    QStringView targetColumn(Clause clause);
    void insertValues();
    bool atNextClause() const;
    void finish();

    ExpressionParser m_in;
    Tree &m_tree;
    int m_parentheses = 0; // of the FROM clause
};

constexpr int mostParentheses = 50;

// The dialect's one text for whatever is wrong with the list of a SELECT.
runtime::RuntimeError faultInList()
{
    return syntaxError(u"The SELECT statement includes a reserved word or an argument name that is misspelled or "
                       u"missing, or the punctuation is incorrect."_s);
}

bool isJoinWord(const Token &token)
{
    return token.is(Keyword::Inner) || token.is(Keyword::Left) || token.is(Keyword::Right);
}

void StatementParser::statement()
{
    if (m_in.accept(Keyword::Select))
        select();
    else if (m_in.accept(Keyword::Insert))
        insert();
    else if (m_in.accept(Keyword::Update))
        update();
    else if (m_in.accept(Keyword::Delete))
        remove();
    else
        throw syntaxError(u"Invalid SQL statement; expected 'DELETE', 'INSERT', 'PROCEDURE', 'SELECT', or 'UPDATE'."_s);
}

void StatementParser::select()
{
    m_tree.kind = StatementKind::Select;
    m_tree.distinct = m_in.accept(Keyword::Distinct);
    if (m_in.accept(Keyword::Top)) {
        if (!m_in.token().is(TokenKind::Number) || !numberValue(m_in.token().text, false).is<qint32>())
            throw faultInList();
        m_tree.top = m_in.token().text;
        m_in.advance();
    }
    selectList();
    if (m_in.accept(Keyword::From))
        fromClause();
    else if (std::ranges::any_of(m_tree.list, [](const ListItem &item) { return item.expression == none; }))
        throw faultInList(); // all of no table
    whereClause();
    groupByClause();
    havingClause();
    orderByClause();
    finish();
}

void StatementParser::selectList()
{
    do {
        ListItem item;
        if (m_in.accept(TokenKind::Star)) {
            m_tree.list.append(item);
            continue;
        }
        item.allOf = m_in.takeAllOf();
        if (item.allOf.isEmpty()) {
            if (!m_in.atExpression())
                throw faultInList();
            item.expression = m_in.expression(Neighbours::Commas);
            if (m_in.accept(Keyword::As)) {
                m_in.refuseBadName();
                if (!m_in.atName())
                    throw faultInList();
                item.alias = m_in.takeName();
            }
        }
        m_tree.list.append(item);
    } while (m_in.accept(TokenKind::Comma));
}

void StatementParser::fromClause()
{
    do
        m_tree.from.append(join(false));
    while (m_in.accept(TokenKind::Comma));
    if (!m_in.atEnd() && !atNextClause())
        throw faultIn(Clause::From);
}

// The dialect joins two sources; a join of three has parentheses round the first two or the last two.
Node StatementParser::join(bool enclosed)
{
    const Node left = joined();
    if (!isJoinWord(m_in.token()))
        return left;
    Source source;
    source.join = joinKind();
    source.left = left;
    source.right = joined();
    if (!m_in.accept(Keyword::On))
        throw faultIn(Clause::Join);
    source.condition = clauseExpression(Clause::Join, enclosed ? Neighbours::EnclosedCommas : Neighbours::None);
    endJoinCondition(enclosed);
    m_tree.sources.append(source);
    return Node(m_tree.sources.size() - 1);
}

JoinKind StatementParser::joinKind()
{
    const JoinKind kind = m_in.token().is(Keyword::Inner)  ? JoinKind::Inner
                          : m_in.token().is(Keyword::Left) ? JoinKind::Left
                                                           : JoinKind::Right;
    m_in.advance();
    if (kind != JoinKind::Inner)
        m_in.accept(Keyword::Outer);
    if (!m_in.accept(Keyword::Join))
        throw faultIn(Clause::From);
    return kind;
}

// A third table that is joined without parentheses is read as part of this condition and is refused here: the dialect
// calls it a missing operator.
void StatementParser::endJoinCondition(bool enclosed)
{
    const bool atClause = m_in.atEnd() || atNextClause();
    if (enclosed && atClause)
        throw faultIn(Clause::Join);
    if (m_in.token().is(enclosed ? TokenKind::RightParenthesis : TokenKind::Comma) || atClause)
        return;
    m_in.failBehindExpression();
}

// One side of a join: a table with its alias, or a join in parentheses.
Node StatementParser::joined()
{
    if (m_in.accept(TokenKind::LeftParenthesis)) {
        if (++m_parentheses > mostParentheses)
            throw syntaxError(u"Query is too complex."_s);
        const Node node = join(true);
        if (!m_in.accept(TokenKind::RightParenthesis))
            throw faultIn(Clause::From);
        return node;
    }
    m_in.refuseBadName();
    if (!m_in.atName())
        throw faultIn(Clause::From);
    Source source;
    source.table = m_in.takeName();
    const bool hasAlias = m_in.accept(Keyword::As);
    if (m_in.atName())
        source.alias = m_in.takeName();
    else if (hasAlias)
        throw faultIn(Clause::From);
    m_tree.sources.append(source);
    return Node(m_tree.sources.size() - 1);
}

bool StatementParser::atNextClause() const
{
    const Token &token = m_in.token();
    return token.is(Keyword::Where) || token.is(Keyword::Group) || token.is(Keyword::Having) ||
           token.is(Keyword::Order);
}

// An empty clause raises the error of the clause; anything else that is wrong raises the error of the expression.
Node StatementParser::clauseExpression(Clause clause, Neighbours neighbours)
{
    const bool isList = neighbours != Neighbours::None && clause != Clause::Join;
    if (m_in.atEnd() || atNextClause() || (isList && !m_in.atExpression()))
        throw faultIn(clause);
    return m_in.expression(neighbours);
}

// The condition chooses the rows before they are grouped, so Max, Min, Count, Sum and Avg have no value in it yet.
void StatementParser::whereClause()
{
    if (!m_in.accept(Keyword::Where))
        return;
    const bool hadAggregate = std::exchange(m_tree.hasAggregate, false);
    m_tree.where = clauseExpression(Clause::Where, Neighbours::None);
    if (m_tree.hasAggregate)
        throw syntaxError(
            u"Cannot have aggregate function in WHERE clause (%1)."_s.arg(m_in.expressionText().trimmed()));
    m_tree.hasAggregate = hadAggregate;
}

void StatementParser::groupByClause()
{
    if (!m_in.accept(Keyword::Group))
        return;
    if (!m_in.accept(Keyword::By))
        throw faultIn(Clause::GroupBy);
    do
        m_tree.groupBy.append(clauseExpression(Clause::GroupBy, Neighbours::Commas));
    while (m_in.accept(TokenKind::Comma));
}

void StatementParser::havingClause()
{
    if (!m_in.accept(Keyword::Having))
        return;
    m_tree.having = clauseExpression(Clause::Having, Neighbours::None);
}

void StatementParser::orderByClause()
{
    if (!m_in.accept(Keyword::Order))
        return;
    if (!m_in.accept(Keyword::By))
        throw faultIn(Clause::OrderBy);
    do {
        OrderItem item;
        item.expression = clauseExpression(Clause::OrderBy, Neighbours::Commas);
        if (m_in.token().is(TokenKind::StrayBracket))
            throw faultIn(Clause::OrderBy);
        item.descending = m_in.accept(Keyword::Desc);
        if (!item.descending)
            m_in.accept(Keyword::Asc);
        m_tree.orderBy.append(item);
    } while (m_in.accept(TokenKind::Comma));
}

// The name of a column. A table's name before it is read and dropped: SQLite takes none there.
QStringView StatementParser::targetColumn(Clause clause)
{
    m_in.refuseBadName();
    if (!m_in.atName())
        throw faultIn(clause);
    const QStringView name = m_in.takeName();
    return m_in.accept(TokenKind::Dot) ? m_in.takeMember() : name;
}

void StatementParser::insert()
{
    m_tree.kind = StatementKind::Insert;
    Source source;
    const bool into = m_in.accept(Keyword::Into);
    m_in.refuseBadName();
    if (!into || !m_in.atName())
        throw faultIn(Clause::Insert);
    source.table = m_in.takeName();
    m_tree.sources.append(source);
    if (!m_in.accept(TokenKind::LeftParenthesis))
        throw faultIn(Clause::Insert);
    do
        m_tree.targets.append(Target{targetColumn(Clause::Insert), none});
    while (m_in.accept(TokenKind::Comma));
    if (!m_in.accept(TokenKind::RightParenthesis) || !m_in.accept(Keyword::Values) ||
        !m_in.accept(TokenKind::LeftParenthesis))
        throw faultIn(Clause::Insert);
    insertValues();
    if (!m_in.atEnd())
        throw syntaxError(u"Missing semicolon (;) at end of SQL statement."_s);
    finish();
}

// Counts the values only after the last one is read: when a text has an apostrophe in it, the error of the broken text
// is to be raised, not that of a wrong number of values.
void StatementParser::insertValues()
{
    qsizetype count = 0;
    do {
        const Node value = clauseExpression(Clause::Insert, Neighbours::EnclosedCommas);
        if (m_in.atEnd())
            throw faultIn(Clause::Insert);
        if (!m_in.token().is(TokenKind::Comma) && !m_in.token().is(TokenKind::RightParenthesis))
            m_in.failBehindExpression();
        if (count < m_tree.targets.size())
            m_tree.targets[count].value = value;
        ++count;
    } while (m_in.accept(TokenKind::Comma));
    m_in.advance();
    if (count != m_tree.targets.size())
        throw syntaxError(u"Number of query values and destination fields are not the same."_s);
}

void StatementParser::update()
{
    m_tree.kind = StatementKind::Update;
    m_in.refuseBadName();
    if (!m_in.atName())
        throw faultIn(Clause::Update);
    m_tree.from.append(joined());
    if (!m_in.accept(Keyword::Set))
        throw faultIn(Clause::Update);
    do {
        const QStringView column = targetColumn(Clause::Update);
        if (!m_in.accept(TokenKind::Equal))
            throw faultIn(Clause::Update);
        m_tree.targets.append(Target{column, clauseExpression(Clause::Update, Neighbours::Commas)});
    } while (m_in.accept(TokenKind::Comma));
    whereClause();
    finish();
}

void StatementParser::remove()
{
    m_tree.kind = StatementKind::Delete;
    if (!m_in.token().is(Keyword::From)) {
        do { // whatever the list names, DELETE removes whole rows
            if (!m_in.accept(TokenKind::Star) && m_in.takeAllOf().isEmpty())
                targetColumn(Clause::Delete);
        } while (m_in.accept(TokenKind::Comma));
    }
    if (!m_in.accept(Keyword::From))
        throw faultIn(Clause::Delete);
    fromClause();
    if (m_tree.sources.size() != 1)
        throw syntaxError(u"Specify the table containing the records you want to delete."_s);
    whereClause();
    if (!m_in.atEnd() && (m_tree.where == none || atNextClause()))
        throw faultIn(Clause::Delete);
    finish();
}

// One semicolon may end the statement, and nothing may follow it.
void StatementParser::finish()
{
    if (m_in.accept(TokenKind::Semicolon)) {
        if (!m_in.token().is(TokenKind::End))
            throw syntaxError(u"Characters found after end of SQL statement."_s);
    } else if (!m_in.token().is(TokenKind::End)) {
        m_in.failBehindExpression();
    }
}

} // namespace

void parse(QStringView source, Tree &tree)
{
    StatementParser(source, tree).statement();
}

} // namespace sql
