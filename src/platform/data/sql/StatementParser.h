// Reads a whole statement into a tree, or raises the dialect's error for the first thing in it that does not fit.
#pragma once

#include "platform/data/sql/Ast.h"

namespace sql {

// Fills an empty tree, whose texts are views into the source.
void parse(QStringView source, Tree &tree);

} // namespace sql
