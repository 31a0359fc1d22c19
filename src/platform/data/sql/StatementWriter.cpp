#include "platform/data/sql/StatementWriter.h"

#include "platform/data/sql/Checks.h"
#include "platform/data/sql/ExpressionWriter.h"
#include "platform/data/sql/Literal.h"
#include "platform/data/sql/SqlText.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace sql {

namespace {

QByteArrayView joinWord(JoinKind kind)
{
    switch (kind) {
    case JoinKind::Inner:
        break;
    case JoinKind::Left:
        return " LEFT JOIN ";
    case JoinKind::Right:
        return " RIGHT JOIN ";
    }
    return " INNER JOIN ";
}

class StatementWriter
{
public:
    StatementWriter(const Tree &tree, Translation &translation)
        : m_tree(tree), m_out(translation), m_sql(translation.sql), m_expressions(tree, translation)
    {
    }

    void statement();

private:
    void select();
    void list();
    void item(const ListItem &item, int &unnamed);
    void rowId();
    void from();
    void source(Node node);
    void side(Node part);
    bool canChain(const Source &source) const;
    bool isColumnOf(const Source &table, Node node) const;
    bool mayRead(const Source &table, Node node) const;
    void table(const Source &source);
    void where();
    void noteKey();
    void groupBy();
    bool isColumnOfTable() const;
    void fromDistinctValues();
    void distinctGroups();
    void orderBy();
    void orderItem(const OrderItem &item);
    void insert();
    void update();
    void remove();
    void targetValue(const Target &target);

    const Tree &m_tree;
    Translation &m_out;
    QByteArray &m_sql;
    ExpressionWriter m_expressions;
    bool m_grouped = false;
};

void StatementWriter::statement()
{
    m_out.kind = m_tree.kind;
    if (const Source *only = m_tree.onlyTable())
        m_out.table = only->table.toString();
    switch (m_tree.kind) {
    case StatementKind::Select:
        return select();
    case StatementKind::Insert:
        return insert();
    case StatementKind::Update:
        return update();
    case StatementKind::Delete:
        return remove();
    }
}

// Where each row of the result is a row of one table, its row id is added as the last column: by it the row is found
// again.
void StatementWriter::select()
{
    checkSelect(m_tree);
    m_grouped = isGrouped(m_tree);
    const bool hasAll = std::any_of(m_tree.list.begin(), m_tree.list.end(),
                                    [](const ListItem &listed) { return listed.expression == none; });
    const bool groupsDistinct = m_tree.distinct && !m_grouped && !hasAll;
    m_out.carriesRowId = m_tree.onlyTable() && !m_tree.distinct && !m_grouped;
    m_sql += m_tree.distinct && !groupsDistinct ? "SELECT DISTINCT " : "SELECT ";
    list();
    if (groupsDistinct && isColumnOfTable())
        fromDistinctValues();
    else
        from();
    where();
    if (m_out.carriesRowId)
        noteKey();
    if (groupsDistinct)
        distinctGroups();
    else
        groupBy();
    orderBy();
    if (!m_out.likeRanges.empty())
        m_out.key.reset();
    if (!m_tree.top.isEmpty()) {
        m_sql += " LIMIT ";
        appendUtf8(m_sql, m_tree.top);
    }
}

void StatementWriter::list()
{
    m_out.listBegin = m_sql.size();
    int unnamed = 1000;
    for (const ListItem &listed : m_tree.list)
        item(listed, unnamed);
    if (m_out.carriesRowId)
        rowId();
    else
        m_sql.chop(2);
    m_out.listLength = m_sql.size() - m_out.listBegin;
}

// The item and a comma. An expression without a name gets the next of Expr1000, Expr1001 ...
void StatementWriter::item(const ListItem &item, int &unnamed)
{
    if (item.expression == none) {
        if (!item.allOf.isEmpty()) {
            appendName(m_sql, item.allOf);
            m_sql += '.';
        }
        m_sql += "*, ";
        return;
    }
    const Expression &expression = m_tree.at(item.expression);
    const bool isColumn = expression.kind == ExpressionKind::Column;
    m_expressions.write(item.expression);
    if (!isColumn || !item.alias.isEmpty()) {
        const QString name = item.alias.isEmpty() ? u"Expr"_s + QString::number(unnamed++) : item.alias.toString();
        m_sql += " AS ";
        appendName(m_sql, name);
        const bool isExtreme = expression.kind == ExpressionKind::Call &&
                               (expression.function == Function::Max || expression.function == Function::Min);
        if (isExtreme && m_tree.at(expression.first).kind == ExpressionKind::Column)
            m_out.computed.push_back({name, m_expressions.reference(m_tree.at(expression.first))});
    }
    m_sql += ", ";
}

void StatementWriter::rowId()
{
    appendName(m_sql, m_tree.onlyTable()->name());
    m_sql += "._rowid_";
}

void StatementWriter::from()
{
    const char *before = " FROM ";
    for (const Node node : m_tree.from) {
        m_sql += before;
        source(node);
        before = ", ";
    }
}

void StatementWriter::table(const Source &source)
{
    appendName(m_sql, source.table);
    if (!source.alias.isEmpty()) {
        m_sql += " AS ";
        appendName(m_sql, source.alias);
    }
}

// One side of a join.
void StatementWriter::side(Node part)
{
    if (m_tree.sources[part].isTable())
        return table(m_tree.sources[part]);
    m_sql += '(';
    source(part);
    m_sql += ')';
}

void StatementWriter::source(Node node)
{
    const Source &source = m_tree.sources[node];
    if (source.isTable())
        return table(source);
    const bool chains = canChain(source);
    const Source &right = m_tree.sources[source.right];
    side(source.left);
    m_sql += joinWord(source.join);
    side(chains ? right.left : source.right);
    m_sql += " ON ";
    m_expressions.write(source.condition);
    if (!chains)
        return;
    m_sql += joinWord(right.join);
    side(right.right);
    m_sql += " ON ";
    m_expressions.write(right.condition);
}

// For A LEFT JOIN (B LEFT JOIN C ON p) ON q SQLite reads all of B and C; for A LEFT JOIN B ON q LEFT JOIN C ON p it
// finds their rows by indexes. Both deliver the same rows if q does not read C and p is not true where B's columns are
// Null.
bool StatementWriter::canChain(const Source &source) const
{
    const Source &right = m_tree.sources[source.right];
    if (source.join != JoinKind::Left || right.isTable() || right.join != JoinKind::Left)
        return false;
    const Source &middle = m_tree.sources[right.left];
    const Source &last = m_tree.sources[right.right];
    if (!middle.isTable() || !last.isTable() || mayRead(last, source.condition))
        return false;
    const Expression &matching = m_tree.at(right.condition);
    return matching.kind == ExpressionKind::Operation && matching.operation == Operator::Equal &&
           (isColumnOf(middle, matching.first) || isColumnOf(middle, matching.second));
}

bool StatementWriter::isColumnOf(const Source &table, Node node) const
{
    const Expression &expression = m_tree.at(node);
    return expression.kind == ExpressionKind::Column &&
           expression.qualifier.compare(table.name(), Qt::CaseInsensitive) == 0;
}

// True also for a name without a table, since it may belong to this one.
bool StatementWriter::mayRead(const Source &table, Node node) const
{
    if (node == none)
        return false;
    const Expression &expression = m_tree.at(node);
    if (expression.kind == ExpressionKind::Column && (expression.qualifier.isEmpty() || isColumnOf(table, node)))
        return true;
    return mayRead(table, expression.first) || mayRead(table, expression.second) || mayRead(table, expression.third) ||
           mayRead(table, expression.next);
}

void StatementWriter::where()
{
    if (m_tree.where == none)
        return;
    m_sql += " WHERE ";
    m_expressions.write(m_tree.where);
}

// Called when the condition is the last thing that was written.
void StatementWriter::noteKey()
{
    if (m_tree.where == none)
        return;
    const Expression &condition = m_tree.at(m_tree.where);
    if (condition.kind != ExpressionKind::Operation || condition.operation != Operator::Equal ||
        m_tree.at(condition.first).kind != ExpressionKind::Column ||
        m_tree.at(condition.second).kind != ExpressionKind::Number)
        return;
    const QStringView literal = m_tree.at(condition.second).text;
    const runtime::Value number = numberValue(literal, false);
    // For 0 and 1 SQLite expects more rows than for other numbers and may take another way to them.
    if (number.is<qint32>() && number.get<qint32>() > 1)
        m_out.key = {m_sql.size() - literal.size(), literal.size(), number.get<qint32>()};
}

void StatementWriter::groupBy()
{
    const char *before = " GROUP BY ";
    for (const Node node : m_tree.groupBy) {
        m_sql += before;
        m_expressions.writeOrdered(node);
        before = ", ";
    }
    if (m_tree.having != none) {
        m_sql += " HAVING ";
        m_expressions.write(m_tree.having);
    }
}

// Whether the statement asks for one column of one whole table, in no order of its own.
bool StatementWriter::isColumnOfTable() const
{
    return m_tree.onlyTable() && m_tree.where == none && m_tree.orderBy.empty() && m_tree.list.size() == 1 &&
           m_tree.at(m_tree.list.front().expression).kind == ExpressionKind::Column;
}

// SQLite finds the values that differ in the order of the column's index; the few that are left are grouped. Grouping
// by the store's comparison needs a sort, which for all rows takes several times as long. The column's own collation
// takes no texts for equal that the store does not.
void StatementWriter::fromDistinctValues()
{
    m_sql += " FROM (SELECT DISTINCT ";
    m_expressions.write(m_tree.list.front().expression);
    from();
    m_sql += ") AS ";
    appendName(m_sql, m_tree.onlyTable()->name());
}

// Writes DISTINCT as GROUP BY over the whole list: SQLite's DISTINCT would compare by the columns' own collation, and
// the dialect delivers distinct rows in ascending order.
void StatementWriter::distinctGroups()
{
    const char *before = " GROUP BY ";
    int ordinal = 0;
    for (const ListItem &item : m_tree.list) {
        m_sql += before;
        before = ", ";
        ++ordinal;
        if (m_tree.at(item.expression).kind == ExpressionKind::Column)
            m_expressions.writeOrdered(item.expression);
        else
            m_sql += QByteArray::number(ordinal) + " COLLATE STORE";
    }
}

void StatementWriter::orderBy()
{
    const char *before = " ORDER BY ";
    for (const OrderItem &item : m_tree.orderBy) {
        m_sql += before;
        orderItem(item);
        before = ", ";
    }
}

// The dialect takes a name without a table for the table's column; SQLite would prefer an alias of the list that has
// the same name, so the table is added.
void StatementWriter::orderItem(const OrderItem &item)
{
    const Expression &expression = m_tree.at(item.expression);
    const Source *only = m_tree.onlyTable();
    if (expression.kind == ExpressionKind::Column && expression.qualifier.isEmpty() && only) {
        appendName(m_sql, only->name());
        m_sql += '.';
    }
    m_expressions.writeOrdered(item.expression);
    m_sql += item.descending ? " DESC" : "";
}

// A literal becomes a parameter: the engine binds it after it has converted it to the column's type.
void StatementWriter::targetValue(const Target &target)
{
    if (auto literal = m_expressions.literalOf(target.value)) {
        m_out.assignments.push_back({target.column.toString(), std::move(*literal)});
        m_sql += '?' + QByteArray::number(qint64(m_out.assignments.size()));
    } else {
        m_expressions.write(target.value);
    }
}

void StatementWriter::insert()
{
    m_out.assignments.reserve(size_t(m_tree.targets.size()));
    m_sql += "INSERT INTO ";
    table(m_tree.sources[0]);
    const char *before = " (";
    for (const Target &target : m_tree.targets) {
        m_sql += before;
        appendName(m_sql, target.column);
        before = ", ";
    }
    before = ") VALUES (";
    for (const Target &target : m_tree.targets) {
        m_sql += before;
        targetValue(target);
        before = ", ";
    }
    m_sql += ')';
}

void StatementWriter::update()
{
    m_out.assignments.reserve(size_t(m_tree.targets.size()));
    m_sql += "UPDATE ";
    table(m_tree.sources[0]);
    const char *before = " SET ";
    for (const Target &target : m_tree.targets) {
        m_sql += before;
        appendName(m_sql, target.column);
        m_sql += " = ";
        targetValue(target);
        before = ", ";
    }
    where();
}

// The dialect's list of columns is not written: DELETE removes whole rows.
void StatementWriter::remove()
{
    m_sql += "DELETE FROM ";
    table(m_tree.sources[0]);
    where();
}

} // namespace

Translation writeStatement(const Tree &tree, qsizetype sourceLength)
{
    Translation translation;
    translation.sql.reserve(sourceLength + sourceLength / 2 + 64);
    StatementWriter(tree, translation).statement();
    return translation;
}

} // namespace sql
