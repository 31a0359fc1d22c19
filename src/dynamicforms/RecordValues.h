// A person's values on their way between the data store and the rows of the record window: each page's table is named
// by its caption, each column by its field.
//
// The page "Resources" has no table of its own and is left out. Nothing is held back: a table, a column or the person's
// row that is missing ends the call, and what has been written up to there stays.
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

// Adds the person and, under the key that he gets, a row of every page's table, his own among them: the data store
// decides what becomes of that second row.
void addPerson(const RecordPages &pages);

// The person's rows stay.
void markDeleted(qint16 recordId);
