#include "platform/data/sql/Checks.h"

#include "platform/data/sql/SyntaxError.h"
#include "platform/runtime/ProviderError.h"

#include <algorithm>
#include <functional>

using namespace Qt::Literals::StringLiterals;

namespace sql {

namespace {

// A column without a table's name may belong to any table, so it counts as the same as one with a table's name.
bool isSameColumn(const Expression &a, const Expression &b)
{
    const bool sameTable = a.qualifier.isEmpty() || b.qualifier.isEmpty() || isSame(a.qualifier, b.qualifier);
    return a.kind == ExpressionKind::Column && b.kind == ExpressionKind::Column && sameTable && isSame(a.text, b.text);
}

// The first node, from the given one downwards, that passes the test. Does not look at or below nodes that `skip`
// accepts.
Node find(const Tree &tree, Node node, const std::function<bool(const Expression &)> &test,
          const std::function<bool(const Expression &)> &skip)
{
    if (node == none || skip(tree.at(node)))
        return none;
    const Expression &expression = tree.at(node);
    if (test(expression))
        return node;
    for (const Node part : {expression.first, expression.second, expression.third, expression.next}) {
        if (const Node found = find(tree, part, test, skip); found != none)
            return found;
    }
    return none;
}

bool skipNothing(const Expression &)
{
    return false;
}

QString nameOf(const Expression &column)
{
    const QString name = column.text.toString();
    return column.qualifier.isEmpty() ? name : column.qualifier.toString() + u'.' + name;
}

// Raises the error for two equal aliases and for an alias whose own expression reads it.
void checkAliases(const Tree &tree)
{
    for (auto item = tree.list.begin(); item != tree.list.end(); ++item) {
        if (item->alias.isEmpty())
            continue;
        const auto isRepeated = [item](const ListItem &other) { return isSame(other.alias, item->alias); };
        if (std::any_of(tree.list.begin(), item, isRepeated))
            throw syntaxError(u"Duplicate output alias '%1'."_s.arg(item->alias));
        const auto isItself = [item](const Expression &part) {
            return part.kind == ExpressionKind::Column && part.qualifier.isEmpty() && isSame(part.text, item->alias);
        };
        if (tree.at(item->expression).kind != ExpressionKind::Column &&
            find(tree, item->expression, isItself, skipNothing) != none)
            throw syntaxError(
                u"Circular reference caused by alias '%1' in query definition's SELECT list."_s.arg(item->alias));
    }
}

// Raises the error for a column of the list that is neither in GROUP BY nor inside an aggregate function.
void checkGrouping(const Tree &tree)
{
    const auto refuse = [](const QString &what) {
        throw provider::error(provider::MultipleStep,
                              u"You tried to execute a query that does not include the specified expression '%1' as "
                              u"part of an aggregate function."_s.arg(what));
    };
    const auto isLoose = [&tree](const Expression &part) {
        return part.kind == ExpressionKind::Column &&
               std::none_of(tree.groupBy.begin(), tree.groupBy.end(),
                            [&](Node group) { return isSameColumn(tree.at(group), part); });
    };
    for (const ListItem &item : tree.list) {
        if (item.expression == none)
            refuse(u"*"_s);
        const Node loose = find(tree, item.expression, isLoose, isAggregate);
        if (loose != none)
            refuse(nameOf(tree.at(loose)));
    }
}

// Equal rows become one, which has the values of the list alone: raises the error for an order by any other column.
void checkDistinctOrder(const Tree &tree)
{
    for (const OrderItem &order : tree.orderBy) {
        const Expression &by = tree.at(order.expression);
        const auto delivers = [&](const ListItem &item) {
            return item.expression == none || isSameColumn(tree.at(item.expression), by);
        };
        if (by.kind == ExpressionKind::Column && std::none_of(tree.list.begin(), tree.list.end(), delivers))
            throw syntaxError(u"ORDER BY clause (%1) conflicts with DISTINCT."_s.arg(nameOf(by)));
    }
}

} // namespace

bool isAggregate(const Expression &expression)
{
    return expression.kind == ExpressionKind::Call && expression.function != Function::Date &&
           expression.function != Function::Now;
}

bool isGrouped(const Tree &tree)
{
    return tree.hasAggregate || !tree.groupBy.isEmpty() || tree.having != none;
}

void checkSelect(const Tree &tree)
{
    checkAliases(tree);
    if (isGrouped(tree))
        checkGrouping(tree);
    else if (tree.distinct)
        checkDistinctOrder(tree);
}

} // namespace sql
