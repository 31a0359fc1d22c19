#include "explorers/FrmDataBaseExplorer.h"

#include "dossier/DisplayMembers.h"
#include "explorers/SortClause.h"
#include "explorers/UserTree.h"
#include "platform/desktop/Keys.h"
#include "platform/desktop/MsgBox.h"
#include "platform/runtime/Conversion.h"
#include "platform/runtime/ErrorHandling.h"
#include "shell/CLsDataBaseConnection.h"
#include "shell/CommandSequence.h"

#include <array>

using namespace Qt::Literals::StringLiterals;

using desktop::ListItem;
using runtime::Value;

namespace {

struct MemberColumn
{
    QStringView header;
    QStringView tag; // what stands behind ORDER BY; the bracket of the last one makes the provider refuse that sort
    QStringView column;
};

constexpr std::array memberColumns{
    MemberColumn{u"Member Id", u"MemberId", u"MemberId"},
    MemberColumn{u"Member Type", u"MemberType", u"MemberType"},
    MemberColumn{u"First Name", u"FirstName", u"FirstName"},
    MemberColumn{u"Middle Name", u"MiddleName", u"MiddleName"},
    MemberColumn{u"Last Name", u"LastName", u"LastName"},
    MemberColumn{u"Address", u"AddressOne", u"AddressOne"},
    MemberColumn{u"City", u"City", u"City"},
    MemberColumn{u"State", u"State", u"State"},
    MemberColumn{u"Zip", u"ZIP", u"Zip"},
    MemberColumn{u"Home Phone", u"HomePhone", u"HomePhone"},
    MemberColumn{u"Cell Phone", u"CellPhone]", u"CellPhone"},
};

} // namespace

FrmDataBaseExplorer::FrmDataBaseExplorer()
    : Form(Place::InFrame, u"FrmDataBaseExplorer"),
      m_panes(*this, {u"Delete Member"_s, u":/icons/delete-member.svg"_s, u"Members (Click to Refresh)"_s,
                      u"Member Information"_s})
{
    setDesignCaption(u"Tolmark Member Explorer"_s);
    using desktop::on;
    on(m_panes.LblMemberListing, &desktop::Label::Click, this, &FrmDataBaseExplorer::LblMemberListing_Click);
    on(m_panes.TreClassView, &desktop::TreeView::Click, this, &FrmDataBaseExplorer::TreClassView_Click);
    desktop::ListView *list = m_panes.LstStudenInformation;
    on(list, &desktop::ListView::ColumnClick, this, &FrmDataBaseExplorer::LstStudenInformation_ColumnClick);
    on(list, &desktop::ListView::DblClick, this, &FrmDataBaseExplorer::LstStudenInformation_DblClick);
    on(list, &desktop::ListView::KeyUp, this, &FrmDataBaseExplorer::LstStudenInformation_KeyUp);
    on(m_panes.Toolbar1, &desktop::Toolbar::ButtonClick, this, &FrmDataBaseExplorer::Toolbar1_ButtonClick);
    on(m_panes.Picture1, &desktop::PictureBox::MouseMove, this, &FrmDataBaseExplorer::Picture1_MouseMove);
}

void FrmDataBaseExplorer::Form_Load()
{
    setCursor(Qt::WaitCursor);
    loadColumns();
    loadTree();
    CurrentNode->setExpanded(true);
    unsetCursor();
}

void FrmDataBaseExplorer::loadColumns()
{
    auto &headers = m_panes.LstStudenInformation->ColumnHeaders;
    headers.Clear();
    for (const MemberColumn &column : memberColumns)
        headers.Add(column.header.toString(), column.tag.toString());
}

void FrmDataBaseExplorer::loadTree()
{
    qint16 total = 0;
    if (UserLevel < 99) {
        total = loadGroups();
    } else {
        m_panes.LblMemberInformation->setText(u"Description"_s);
        m_panes.LblMemberListing->setText(u"User"_s);
        CurrentNode = loadUserTree(m_panes);
    }
    m_panes.LblMemberListing->setText(u"Members - "_s + QString::number(total) + u" (Click to Refresh)"_s);
}

// Adds a node for each group and returns the number of members under all of them.
qint16 FrmDataBaseExplorer::loadGroups()
{
    CLsDataBaseConnection outer;
    CLsDataBaseConnection inner;
    qint16 total = 0;
    data::Recordset groups = outer.CreateRecordset(u"select * from NodeInformation Where NodeActive = 1"_s);
    for (; !groups.Eof(); groups.MoveNext()) {
        const QString name = runtime::toText(groups[u"NodeName"].Value());
        data::Recordset members = inner.CreateRecordset(u"select * from [MemberInformation] Where [LastName] like '"_s +
                                                        name + u"%' and Active = yes"_s);
        const qint32 count = members.RecordCount();
        total = runtime::toInteger(Value(qint32(total) + count));
        members.Close();
        inner.DbClose();
        CurrentNode = &m_panes.addGroup(name, count);
    }
    groups.Close();
    return total;
}

void FrmDataBaseExplorer::LblMemberListing_Click()
{
    CurrentNode = nullptr;
    m_panes.TreClassView->Nodes.Clear();
    loadTree();
}

void FrmDataBaseExplorer::TreClassView_Click()
{
    setCaption(u"Member Explorer : Member's with a last name starting with \""_s +
               m_panes.TreClassView->SelectedItem()->Tag + u"\" are displayed."_s);
    m_panes.LblMemberInformation->setText(u"Member Information - "_s + m_panes.countText());
    loadList();
}

void FrmDataBaseExplorer::loadList()
{
    const QString group = m_panes.TreClassView->SelectedItem()->Tag;
    if (group.isEmpty())
        return;
    CLsDataBaseConnection store;
    data::Recordset members = store.CreateRecordset(
        u"SELECT MemberInformation.MemberId, MemberInformation.FirstName, MemberInformation.MiddleName, "
        " MemberInformation.LastName, MemberInformation.AddressOne, MemberInformation.City, "
        " MemberInformation.State, MemberInformation.Zip, MemberInformation.HomePhone, "
        " MemberInformation.CellPhone, MemberType.MemberType FROM MemberInformation "
        " LEFT JOIN MemberType ON MemberInformation.MemberTypeId = MemberType.MemberTypeId"
        " WHERE (((MemberInformation.LastName) Like '"_s +
        group + u"%') AND ((MemberInformation.Active)=Yes))"_s + SortClause);
    m_panes.LstStudenInformation->ListItems.Clear();
    {
        desktop::ListFilling filling(*m_panes.LstStudenInformation);
        for (; !members.Eof(); members.MoveNext()) {
            ListItem &item = filling.Add();
            item.Tag = runtime::joinedText(members[u"MemberId"].Value());
            for (size_t at = 0; at < memberColumns.size(); ++at) {
                Value value = members[memberColumns[at].column].Value();
                if (!value.isNull())
                    item.setSubItem(int(at), runtime::toText(std::move(value)));
            }
        }
    }
    members.Close();
    store.DbClose();
}

void FrmDataBaseExplorer::LstStudenInformation_ColumnClick(int index)
{
    runtime::endSilently([this, index] {
        const desktop::ColumnHeader &clicked = m_panes.LstStudenInformation->ColumnHeaders(index);
        const QString count = m_panes.countText();
        SortClause = sortClauseAfterClick(SortClause, clicked.Tag);
        m_panes.LblMemberInformation->setText(u"Member Information - "_s + count +
                                              u" : Currently the list is sorted by the field "_s + clicked.Text +
                                              u" in "_s + sortDirection(SortClause) + u" order"_s);
        loadList();
    });
}

void FrmDataBaseExplorer::LstStudenInformation_DblClick()
{
    if (m_panes.LstStudenInformation->ListItems.Count() > 0)
        openDossier(*m_panes.LstStudenInformation->SelectedItem());
}

void FrmDataBaseExplorer::LstStudenInformation_KeyUp(int keyCode)
{
    desktop::reportOutOfMemoryOnly([this, keyCode] {
        if (keyCode == desktop::vbKeyDelete)
            deleteSelectedMembers();
        if (keyCode != desktop::vbKeyReturn)
            return;
        const auto &items = m_panes.LstStudenInformation->ListItems;
        for (int index = 1; index <= items.Count(); ++index) {
            if (items(index).isSelected())
                openDossier(items(index));
        }
    });
}

void FrmDataBaseExplorer::Toolbar1_ButtonClick(QAction *button)
{
    if (button->text() != u"Delete Member" || m_panes.LstStudenInformation->ListItems.Count() == 0)
        return;
    deleteSelectedMembers();
}

// The tree is loaded over its old nodes: it refuses the first group, and the caller's way with errors decides what
// becomes of that.
void FrmDataBaseExplorer::deleteSelectedMembers()
{
    const int answer = desktop::MsgBox(u"You are about to delete the selected members\nDo you want to proceed?"_s,
                                       desktop::vbYesNo, u"Tolmark"_s);
    CommandSequence sequence;
    sequence.open();
    if (answer == desktop::vbYes) {
        const auto &items = m_panes.LstStudenInformation->ListItems;
        for (int index = 1; index <= items.Count(); ++index) {
            if (items(index).isSelected())
                sequence.execute(u"delete * from memberinformation where MemberId = "_s + items(index).Text());
        }
        loadList();
        loadTree();
    }
    sequence.close();
}

void FrmDataBaseExplorer::openDossier(const ListItem &item)
{
    desktop::showNew<DisplayMembers>([&item](DisplayMembers &dossier) {
        dossier.MemberId = runtime::toInteger(Value(item.Text()));
        dossier.setCaption(u"Tolmark Member Information : "_s + item.SubItems(2) + u" "_s + item.SubItems(3) + u" "_s +
                           item.SubItems(4));
        dossier.setMemberIdentification(Value(item.Text()));
        dossier.Tag = item.SubItems(1);
    });
}

void FrmDataBaseExplorer::Picture1_MouseMove(int button, float x, float)
{
    runtime::endSilently([this, button, x] { m_panes.dragSplitter(button, x); });
}

void FrmDataBaseExplorer::resizeEvent(QResizeEvent *event)
{
    Form::resizeEvent(event);
    m_panes.placeBars();
}
