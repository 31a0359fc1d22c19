// The rows of the files that are attached to somebody: what the dossier and the record window do alike with them.
//
// An owner is given by the column that links to him and by his key. Names and versions go into the statements as they
// stand: an apostrophe breaks them. Errors: those of the data objects and of StoredFile.h.
#pragma once

#include "platform/data/Connection.h"
#include "platform/data/Recordset.h"
#include "platform/desktop/CommonDialog.h"
#include "platform/desktop/ListView.h"

struct AttachmentOwner
{
    QStringView column; // of Attachments
    qint16 id;
};

// The version of a new row. It gets the rows of the same name, whoever owns them, the newest version first.
using NextVersion = runtime::Value (*)(data::Recordset &versions);

// Adds a row for the file. attachments: all rows, opened on the connection in order to append.
void addAttachment(data::Connection &connection, data::Recordset &attachments, const AttachmentOwner &owner,
                   const QString &path, const QString &name, NextVersion nextVersion);

// Opens the connection, asks for a file and adds it. False when none is chosen: the connection is closed then.
bool uploadAttachment(data::Connection &connection, desktop::CommonDialog &dialog, const AttachmentOwner &owner,
                      NextVersion nextVersion);

// Opens the connection and finds the row of the selected line by its version, name and owner. The line's text is the
// name, its sub-item 2 the version. Error 91 when no line is selected.
data::Recordset selectedAttachment(data::Connection &connection, const desktop::ListView &list,
                                   const AttachmentOwner &owner);

// Writes the file where the user says; nothing when he cancels. Error 75 for a stored name that is no file name: the
// dialog would suggest a place that the data file chose.
void saveAttachment(data::Recordset &attachment, desktop::CommonDialog &dialog);

// Writes a copy under the name to the temp folder, closes the connection and opens the copy.
void viewAttachment(data::Connection &connection, data::Recordset &attachment, const QString &name);
