// The ORDER BY tail of a list's statement: empty until a column header is clicked, then " ORDER BY COLUMN ASC" or DESC.
#pragma once

#include <QString>

// The clause after a click on the column with this tag: ascending at first, and from then on the other way each time.
QString sortClauseAfterClick(const QString &clause, const QString &tag);

// The direction as the headline tells it: "ascending" or "descending".
QString sortDirection(const QString &clause);
