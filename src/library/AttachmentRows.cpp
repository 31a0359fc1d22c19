#include "library/AttachmentRows.h"

#include "library/StoredFile.h"
#include "platform/desktop/Launch.h"
#include "platform/desktop/LongWork.h"
#include "platform/runtime/Conversion.h"
#include "platform/runtime/Files.h"
#include "shell/store/DataStore.h"

using namespace Qt::Literals::StringLiterals;

void addAttachment(data::Connection &connection, data::Recordset &attachments, const AttachmentOwner &owner,
                   const QString &path, const QString &name, NextVersion nextVersion)
{
    attachments.AddNew();
    data::Recordset versions = openRows(connection, u"select * from Attachments where AttachmentsName = '"_s + name +
                                                        u"' ORDER BY AttachmentVersion desc"_s);
    FileToStore file(path);
    attachments[owner.column].setValue(runtime::Value(owner.id));
    attachments[u"AttachmentsName"].setValue(name);
    attachments[u"Attachments"].AppendChunk(file.bytes());
    attachments[u"AttachmentVersion"].setValue(nextVersion(versions));
    attachments.Update();
    file.close();
}

bool uploadAttachment(data::Connection &connection, desktop::CommonDialog &dialog, const AttachmentOwner &owner,
                      NextVersion nextVersion)
{
    openDataStore(connection);
    data::Recordset attachments = openRows(connection, u"select * from Attachments"_s);
    dialog.DialogTitle = u"OPEN FILE"_s;
    dialog.Filter = u"All files (*.*)|*.*|DOC files (*.doc)|*.doc|PDF files (*.pdf)|*.pdf"_s;
    if (!dialog.ShowOpen()) {
        connection.Close();
        return false;
    }
    addAttachment(connection, attachments, owner, dialog.FileName, dialog.FileTitle, nextVersion);
    return true;
}

data::Recordset selectedAttachment(data::Connection &connection, const desktop::ListView &list,
                                   const AttachmentOwner &owner)
{
    openDataStore(connection);
    const desktop::ListItem &item = *list.SelectedItem();
    return openRows(connection, u"select * from Attachments where AttachmentVersion = "_s + item.SubItems(2) +
                                    u" and AttachmentsName = '"_s + item.Text() + u"' and "_s +
                                    owner.column.toString() + u" ="_s + QString::number(owner.id));
}

void saveAttachment(data::Recordset &attachment, desktop::CommonDialog &dialog)
{
    dialog.FileName = runtime::fileName(runtime::toText(attachment[u"AttachmentsName"].Value()));
    if (!dialog.ShowSave())
        return;
    const desktop::LongWork work;
    fetchInto(attachment, u"Attachments", dialog.FileName);
}

// The copy is deleted when the main window closes. Two versions of a name share one path, and a shorter one keeps the
// tail of a longer one.
void viewAttachment(data::Connection &connection, data::Recordset &attachment, const QString &name)
{
    const desktop::LongWork work;
    const QString path = temporaryPath(name);
    fetchInto(attachment, u"Attachments", path);
    connection.Close();
    desktop::ShellExecute(path);
}
