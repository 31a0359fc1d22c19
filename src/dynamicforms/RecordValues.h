// A person's values on their way between the data store and the rows of the record window: each page's table is named
// by its caption, each column by its field.
//
// The page "Resources" has no table of its own and is left out. A table, a column or a person's row that is missing
// ends the call with the error of the data objects; what has been written before stays.
#pragma once

#include "dynamicforms/FieldRows.h"
#include "dynamicforms/RecordPage.h"

// What the window holds when it writes.
struct RecordPages
{
    const FieldRows &rows;
    QStringList captions; // of all tabs
    int selected = 0;     // the tab, from 1, whose values are those of the boxes; the others' are those of the rows
    QList<BoxValue> boxes;

    // Error 91 when no tab is selected.
    const QString &selectedCaption() const;
};

// Takes every value into its row. A Null leaves what the row held before.
void readPerson(FieldRows &rows, const QStringList &captions, qint16 recordId);

void savePerson(const RecordPages &pages, qint16 recordId);

// Adds the person and then a row in every page's table under his new key. When [Personal Information] is such a page, a
// second row with the same number is added to it: the table that comes with the data file drops that row without an
// error (ON CONFLICT IGNORE), one that the designer generated keeps it.
void addPerson(const RecordPages &pages);

// Sets Active to 0. No row is deleted.
void markDeleted(qint16 recordId);
