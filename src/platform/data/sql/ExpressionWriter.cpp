#include "platform/data/sql/ExpressionWriter.h"

#include "platform/data/sql/LikePattern.h"
#include "platform/data/sql/Literal.h"
#include "platform/data/sql/SqlText.h"

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace sql {

namespace {

constexpr QByteArrayView inStoreOrder = " COLLATE STORE";

// The collation for equality with a text. On ASCII texts NOCASE finds the same rows as STORE, and the file's indexes
// stand on it.
QByteArrayView equalityRule(QStringView text)
{
    return isAscii(text) ? " COLLATE NOCASE" : inStoreOrder;
}

QByteArrayView symbolOf(Operator operation)
{
    switch (operation) {
    case Operator::Or:
        return " OR ";
    case Operator::And:
        return " AND ";
    case Operator::Equal:
        return " = ";
    case Operator::NotEqual:
        return " <> ";
    case Operator::Less:
        return " < ";
    case Operator::LessOrEqual:
        return " <= ";
    case Operator::Greater:
        return " > ";
    case Operator::GreaterOrEqual:
        return " >= ";
    case Operator::Concatenate:
        return " || ";
    case Operator::Add:
        return " + ";
    case Operator::Subtract:
        return " - ";
    case Operator::Modulo:
        return " % ";
    case Operator::DivideWhole:
    case Operator::Divide:
        return " / ";
    case Operator::Multiply:
        return " * ";
    }
    return " ";
}

// True for what needs no parentheses as an operand.
bool isAtom(const Expression &node)
{
    switch (node.kind) {
    case ExpressionKind::Column:
    case ExpressionKind::Text:
    case ExpressionKind::Number:
    case ExpressionKind::Date:
    case ExpressionKind::Null:
    case ExpressionKind::Flag:
    case ExpressionKind::Call:
        return true;
    default:
        return false;
    }
}

} // namespace

void ExpressionWriter::write(Node node)
{
    const Expression &expression = at(node);
    switch (expression.kind) {
    case ExpressionKind::Column:
        return appendColumn(m_sql, expression.qualifier, expression.text);
    case ExpressionKind::Text:
        return text(expression);
    case ExpressionKind::Number:
        return appendUtf8(m_sql, expression.text);
    case ExpressionKind::Date:
        return appendQuoted(m_sql, dateValue(expression.text)->toIsoText(), '\'');
    case ExpressionKind::Flag:
        m_sql += expression.affirmed ? "-1" : "0";
        return;
    case ExpressionKind::Null:
        m_sql += "NULL";
        return;
    case ExpressionKind::Operation:
        return operation(expression);
    case ExpressionKind::Negation:
        return negation(expression);
    case ExpressionKind::Not:
        m_sql += "NOT ";
        operand(expression.first);
        return;
    case ExpressionKind::IsNull:
        operand(expression.first);
        m_sql += expression.affirmed ? " IS NULL" : " IS NOT NULL";
        return;
    case ExpressionKind::Like:
        return like(expression);
    case ExpressionKind::Between:
        return between(expression);
    case ExpressionKind::In:
        return inList(expression);
    case ExpressionKind::Call:
        return call(expression);
    }
}

void ExpressionWriter::writeOrdered(Node node)
{
    operand(node);
    m_sql += inStoreOrder;
}

void ExpressionWriter::operand(Node node)
{
    if (isAtom(at(node)))
        return write(node);
    m_sql += '(';
    write(node);
    m_sql += ')';
}

// A Yes is written as -1: without parentheses two signs would stand in a row, which begin a comment in SQLite.
void ExpressionWriter::negation(const Expression &node)
{
    const bool isFlag = at(node.first).kind == ExpressionKind::Flag;
    m_sql += isFlag ? "-(" : "-";
    operand(node.first);
    m_sql += isFlag ? ")" : "";
}

// A text in single quotes is the same in SQLite and is copied as it is.
void ExpressionWriter::text(const Expression &node)
{
    if (node.text.front() == u'\'')
        appendUtf8(m_sql, node.text);
    else
        appendQuoted(m_sql, textValue(node.text), '\'');
}

void ExpressionWriter::operation(const Expression &node)
{
    switch (node.operation) {
    case Operator::Or:
    case Operator::And:
        return junction(node, symbolOf(node.operation));
    case Operator::Concatenate:
        return concatenation(node);
    case Operator::Add:
    case Operator::Subtract:
    case Operator::Modulo:
    case Operator::DivideWhole:
    case Operator::Multiply:
    case Operator::Divide:
        return arithmetic(node);
    default:
        return comparison(node);
    }
}

// A chain of the same operator is written without parentheses.
void ExpressionWriter::junction(const Expression &node, QByteArrayView word)
{
    for (const Node side : {node.first, node.second}) {
        const Expression &part = at(side);
        if (part.kind == ExpressionKind::Operation && part.operation == node.operation)
            write(side);
        else
            operand(side);
        if (side == node.first)
            m_sql += word;
    }
}

// A text literal, or texts joined. SQLite would compare it letter by letter, for no file declares a collation for it.
bool ExpressionWriter::givesText(Node node) const
{
    const Expression &expression = at(node);
    if (expression.kind != ExpressionKind::Operation)
        return isText(node);
    return expression.operation == Operator::Concatenate ||
           (expression.operation == Operator::Add && (givesText(expression.first) || givesText(expression.second)));
}

// A comparison with a text literal or a joined text gets the store's collation. Two columns compare by the types and
// collations that the file declares for them.
void ExpressionWriter::comparison(const Expression &node)
{
    if (flagComparison(node))
        return;
    noteComparison(node.first, node.second);
    noteComparison(node.second, node.first);
    operand(node.first);
    m_sql += symbolOf(node.operation);
    operand(node.second);
    const bool isEquality = node.operation == Operator::Equal || node.operation == Operator::NotEqual;
    const bool leftText = isText(node.first);
    const bool rightText = isText(node.second);
    if (leftText || rightText) {
        const QStringView left = leftText ? at(node.first).text : QStringView();
        const QStringView right = rightText ? at(node.second).text : QStringView();
        m_sql += !isEquality ? inStoreOrder : equalityRule(isAscii(left) ? right : left);
    } else if (givesText(node.first) || givesText(node.second)) {
        m_sql += inStoreOrder;
    }
}

// Writes "= Yes" as "<> 0": another tool may have written 1 for Yes, where this store writes -1. False where the
// comparison is not with one Yes or No.
bool ExpressionWriter::flagComparison(const Expression &node)
{
    if (node.operation != Operator::Equal && node.operation != Operator::NotEqual)
        return false;
    const bool flagFirst = at(node.first).kind == ExpressionKind::Flag;
    const bool flagSecond = at(node.second).kind == ExpressionKind::Flag;
    if (flagFirst == flagSecond)
        return false;
    const Expression &flag = at(flagFirst ? node.first : node.second);
    operand(flagFirst ? node.second : node.first);
    m_sql += flag.affirmed == (node.operation == Operator::Equal) ? " <> 0" : " = 0";
    return true;
}

void ExpressionWriter::noteComparison(Node column, Node literal)
{
    if (at(column).kind != ExpressionKind::Column)
        return;
    const Expression &value = at(at(literal).kind == ExpressionKind::Negation ? at(literal).first : literal);
    if (value.kind == ExpressionKind::Text || value.kind == ExpressionKind::Number)
        m_out.comparisons.push_back({reference(at(column)), value.kind == ExpressionKind::Text});
}

// SQLite's "/" divides two integers without a rest, so one side becomes a REAL. "\" and Mod round both sides to
// integers first. "+" with a text joins texts; unlike "&" it gives Null where one side is Null, as SQLite's "||" does.
void ExpressionWriter::arithmetic(const Expression &node)
{
    const bool isWhole = node.operation == Operator::DivideWhole || node.operation == Operator::Modulo;
    const auto number = [this, isWhole](Node side, bool asReal) {
        m_sql += isWhole ? "CAST(round(" : asReal ? "CAST(" : "";
        operand(side);
        m_sql += isWhole ? ") AS INTEGER)" : asReal ? " AS REAL)" : "";
    };
    const bool joins = node.operation == Operator::Add && (givesText(node.first) || givesText(node.second));
    number(node.first, node.operation == Operator::Divide);
    m_sql += symbolOf(joins ? Operator::Concatenate : node.operation);
    number(node.second, false);
}

// "&" counts Null as the empty text.
void ExpressionWriter::concatenation(const Expression &node)
{
    for (const Node side : {node.first, node.second}) {
        m_sql += "COALESCE(";
        write(side);
        m_sql += side == node.first ? ", '') || " : ", '')";
    }
}

void ExpressionWriter::like(const Expression &node)
{
    if (!node.affirmed)
        m_sql += "NOT (";
    if (isText(node.second)) {
        likePattern(node, at(node.second));
    } else {
        likeCall(node);
    }
    if (!node.affirmed)
        m_sql += ')';
}

void ExpressionWriter::likePattern(const Expression &node, const Expression &pattern)
{
    const LikePattern parts = analyzedPattern(textValue(pattern.text));
    if (parts.kind == PatternKind::Any) { // true, or Null for a Null
        m_sql += '(';
        operand(node.first);
        m_sql += " IS NOT NULL OR NULL)";
        return;
    }
    if (parts.kind == PatternKind::Literal) {
        operand(node.first);
        m_sql += " = ";
        text(pattern);
        m_sql += equalityRule(pattern.text);
        return;
    }
    if (parts.lowest.isEmpty() || !namesItsTable(at(node.first)))
        return likeCall(node);
    const qsizetype begin = m_sql.size();
    likeCall(node);
    LikeRange written{reference(at(node.first)), begin, 0, m_sql.sliced(begin)};
    m_sql.truncate(begin);
    range(node.first, parts.lowest, parts.beyond);
    if (parts.kind == PatternKind::Mixed) {
        m_sql += " AND ";
        likeCall(node);
    }
    written.length = m_sql.size() - begin;
    m_out.likeRanges.push_back(std::move(written));
}

// A column whose table can be told, so that the engine can look up its type.
bool ExpressionWriter::namesItsTable(const Expression &node) const
{
    return node.kind == ExpressionKind::Column && (!node.qualifier.isEmpty() || m_tree.onlyTable());
}

void ExpressionWriter::likeCall(const Expression &node)
{
    m_out.callsLike = true;
    m_sql += "store_like(";
    write(node.second);
    m_sql += ", ";
    write(node.first);
    m_sql += ')';
}

// The range of an index in NOCASE that holds the texts with this beginning.
void ExpressionWriter::range(Node column, const QString &lowest, const QString &beyond)
{
    operand(column);
    m_sql += " COLLATE NOCASE >= ";
    appendQuoted(m_sql, lowest, '\'');
    if (beyond.isEmpty())
        return;
    m_sql += " AND ";
    operand(column);
    m_sql += " COLLATE NOCASE < ";
    appendQuoted(m_sql, beyond, '\'');
}

// The dialect takes the limits in either order.
void ExpressionWriter::between(const Expression &node)
{
    noteComparison(node.first, node.second);
    noteComparison(node.first, node.third);
    const bool ofTexts = givesText(node.first) || givesText(node.second) || givesText(node.third);
    const auto inOrder = [&](Node lower, Node upper) {
        operand(node.first);
        m_sql += ofTexts ? inStoreOrder : QByteArrayView();
        m_sql += " BETWEEN ";
        operand(lower);
        m_sql += " AND ";
        operand(upper);
    };
    m_sql += node.affirmed ? "(" : "NOT (";
    inOrder(node.second, node.third);
    m_sql += " OR ";
    inOrder(node.third, node.second);
    m_sql += ')';
}

// The list has one collation: NOCASE, if all its items are ASCII literals.
void ExpressionWriter::inList(const Expression &node)
{
    bool ofTexts = givesText(node.first);
    bool ascii = true;
    for (Node item = node.second; item != none; item = at(item).next) {
        noteComparison(node.first, item);
        ofTexts = ofTexts || givesText(item);
        ascii = ascii && isText(item) && isAscii(at(item).text);
    }
    operand(node.first);
    if (ofTexts)
        m_sql += ascii ? " COLLATE NOCASE" : inStoreOrder;
    m_sql += node.affirmed ? " IN (" : " NOT IN (";
    for (Node item = node.second; item != none; item = at(item).next) {
        operand(item);
        m_sql += at(item).next == none ? ")" : ", ";
    }
}

void ExpressionWriter::call(const Expression &node)
{
    switch (node.function) {
    case Function::Date:
        m_sql += "strftime('%Y-%m-%d 00:00:00', 'now', 'localtime')";
        return;
    case Function::Now:
        m_sql += "datetime('now', 'localtime')";
        return;
    case Function::Count:
        m_sql += "COUNT(";
        break;
    case Function::Max:
        m_sql += "MAX(";
        break;
    case Function::Min:
        m_sql += "MIN(";
        break;
    case Function::Sum:
        m_sql += "SUM(";
        break;
    case Function::Avg:
        m_sql += "AVG(";
        break;
    }
    if (node.first == none)
        m_sql += '*';
    else if (node.function == Function::Max || node.function == Function::Min)
        writeOrdered(node.first);
    else
        write(node.first);
    m_sql += ')';
}

ColumnReference ExpressionWriter::reference(const Expression &column) const
{
    if (column.qualifier.isEmpty())
        return {{}, column.text.toString()};
    for (const Source &source : m_tree.sources) {
        if (source.isTable() && source.name().compare(column.qualifier, Qt::CaseInsensitive) == 0)
            return {source.table.toString(), column.text.toString()};
    }
    return {column.qualifier.toString(), column.text.toString()};
}

std::optional<runtime::Value> ExpressionWriter::literalOf(Node node) const
{
    const Expression &expression = at(node);
    switch (expression.kind) {
    case ExpressionKind::Text:
        return runtime::Value(textValue(expression.text));
    case ExpressionKind::Number:
        return numberValue(expression.text, false);
    case ExpressionKind::Date:
        return runtime::Value(*dateValue(expression.text));
    case ExpressionKind::Flag:
        return runtime::Value(expression.affirmed);
    case ExpressionKind::Null:
        return runtime::Value();
    case ExpressionKind::Negation:
        if (at(expression.first).kind == ExpressionKind::Number)
            return numberValue(at(expression.first).text, true);
        return std::nullopt;
    default:
        return std::nullopt;
    }
}

} // namespace sql
