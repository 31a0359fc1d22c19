// A statement as a tree. Its texts are views into the statement, which must outlive it.
//
// Nodes are stored in arrays and refer to one another by their index; `none` means no node. Trees of the usual size fit
// into the arrays' own storage, without heap memory.
#pragma once

#include "platform/data/sql/Translation.h"

#include <QStringView>
#include <QVarLengthArray>

namespace sql {

// Names of tables, columns and aliases are the same whatever their case.
inline bool isSame(QStringView a, QStringView b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

using Node = int;
inline constexpr Node none = -1;

enum class ExpressionKind {
    Column,
    Text,
    Number,
    Date,
    Flag,
    Null,
    Operation,
    Negation,
    Not,
    IsNull,
    Like,
    Between,
    In,
    Call
};

enum class Operator {
    Or,
    And,
    Equal,
    NotEqual,
    Less,
    LessOrEqual,
    Greater,
    GreaterOrEqual,
    Concatenate,
    Add,
    Subtract,
    Modulo,
    DivideWhole,
    Multiply,
    Divide
};

// The first five are aggregate functions.
enum class Function { Count, Max, Min, Sum, Avg, Date, Now };

struct Expression
{
    ExpressionKind kind = ExpressionKind::Null;
    Operator operation = Operator::And;  // of an Operation
    Function function = Function::Count; // of a Call
    bool affirmed = true;                // Flag: Yes or No; IsNull, Like, Between, In: false with a Not
    QStringView qualifier;               // Column: the table or its alias, if there is one
    QStringView text;                    // Column: its name; Text, Number, Date: as written, with its quotes
    Node first = none;
    Node second = none; // In: the first item of the list, whose items are linked by `next`
    Node third = none;
    Node next = none;
};

// One item of the list of a SELECT. "*" and "T.*" have no expression.
struct ListItem
{
    Node expression = none;
    QStringView alias;
    QStringView allOf; // T of "T.*"
};

enum class JoinKind { Inner, Left, Right };

// A table of the FROM clause, or a join of two sources.
struct Source
{
    QStringView table;
    QStringView alias;
    JoinKind join = JoinKind::Inner;
    Node left = none;
    Node right = none;
    Node condition = none;

    bool isTable() const { return left == none; }
    QStringView name() const { return alias.isEmpty() ? table : alias; }
};

struct OrderItem
{
    Node expression = none;
    bool descending = false;
};

// A column of an INSERT or UPDATE and what goes into it.
struct Target
{
    QStringView column;
    Node value = none;
};

// Which members are filled depends on the kind: list, groupBy, having, orderBy and top belong to SELECT, targets to
// INSERT and UPDATE.
struct Tree
{
    StatementKind kind = StatementKind::Select;
    QVarLengthArray<Expression, 64> expressions;
    QVarLengthArray<Source, 8> sources;
    QVarLengthArray<Node, 4> from; // sources between which a comma stands
    QVarLengthArray<ListItem, 16> list;
    QVarLengthArray<Target, 16> targets;
    QVarLengthArray<Node, 4> groupBy;
    QVarLengthArray<OrderItem, 4> orderBy;
    Node where = none;
    Node having = none;
    QStringView top; // the number of TOP
    bool distinct = false;
    bool hasAggregate = false; // somewhere in the statement

    const Expression &at(Node node) const { return expressions[node]; }
    // The one table of the statement; null when there are several or none.
    const Source *onlyTable() const { return sources.size() == 1 ? &sources[0] : nullptr; }
};

} // namespace sql
