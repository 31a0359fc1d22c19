#include "explorers/FrmDataBaseExplorer.h"

#include "dossier/DisplayMembers.h"
#include "platform/desktop/Keys.h"
#include "platform/runtime/Conversion.h"
#include "platform/runtime/ErrorHandling.h"

#include <array>

using namespace Qt::Literals::StringLiterals;

using desktop::ListItem;
using runtime::Value;

namespace {

// The last tag ends with a stray bracket, so that the sort by it fails: only the headline changes, and choosing a group
// before another sort ends the program. It stays, because people know the list so.
constexpr std::array memberColumns{
    ListedColumn{.header = u"Member Id", .tag = u"MemberId", .column = u"MemberId"},
    ListedColumn{.header = u"Member Type", .tag = u"MemberType", .column = u"MemberType"},
    ListedColumn{.header = u"First Name", .tag = u"FirstName", .column = u"FirstName"},
    ListedColumn{.header = u"Middle Name", .tag = u"MiddleName", .column = u"MiddleName"},
    ListedColumn{.header = u"Last Name", .tag = u"LastName", .column = u"LastName"},
    ListedColumn{.header = u"Address", .tag = u"AddressOne", .column = u"AddressOne"},
    ListedColumn{.header = u"City", .tag = u"City", .column = u"City"},
    ListedColumn{.header = u"State", .tag = u"State", .column = u"State"},
    ListedColumn{.header = u"Zip", .tag = u"ZIP", .column = u"Zip"},
    ListedColumn{.header = u"Home Phone", .tag = u"HomePhone", .column = u"HomePhone"},
    ListedColumn{.header = u"Cell Phone", .tag = u"CellPhone]", .column = u"CellPhone"},
};

GroupedTable members()
{
    return {
        .name = u"MemberInformation"_s,
        .groupColumn = u"LastName"_s,
        .plural = u"Members"_s,
        .information = u"Member Information"_s,
        .captionStart = u"Member Explorer : Member's with a last name starting with "_s,
        .listStart = u"SELECT MemberInformation.MemberId, MemberInformation.FirstName, MemberInformation.MiddleName, "
                     " MemberInformation.LastName, MemberInformation.AddressOne, MemberInformation.City, "
                     " MemberInformation.State, MemberInformation.Zip, MemberInformation.HomePhone, "
                     " MemberInformation.CellPhone, MemberType.MemberType FROM MemberInformation "
                     " LEFT JOIN MemberType ON MemberInformation.MemberTypeId = MemberType.MemberTypeId"
                     " WHERE (((MemberInformation.LastName) Like '"_s,
        .listEnd = u"%') AND ((MemberInformation.Active)=Yes))"_s,
        .columns = memberColumns,
        .deleteQuestion = u"You are about to delete the selected members\nDo you want to proceed?"_s,
        .deleteStart = u"delete * from memberinformation where MemberId = "_s,
    };
}

} // namespace

FrmDataBaseExplorer::FrmDataBaseExplorer()
    : Form(Place::InFrame, u"FrmDataBaseExplorer"),
      m_panes(*this, {u"Delete Member"_s, u":/icons/delete-member.svg"_s, u"Members (Click to Refresh)"_s,
                      u"Member Information"_s}),
      m_rows(*this, m_panes, members())
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
}

void FrmDataBaseExplorer::Form_Load()
{
    setCursor(Qt::WaitCursor);
    m_rows.loadColumns();
    m_rows.loadTree(UserLevel);
    m_rows.CurrentNode->setExpanded(true);
    unsetCursor();
}

void FrmDataBaseExplorer::LblMemberListing_Click()
{
    m_rows.clearTree();
    m_rows.loadTree(UserLevel);
}

void FrmDataBaseExplorer::TreClassView_Click()
{
    m_rows.announceGroup();
    m_rows.loadList();
}

void FrmDataBaseExplorer::LstStudenInformation_ColumnClick(int index)
{
    runtime::endSilently([this, index] {
        m_rows.sortBy(index);
        m_rows.loadList();
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
        if (keyCode == desktop::vbKeyReturn)
            m_panes.forEachSelected([](const ListItem &item) { openDossier(item); });
    });
}

void FrmDataBaseExplorer::Toolbar1_ButtonClick(QAction *button)
{
    if (button->text() != u"Delete Member" || m_panes.LstStudenInformation->ListItems.Count() == 0)
        return;
    deleteSelectedMembers();
}

// The tree is loaded without being cleared, so it refuses the first group as a repeated key (error 35602). From the
// toolbar that error ends the program; the handler of the Delete key passes it over.
void FrmDataBaseExplorer::deleteSelectedMembers()
{
    m_rows.deleteSelected([this] {
        m_rows.loadList();
        m_rows.loadTree(UserLevel);
    });
}

void FrmDataBaseExplorer::openDossier(const ListItem &item)
{
    desktop::showNew<DisplayMembers>([&item](DisplayMembers &dossier) {
        dossier.MemberId = runtime::toInteger(Value(item.Text()));
        const auto text = [&item](QStringView column) { return textOf(item, memberColumns, column); };
        dossier.setCaption(u"Tolmark Member Information : "_s + text(u"FirstName") + u" "_s + text(u"MiddleName") +
                           u" "_s + text(u"LastName"));
        dossier.setMemberIdentification(Value(item.Text()));
        dossier.Tag = text(u"MemberType");
    });
}

void FrmDataBaseExplorer::resizeEvent(QResizeEvent *event)
{
    Form::resizeEvent(event);
    m_panes.placeBars();
}
