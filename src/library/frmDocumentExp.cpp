#include "library/frmDocumentExp.h"

#include "platform/desktop/Keys.h"
#include "platform/desktop/MsgBox.h"
#include "platform/desktop/Twips.h"
#include "platform/runtime/ErrorHandling.h"

#include <QAction>
#include <QMenu>

using namespace Qt::Literals::StringLiterals;

using desktop::ListView;
using desktop::Node;
using desktop::PopupMenu;
using desktop::TreeView;

namespace {

constexpr double treeWidth = 3450; // room for a name on the third level

} // namespace

frmDocumentExp::frmDocumentExp()
    : Form(Place::InFrame, u"frmDocumentExp"), m_menuBar(new MenuBar(this, u"MenuBar")),
      m_panes(*this, {u"LblClassAndSection", u"Library Structure"_s}, {u"LblStudentInformation", u"Documents"_s},
              treeWidth),
      MnuLibraryOption(m_menuBar->add(u"MnuLibraryOption"_s, u"Library Options"_s)),
      CommonDialog1(new desktop::CommonDialog(this, u"CommonDialog1")),
      m_library(*m_panes.TreClassView, *m_panes.ImageList1),
      m_documents(*m_panes.TreClassView, *m_panes.LstStudenInformation, *CommonDialog1)
{
    setDesignCaption(u"Tolmark Document Library Manager"_s);
    setUpMenus();
    TreeView *tree = m_panes.TreClassView;
    ListView *list = m_panes.LstStudenInformation;
    tree->setAccessibleName(u"Library Structure"_s);
    using desktop::on;
    on(tree, &TreeView::MouseDown, this, &frmDocumentExp::TreClassView_MouseDown);
    on(tree, &TreeView::Click, this, &frmDocumentExp::TreClassView_Click);
    on(tree, &TreeView::BeforeLabelEdit, this, &frmDocumentExp::TreClassView_BeforeLabelEdit);
    on(tree, &TreeView::AfterLabelEdit, this, &frmDocumentExp::TreClassView_AfterLabelEdit);
    on(tree, &TreeView::KeyUp, this, &frmDocumentExp::TreClassView_KeyUp);
    on(list, &ListView::DblClick, this, &frmDocumentExp::LstStudenInformation_DblClick);
    on(list, &ListView::KeyUp, this, &frmDocumentExp::LstStudenInformation_KeyUp);
    desktop::setTabOrder({tree, list});
    tree->setFocus();
}

QAction *frmDocumentExp::addItem(PopupMenu *menu, QAnyStringView name, const QString &caption, Handler handler)
{
    QAction *added = menu->addItem(name, caption);
    if (handler)
        desktop::on(added, &QAction::triggered, this, handler);
    return added;
}

void frmDocumentExp::setUpMenus()
{
    setUpLibraryOptions();
    setUpFileMenu();
    setUpNodeMenus();
}

// The pop-up menu of the tree is the first menu of the bar as well. Only its way as a pop-up sets the states of its
// items: opened from the bar it shows those of the last time.
void frmDocumentExp::setUpLibraryOptions()
{
    addItem(MnuLibraryOption, u"mnuAddCatagory", u"Add Catagory"_s, &frmDocumentExp::addCatagory);
    addItem(MnuLibraryOption, u"MnuAddLibrary", u"Add Library"_s, &frmDocumentExp::addLibrary);
    MnuLibraryOption->addLine(u"mnuSep");
    addItem(MnuLibraryOption, u"mnuEditNode", u"Edit"_s); // has no handler and is always enabled
    addItem(MnuLibraryOption, u"MnuDeleteNode", u"Delete"_s, &frmDocumentExp::deleteNode);
    addItem(MnuLibraryOption, u"MnuRenameNode", u"Rename"_s, &frmDocumentExp::MnuRenameNode_Click);
}

void frmDocumentExp::setUpFileMenu()
{
    PopupMenu *file = m_menuBar->add(u"MnuFile"_s, u"File"_s);
    addItem(file, u"mnuSave", u"Save Structure"_s, &frmDocumentExp::mnuSave_Click);
    addItem(file, u"mnuUpLoadDocument", u"Upload Document"_s, &frmDocumentExp::mnuUpLoadDocument_Click);
    file->addLine(u"mnuSep1");
    addItem(file, u"mnuClose", u"Close"_s, &frmDocumentExp::mnuClose_Click);
}

// "Rename Library" and "Rename Catagory" are enabled and disabled like the others and have no handler.
void frmDocumentExp::setUpNodeMenus()
{
    PopupMenu *library = m_menuBar->add(u"MnuLibrary"_s, u"Library"_s);
    addItem(library, u"mnuAddlib", u"Add Library"_s, &frmDocumentExp::addLibrary);
    addItem(library, u"mnuRemoveLib", u"Remove Library"_s, &frmDocumentExp::deleteNode);
    addItem(library, u"mnuRenameLib", u"Rename Library"_s);
    PopupMenu *catagory = m_menuBar->add(u"mnuCat"_s, u"Catagory"_s);
    addItem(catagory, u"mnuAddCat", u"Add Catagory"_s, &frmDocumentExp::addCatagory);
    addItem(catagory, u"mnuRemoveCat", u"Remove Catagory"_s, &frmDocumentExp::deleteNode);
    addItem(catagory, u"mnuRenameCat", u"Rename Catagory"_s);
    desktop::on(library, &QMenu::aboutToShow, this, &frmDocumentExp::SetMenuState);
    desktop::on(catagory, &QMenu::aboutToShow, this, &frmDocumentExp::SetMenuState);
}

void frmDocumentExp::Form_Load()
{
    m_library.load(adminFunction ? LibraryTree::Labels::Plain : LibraryTree::Labels::WithCounts);
    setMode();
}

void frmDocumentExp::setMode()
{
    for (const char *name : {"mnuSave", "mnuUpLoadDocument", "mnuCat", "MnuLibrary"})
        item(name)->setVisible(adminFunction);
    item("MnuLibraryOption")->setEnabled(adminFunction);
    m_panes.TreClassView->setLabelEdit(adminFunction ? desktop::tvwAutomatic : desktop::tvwManual);
}

QAction *frmDocumentExp::item(const char *name) const
{
    return m_menuBar->findChild<QAction *>(QLatin1String(name));
}

void frmDocumentExp::enable(std::initializer_list<const char *> names, bool enabled) const
{
    for (const char *name : names)
        item(name)->setEnabled(enabled);
}

void frmDocumentExp::SetMenuColours()
{
    const QColor background(214, 211, 241);
    QPalette colours(background, background);
    colours.setColor(QPalette::Base, background);
    m_menuBar->setPalette(colours);
    for (QMenu *menu : m_menuBar->findChildren<QMenu *>())
        menu->setPalette(colours);
}

void frmDocumentExp::SetMenuState()
{
    runtime::endSilently([this] {
        enable({"mnuAddCat", "mnuAddlib"}, true);
        const bool root = m_library.isRoot(*m_panes.TreClassView->SelectedItem());
        if (root)
            enable({"mnuCat", "MnuLibrary"}, true);
        enable({"mnuRemoveLib", "mnuRenameCat", "mnuRenameLib", "mnuRemoveCat"}, !root);
    });
}

void frmDocumentExp::setPopupState()
{
    const bool root = m_library.isRoot(*m_panes.TreClassView->SelectedItem());
    enable({"MnuDeleteNode", "MnuRenameNode"}, !root);
}

void frmDocumentExp::MnuRenameNode_Click()
{
    m_panes.TreClassView->StartLabelEdit();
}

void frmDocumentExp::mnuSave_Click()
{
    m_library.save();
}

void frmDocumentExp::mnuUpLoadDocument_Click()
{
    m_documents.upload();
}

void frmDocumentExp::mnuClose_Click()
{
    Unload();
}

void frmDocumentExp::TreClassView_MouseDown(int button, QPoint place)
{
    runtime::endSilently([&] {
        if (!m_panes.TreClassView->SelectedItem()->Text().isEmpty())
            SetMenuState();
        if (button != desktop::vbRightButton)
            return;
        setPopupState();
        if (adminFunction)
            MnuLibraryOption->popup(place);
    });
}

void frmDocumentExp::TreClassView_Click()
{
    const Node &node = *m_panes.TreClassView->SelectedItem();
    const bool catagory = node.Tag == u"Catagory";
    const bool root = m_library.isRoot(node);
    enable({"mnuCat"}, catagory || root);
    enable({"MnuLibrary"}, !catagory || root);
    m_documents.ListDocuments();
}

void frmDocumentExp::TreClassView_BeforeLabelEdit()
{
    const Node &node = *m_panes.TreClassView->SelectedItem();
    m_editingRoot = m_library.isRoot(node);
    if (!node.Text().isEmpty())
        m_oldLabel = node.Text();
}

void frmDocumentExp::TreClassView_AfterLabelEdit(bool &cancel, const QString &newString)
{
    cancel = m_editingRoot;
    if (!newString.isEmpty())
        return;
    desktop::MsgBox(u"Invalid Name"_s);
    cancel = true;
    m_panes.TreClassView->StartLabelEdit();
}

// Esc gives the selected node the label that was remembered last, whichever node that was.
void frmDocumentExp::TreClassView_KeyUp(int keyCode)
{
    if (keyCode == desktop::vbKeyEscape)
        m_panes.TreClassView->SelectedItem()->setText(m_oldLabel);
    if (keyCode == desktop::vbKeyF2)
        m_panes.TreClassView->StartLabelEdit();
}

void frmDocumentExp::LstStudenInformation_DblClick()
{
    runtime::endSilently([this] {
        if (!adminFunction && !PersonalInformationId.isEmpty() &&
            !m_panes.LstStudenInformation->SelectedItem()->Text().isEmpty())
            m_documents.linkTo(PersonalInformationId);
    });
}

// Enter does for the keyboard what a double click does for the mouse.
void frmDocumentExp::LstStudenInformation_KeyUp(int keyCode)
{
    if (keyCode == desktop::vbKeyReturn)
        LstStudenInformation_DblClick();
}

void frmDocumentExp::resizeEvent(QResizeEvent *event)
{
    Form::resizeEvent(event);
    m_menuBar->Move(0, 0, desktop::twips(width()), desktop::twips(m_menuBar->sizeHint().height()));
    m_panes.placeStatusBar();
    desktop::guarded([this] { m_panes.followWindow(); });
}
