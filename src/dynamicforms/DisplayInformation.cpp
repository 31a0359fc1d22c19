#include "dynamicforms/DisplayInformation.h"

#include "events/StoredNotes.h"
#include "library/frmDocumentExp.h"
#include "platform/desktop/Keys.h"
#include "platform/desktop/MsgBox.h"
#include "platform/runtime/ErrorHandling.h"
#include "shell/session/Session.h"
#include "shell/store/DataStore.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

using desktop::CommandButton;
using runtime::everyStep;
using runtime::Value;

namespace {

// One more than the number of rows of that name, whoever owns them.
Value nextVersion(data::Recordset &versions)
{
    return Value(versions.Eof() ? 1 : versions.RecordCount() + 1);
}

} // namespace

DisplayInformation::DisplayInformation()
    : Form(Place::InFrame, u"DisplayInformation"), TabStrip1(new desktop::TabStrip(this, u"TabStrip1")),
      Frame1(new desktop::Frame(this, u"Frame1", {})), ListView1(new desktop::ListView(Frame1, u"ListView1")),
      Frame2(new desktop::Frame(this, u"Frame2", u"Record Options"_s)),
      cmdEdit(new CommandButton(Frame2, u"cmdEdit", u"&Edit"_s)),
      cmdDelete(new CommandButton(Frame2, u"cmdDelete", u"&Delete"_s)),
      cmdCancel(new CommandButton(Frame2, u"cmdCancel", u"C&ancel"_s)),
      cmdClose(new CommandButton(Frame2, u"cmdClose", u"&Close"_s)),
      CommonDialog1(new desktop::CommonDialog(this, u"CommonDialog1")),
      MnuOptionsView(new desktop::PopupMenu(this, u"MnuOptionsView", u"View Options"_s)), m_page(*Frame1, m_rows)
{
    setDesignCaption(u"Tolmark Display Information"_s);
    setUpContent();
    setUpMenu();
    connectHandlers();
    keepSize(14430, 10995);
}

void DisplayInformation::setUpContent()
{
    TabStrip1->setAccessibleName(u"Pages"_s);
    TabStrip1->setDrawBase(false);
    ListView1->setVisible(false);
    auto *page = new QVBoxLayout(Frame1);
    page->addWidget(ListView1);
    auto *buttons = new QHBoxLayout(Frame2);
    buttons->addWidget(cmdEdit);
    buttons->addWidget(cmdDelete);
    buttons->addStretch();
    buttons->addWidget(cmdCancel);
    buttons->addWidget(cmdClose);
    auto *pages = new QVBoxLayout; // the tabs stand on the frame
    pages->setSpacing(0);
    pages->addWidget(TabStrip1);
    pages->addWidget(Frame1, 1);
    auto *whole = new QVBoxLayout(this);
    whole->addLayout(pages);
    whole->addWidget(Frame2);
    desktop::setTabOrder({TabStrip1, m_page.Text1(0), ListView1, cmdEdit, cmdDelete, cmdCancel, cmdClose});
}

void DisplayInformation::setUpMenu()
{
    QAction *saveAs = MnuOptionsView->addItem(u"MnuSaveAs", u"SaveAs"_s);
    QAction *view = MnuOptionsView->addItem(u"MnuView", u"View"_s);
    desktop::on(saveAs, &QAction::triggered, this, &DisplayInformation::MnuSaveAs_Click);
    desktop::on(view, &QAction::triggered, this, &DisplayInformation::MnuView_Click);
}

void DisplayInformation::connectHandlers()
{
    using desktop::on;
    on(TabStrip1, &desktop::TabStrip::BeforeClick, this, &DisplayInformation::TabStrip1_BeforeClick);
    on(TabStrip1, &desktop::TabStrip::Click, this, &DisplayInformation::TabStrip1_Click);
    on(ListView1, &desktop::ListView::DblClick, this, &DisplayInformation::ListView1_DblClick);
    on(ListView1, &desktop::ListView::KeyUp, this, &DisplayInformation::ListView1_KeyUp);
    on(ListView1, &desktop::ListView::MouseUp, this, &DisplayInformation::ListView1_MouseUp);
    on(cmdEdit, &QPushButton::clicked, this, &DisplayInformation::cmdEdit_Click);
    on(cmdDelete, &QPushButton::clicked, this, &DisplayInformation::cmdDelete_Click);
    on(cmdCancel, &QPushButton::clicked, this, &DisplayInformation::cmdCancel_Click);
    on(cmdClose, &QPushButton::clicked, this, &DisplayInformation::cmdClose_Click);
}

void DisplayInformation::Form_Load()
{
    m_page.setLocked(true);
    cmdCancel->setVisible(false);
    setCaption(WindowTitle);
    loadForm();
    if (EditMode == u"New") {
        cmdDelete->setVisible(false);
        cmdCancel->setVisible(false);
        cmdClose->setText(u"Cancel"_s);
        cmdEdit->setText(u"Save"_s);
    }
    ShowRecordTab();
    m_page.focusFirstBox();
}

// Every page, whether the designer owns it or it came with the data file.
void DisplayInformation::loadForm()
{
    data::Connection connection;
    openDataStore(connection);
    data::Recordset rows = openRows(connection, u"select * from TabInfo"_s);
    TabStrip1->Clear();
    m_rows.countUp();
    for (; !rows.Eof(); rows.MoveNext())
        TabStrip1->add({}, runtime::toText(rows[u"TabNam"].Value()), runtime::toText(rows[u"TabDescription"].Value()));
    if (EditMode != u"New")
        addTabs({attachmentsList, resourcesList, eventsList});
    rows.Close();
    rows =
        openRows(connection, u"SELECT *, TabInfo.TabNam, TabInfo.TabDescription FROM FieldInfo INNER JOIN TabInfo ON "
                             " FieldInfo.TabId = TabInfo.TabId order by FieldDisplayOrder"_s);
    for (; !rows.Eof(); rows.MoveNext()) {
        FieldRow &row = m_rows.next();
        takeNames(row, rows);
        takePlaces(row, rows);
        m_rows.countUp();
    }
    m_rows.upperBound(); // error 9 for a form without fields
    connection.Close();
}

void DisplayInformation::Form_Activate()
{
    Session::current().ActiveRecordId = QString::number(RecordId);
}

void DisplayInformation::addTabs(std::initializer_list<std::reference_wrapper<const RecordList>> lists)
{
    for (const RecordList &list : lists)
        TabStrip1->add({}, list.caption.toString(), {});
}

QStringList DisplayInformation::captions() const
{
    QStringList captions;
    for (int tab = 1; tab <= TabStrip1->Count(); ++tab)
        captions << TabStrip1->Caption(tab);
    return captions;
}

void DisplayInformation::ShowRecordTab()
{
    everyStep([this] { m_page.showFields(TabStrip1->SelectedCaption()); },
              [this] {
                  if (EditMode.isEmpty())
                      m_page.fillFromStore(TabStrip1->SelectedCaption(), RecordId);
                  else
                      m_page.fillFromRows(TabStrip1->SelectedCaption());
              });
}

void DisplayInformation::TabStrip1_BeforeClick()
{
    everyStep([this] { m_page.keepTexts(TabStrip1->SelectedCaption()); });
}

void DisplayInformation::TabStrip1_Click()
{
    ShowRecordTab();
    const QString caption = TabStrip1->SelectedCaption();
    if (caption == attachmentsList.caption) {
        ShowAttachments();
    } else if (caption == resourcesList.caption) {
        ShowResources();
    } else if (caption == eventsList.caption) {
        ShowEvents();
    } else if (EditMode != u"New") {
        ListView1->setVisible(false);
        cmdEdit->setText(u"Edit"_s);
        cmdDelete->setVisible(true);
    }
}

void DisplayInformation::showList(const RecordList &list)
{
    showRecordList(*ListView1, list, RecordId);
    cmdEdit->setText(list.command.toString());
    cmdDelete->setVisible(false);
    cmdCancel->setVisible(false);
}

void DisplayInformation::cmdEdit_Click()
{
    const QString command = cmdEdit->text();
    const bool isOfList =
        command == attachmentsList.command || command == resourcesList.command || command == eventsList.command;
    if (EditMode.isEmpty() && !isOfList)
        startEditing();
    else if (command == attachmentsList.command)
        upload();
    else if (command == eventsList.command)
        return; // the button does nothing on this page
    else if (command == resourcesList.command)
        assignResource();
    else if (EditMode == u"New")
        saveNew();
}

void DisplayInformation::startEditing()
{
    constexpr int fixedPages = 3;
    leaveButtons();
    EditMode = u"Edit"_s;
    cmdDelete->setText(u"Save"_s);
    cmdEdit->setVisible(false);
    cmdClose->setVisible(false);
    m_page.setLocked(false);
    for (int page = 0; page < fixedPages; ++page)
        TabStrip1->Remove(TabStrip1->Count());
    readPerson(m_rows, captions(), RecordId);
}

void DisplayInformation::endEditing()
{
    leaveButtons();
    EditMode.clear();
    cmdEdit->setVisible(true);
    cmdClose->setVisible(true);
    cmdDelete->setText(u"Delete"_s);
}

// The buttons are about to mean something else: the key that pressed one must not meet the other by a second press.
void DisplayInformation::leaveButtons()
{
    if (Frame2->isAncestorOf(focusWidget()))
        m_page.focusFirstBox();
}

AttachmentOwner DisplayInformation::person() const
{
    return {u"PersonalInformationId", RecordId};
}

void DisplayInformation::upload()
{
    data::Connection connection;
    if (!uploadAttachment(connection, *CommonDialog1, person(), nextVersion))
        return;
    connection.Close();
    ShowAttachments();
}

// The library's window makes the link. The list here shows it when its page is turned to again.
void DisplayInformation::assignResource()
{
    desktop::showNew<frmDocumentExp>([this](frmDocumentExp &library) {
        library.setCaption(u"Resource Manager Browser"_s);
        library.PersonalInformationId = QString::number(RecordId);
        library.adminFunction = false;
    });
}

RecordPages DisplayInformation::pages() const
{
    return {m_rows, captions(), TabStrip1->SelectedItem(), m_page.values()};
}

// The boxes were locked until now, so the user could not type and the values written are those of empty boxes.
void DisplayInformation::saveNew()
{
    m_page.setLocked(false);
    addPerson(pages());
    Unload();
}

void DisplayInformation::cmdDelete_Click()
{
    if (EditMode == u"Edit")
        saveEdited();
    else
        deletePerson();
}

void DisplayInformation::deletePerson()
{
    const desktop::MsgBoxResult answer = desktop::MsgBox(u"You are about to delete this client from the database\r\n"
                                                         "Do you want to continue"_s,
                                                         desktop::vbYesNo, u"Quillon"_s);
    if (answer != desktop::vbYes)
        return;
    markDeleted(RecordId);
    Unload();
}

// The boxes stay unlocked, and the list of events comes back only with the window's next opening: a second Edit, which
// takes three tabs away, then takes a page of fields along.
void DisplayInformation::saveEdited()
{
    m_page.requireWhole();
    savePerson(pages(), RecordId);
    endEditing();
    addTabs({attachmentsList, resourcesList});
}

void DisplayInformation::cmdCancel_Click()
{
    if (EditMode == u"Edit") {
        endEditing();
        addTabs({attachmentsList, resourcesList, eventsList});
        m_page.setLocked(true);
    }
    cmdCancel->setVisible(false);
}

void DisplayInformation::cmdClose_Click()
{
    Unload();
}

void DisplayInformation::ListView1_DblClick()
{
    if (TabStrip1->SelectedCaption() != eventsList.caption)
        return;
    const desktop::ListItem &item = *ListView1->SelectedItem();
    desktop::showNew<frmMeeting>([&item](frmMeeting &event) {
        takeStoredNote(event, item, eventsList.columns);
        event.setCaption(u"View Event"_s);
    });
}

// Enter opens the selected line: an event as a double click does, an attachment as the menu does.
void DisplayInformation::ListView1_KeyUp(int keyCode)
{
    if (keyCode != desktop::vbKeyReturn || !ListView1->SelectedItem())
        return;
    if (TabStrip1->SelectedCaption() == attachmentsList.caption)
        MnuView_Click();
    else
        ListView1_DblClick();
}

void DisplayInformation::ListView1_MouseUp(int button, QPoint place)
{
    if (button == desktop::vbRightButton && TabStrip1->SelectedCaption() == attachmentsList.caption)
        MnuOptionsView->popup(place);
}

void DisplayInformation::MnuView_Click()
{
    data::Connection connection;
    data::Recordset attachment = selectedAttachment(connection, *ListView1, person());
    viewAttachment(connection, attachment, ListView1->SelectedItem()->Text());
}

void DisplayInformation::MnuSaveAs_Click()
{
    data::Connection connection;
    data::Recordset attachment = selectedAttachment(connection, *ListView1, person());
    saveAttachment(attachment, *CommonDialog1);
    connection.Close();
}
