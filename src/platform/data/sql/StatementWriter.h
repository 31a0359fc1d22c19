// Writes a tree as one statement of SQLite and fills in the other members of the translation.
#pragma once

#include "platform/data/sql/Ast.h"

namespace sql {

// `sourceLength` is that of the dialect's text, for a first guess at the memory. Raises the dialect's error for a
// SELECT whose clauses contradict one another.
Translation writeStatement(const Tree &tree, qsizetype sourceLength);

} // namespace sql
