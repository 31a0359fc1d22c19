// Writes a tree as one statement of SQLite, with all else that a translation tells.
#pragma once

#include "platform/data/sql/Ast.h"

namespace sql {

// Raises the dialect's error for a SELECT whose clauses contradict one another.
Translation written(const Tree &tree, qsizetype sourceLength);

} // namespace sql
