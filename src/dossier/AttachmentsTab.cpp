#include "dossier/AttachmentsTab.h"

#include "dossier/RowDeletion.h"
#include "parts/ListedColumns.h"
#include "platform/desktop/ErrorReport.h"
#include "platform/desktop/Keys.h"
#include "platform/desktop/MsgBox.h"
#include "platform/runtime/Application.h"
#include "platform/runtime/Conversion.h"
#include "platform/runtime/ErrorHandling.h"
#include "platform/runtime/Files.h"
#include "shell/store/CLsDataBaseConnection.h"
#include "shell/store/DataStore.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QVBoxLayout>

#include <array>

using namespace Qt::Literals::StringLiterals;

using desktop::CommandButton;
using runtime::Value;

namespace {

constexpr std::array attachmentColumns{
    ListedColumn{.header = u"Attachment Name", .column = u"AttachmentsName"},
    ListedColumn{.header = u"Date Added", .column = u"AttachmentsDate"},
    ListedColumn{.header = u"Version Number", .column = u"AttachmentVersion"},
};

constexpr int columnWidth = 200; // logical pixels

// The rows are those of one name, the newest version first. Error 6 when that is version 32767.
Value nextVersion(data::Recordset &versions)
{
    if (versions.Eof())
        return Value(qint16(1));
    const Value newest = versions[u"AttachmentVersion"].Value();
    return newest.isNull() ? Value() : Value(runtime::toInteger(Value(runtime::sum(runtime::toLong(newest), 1))));
}

} // namespace

AttachmentsTab::AttachmentsTab(QWidget *parent, Dossier &dossier, desktop::CommonDialog &dialog)
    : Frame(parent, u"Frame4", u"Member's Attachments"_s),
      lstAttachement(new desktop::ListView(this, u"lstAttachement")),
      Check1(new desktop::CheckBox(this, u"Check1", u"Show current version only"_s)),
      butAddAttachement(new CommandButton(this, u"butAddAttachement", u"Add Attachment"_s)),
      butCLoseAttachment(new CommandButton(this, u"butCLoseAttachment", u"Close"_s)),
      MnuViewOptions(new desktop::PopupMenu(this, u"MnuViewOptions", u"View Options"_s)), m_dossier(dossier),
      CommonDialog1(dialog)
{
    setUpContent();
    setUpMenu();
    using desktop::on;
    on(Check1, &QCheckBox::clicked, this, &AttachmentsTab::Check1_Click);
    on(butAddAttachement, &QPushButton::clicked, this, &AttachmentsTab::butAddAttachement_Click);
    on(lstAttachement, &desktop::ListView::KeyUp, this, &AttachmentsTab::lstAttachement_KeyUp);
    on(lstAttachement, &desktop::ListView::OLEDragDrop, this, &AttachmentsTab::lstAttachement_OLEDragDrop);
}

void AttachmentsTab::setUpContent()
{
    lstAttachement->setAccessibleName(u"Attachments"_s);
    lstAttachement->setTakesDrops();
    lstAttachement->header()->setDefaultSectionSize(columnWidth);
    Check1->setChecked(true);
    auto *whole = new QVBoxLayout(this);
    whole->addWidget(lstAttachement);
    whole->addWidget(Check1);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(butAddAttachement);
    buttons->addStretch();
    buttons->addWidget(butCLoseAttachment);
    whole->addLayout(buttons);
}

void AttachmentsTab::setUpMenu()
{
    QAction *saveAs = MnuViewOptions->addItem(u"MnuSaveAs", u"Save As"_s);
    MnuViewOptions->addLine(u"mnuSep2");
    QAction *view = MnuViewOptions->addItem(u"MnuView", u"View"_s);
    QAction *remove = MnuViewOptions->addItem(u"MnuDeleteAttachment", u"Delete Attachment"_s);
    desktop::on(saveAs, &QAction::triggered, this, &AttachmentsTab::MnuSaveAs_Click);
    desktop::on(view, &QAction::triggered, this, &AttachmentsTab::MnuView_Click);
    desktop::on(remove, &QAction::triggered, this, &AttachmentsTab::MnuDeleteAttachment_Click);
    MnuViewOptions->popUpOver(*lstAttachement);
}

QString AttachmentsTab::listStatement() const
{
    if (Check1->Value() == 0)
        return u"select * from Attachments where MemberId="_s + m_dossier.member() +
               u" ORDER BY Attachments.AttachmentsName, Attachments.AttachmentVersion DESC;"_s;
    return u"SELECT Attachments.AttachmentsName, Max(Attachments.AttachmentsDate) AS AttachmentsDate, "
           "Max([Attachments].[attachmentVersion]) AS AttachmentVersion, "
           "Max(Attachments.AttachmentsId) AS AttachmentsId "
           " From Attachments "
           " where MemberId="_s +
           m_dossier.member() +
           u" GROUP BY Attachments.AttachmentsName "
           " ORDER BY Attachments.AttachmentsName Desc"_s;
}

void AttachmentsTab::load()
{
    CLsDataBaseConnection store;
    data::Recordset attachments = store.CreateRecordset(listStatement());
    lstAttachement->setEnabled(true);
    lstAttachement->ListItems.Clear();
    setUpHeaders(*lstAttachement, attachmentColumns);
    fillList(*lstAttachement, attachments, u"AttachmentsId", attachmentColumns, Keyed::LinesWithFirstCell);
    attachments.Close();
    store.DbClose();
}

void AttachmentsTab::Check1_Click()
{
    load();
}

AttachmentOwner AttachmentsTab::member() const
{
    return {u"MemberId", m_dossier.MemberId};
}

void AttachmentsTab::butAddAttachement_Click()
{
    data::Connection connection;
    if (!uploadAttachment(connection, CommonDialog1, member(), nextVersion))
        return;
    desktop::MsgBox(u"Attachment successfully uploaded"_s, desktop::vbInformation);
    load();
}

void AttachmentsTab::addDropped(const desktop::DataObject &dropped)
{
    data::Connection connection;
    openDataStore(connection);
    data::Recordset attachments = openRows(connection, u"select * from Attachments"_s);
    for (const QString &path : dropped.Files())
        addAttachment(connection, attachments, member(), path, QFileInfo(path).fileName(), nextVersion);
    connection.Close();
    load();
}

void AttachmentsTab::lstAttachement_OLEDragDrop(const desktop::DataObject &dropped)
{
    if (runtime::endSilently([this, &dropped] { addDropped(dropped); }))
        return;
    load();
    desktop::MsgBox(u"Currently you can't drag and drop straight from that application\r\n"
                    "Try dragging and dropping from the desktop then to Brenlow Premium."_s,
                    desktop::vbInformation);
}

// Enter views the selected attachment, so that the keyboard needs no menu for it.
void AttachmentsTab::lstAttachement_KeyUp(int keyCode)
{
    if (keyCode == desktop::vbKeyReturn && lstAttachement->SelectedItem())
        MnuView_Click();
}

void AttachmentsTab::MnuView_Click()
{
    data::Connection connection;
    data::Recordset attachment = selectedAttachment(connection, *lstAttachement, member());
    if (!runtime::folderExists(runtime::App::folder(u"\\temp")))
        runtime::MkDir(runtime::App::folder(u"\\Temp"));
    viewAttachment(connection, attachment, lstAttachement->SelectedItem()->Text());
}

void AttachmentsTab::MnuSaveAs_Click()
{
    runtime::endSilently([this] { saveSelected(); });
}

void AttachmentsTab::saveSelected()
{
    data::Connection connection;
    data::Recordset attachment = selectedAttachment(connection, *lstAttachement, member());
    saveAttachment(attachment, CommonDialog1);
    connection.Close();
}

void AttachmentsTab::MnuDeleteAttachment_Click()
{
    const bool succeeded = runtime::endSilently([this] {
        deleteSelectedRow(m_dossier, *lstAttachement,
                          {u"Warning you are about to delete the selected file",
                           u"DELETE Attachments.AttachmentsId FROM Attachments WHERE (AttachmentsId =",
                           u"Attachment deleted", RowDeletion::Order::MessageThenRefresh},
                          [this] { load(); });
    });
    if (!succeeded)
        desktop::MsgBox(u"Nothing selected"_s, desktop::vbInformation);
}
