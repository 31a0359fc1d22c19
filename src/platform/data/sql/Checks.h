// Faults of a SELECT that shows only when it is read whole: aliases, grouping, DISTINCT.
#pragma once

#include "platform/data/sql/Ast.h"

namespace sql {

// Max, Min, Count, Sum or Avg.
bool isAggregate(const Expression &expression);
// The rows of the result are groups of rows.
bool isGrouped(const Tree &tree);

// Raises the dialect's error for the first fault.
void checkSelect(const Tree &tree);

} // namespace sql
