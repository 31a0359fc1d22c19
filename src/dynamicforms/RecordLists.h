// The three fixed pages of the record window, each a list of what the data store has about a person beside his fields.
//
// Failures go to the caller: error 13 for an event whose start or end is no date, and those of the data objects.
#pragma once

#include "parts/ListedColumns.h"

struct RecordList
{
    QStringView caption;        // of its tab
    QStringView statementStart; // the person's key follows
    QStringView statementEnd;
    std::span<const ListedColumn> columns;
    QStringView command; // the caption of cmdEdit while the list is shown
};

extern const RecordList attachmentsList;
extern const RecordList resourcesList;
extern const RecordList eventsList;

// Shows the list with the person's rows in the place of what it showed.
void showRecordList(desktop::ListView &view, const RecordList &list, qint16 recordId);
