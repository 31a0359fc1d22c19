// Writes the expressions of a tree in SQLite's SQL, with the store's rules of comparison. What the engine has to check
// or provide goes into the translation: comparisons with literals, and LIKE.
#pragma once

#include "platform/data/sql/Ast.h"

namespace sql {

class ExpressionWriter
{
public:
    ExpressionWriter(const Tree &tree, Translation &translation)
        : m_tree(tree), m_out(translation), m_sql(translation.sql)
    {
    }

    void write(Node node);
    // With the store's collation, for ORDER BY and GROUP BY.
    void writeOrdered(Node node);

    // The column with the name of its table, where the expression has the table's alias.
    ColumnReference reference(const Expression &column) const;
    // The value of a literal, a signed number included; nothing for any other expression.
    std::optional<runtime::Value> literalOf(Node node) const;

private:
    void operand(Node node);
    void negation(const Expression &node);
    void operation(const Expression &node);
    void junction(const Expression &node, QByteArrayView word);
    void comparison(const Expression &node);
    bool flagComparison(const Expression &node);
    void arithmetic(const Expression &node);
    void concatenation(const Expression &node);
    void like(const Expression &node);
    void likePattern(const Expression &node, const Expression &pattern);
    bool namesItsTable(const Expression &node) const;
    void likeCall(const Expression &node);
    void range(Node column, const QString &lowest, const QString &beyond);
    void between(const Expression &node);
    void inList(const Expression &node);
    void call(const Expression &node);
    void text(const Expression &node);
    void noteComparison(Node column, Node literal);
    bool isText(Node node) const { return at(node).kind == ExpressionKind::Text; }
    bool givesText(Node node) const;
    const Expression &at(Node node) const { return m_tree.at(node); }

    const Tree &m_tree;
    Translation &m_out;
    QByteArray &m_sql;
};

} // namespace sql
