// Checks of a SELECT that need the whole statement: aliases, grouping, and the order of DISTINCT rows.
#pragma once

#include "platform/data/sql/Ast.h"

namespace sql {

// Max, Min, Count, Sum or Avg.
bool isAggregate(const Expression &expression);
// Each row of the result stands for a group of rows.
bool isGrouped(const Tree &tree);

// Raises the dialect's error for the first fault.
void checkSelect(const Tree &tree);

} // namespace sql
