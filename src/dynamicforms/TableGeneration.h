// Turns the pages of a form into tables of the data store: a table bears its page's caption, a column its field's name.
//
// A table that exists, whoever made it, is never dropped or emptied: it gains the columns that it lacks. What
// is refused on the way to a new table (a name that stands twice, a table that exists) is passed over without a word; a
// failure at an existing table goes to the caller.
#pragma once

#include "dynamicforms/FieldRows.h"

#include <QStringList>

// For every caption: gives its table the columns that it lacks, then calls createTable, whether the table exists or
// not. Error 9 for an existing table while there has never been a row.
void generateTables(const QStringList &captions, const FieldRows &rows);

// Makes the table with its number, its link to the person and its date of entry, and a text column for each field.
void createTable(const QString &TableName, const FieldRows &rows);
