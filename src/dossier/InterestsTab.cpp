#include "dossier/InterestsTab.h"

#include "dossier/RowDeletion.h"
#include "platform/desktop/ErrorReport.h"

#include <array>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::array interestColumns{
    ListedColumn{.header = u"Interest", .column = u"Interest", .width = 2700},
    ListedColumn{.header = u"Interest Description", .column = u"InterestDescription"},
};

} // namespace

InterestsTab::InterestsTab(QWidget *parent, Dossier &dossier)
    : InterestArea(parent, u"Member's Interest"_s, interestColumns), m_dossier(dossier)
{
    setUpContent();
    setUpMenu();
    using desktop::on;
    on(butAddInterest, &QPushButton::clicked, this, &InterestsTab::butAddInterest_Click);
    on(cmdAddInterest, &QPushButton::clicked, this, &InterestsTab::cmdAddInterest_Click);
    on(CMdInterestCancel, &QPushButton::clicked, this, &InterestsTab::CMdInterestCancel_Click);
}

void InterestsTab::setUpContent()
{
    butAddInterest = m_area.addBeginningButton(u"butAddInterest", u"Add Interest"_s);
    addBoxes();
    cmdAddInterest = m_area.addEndingButton(u"cmdAddInterest", u"Add Interest"_s);
    CMdInterestCancel = m_area.addEndingButton(u"CMdInterestCancel", u"Cancel"_s);
    butCloseInterest = m_area.addCloseButton(u"butCloseInterest", u"Close"_s);
    m_area.beginBrowsing();
}

void InterestsTab::setUpMenu()
{
    mnuInterest = new desktop::PopupMenu(this, u"mnuInterest", u"Interest Options"_s);
    QAction *edit = mnuInterest->addItem(u"mnuInterestEdit", u"Edit Interest"_s);
    mnuInterest->addLine(u"mnuSep");
    QAction *remove = mnuInterest->addItem(u"MnuDeleteInterest", u"Delete Interest"_s);
    desktop::on(edit, &QAction::triggered, this, &InterestsTab::mnuInterestEdit_Click);
    desktop::on(remove, &QAction::triggered, this, &InterestsTab::MnuDeleteInterest_Click);
    mnuInterest->popUpOver(*lstInterest);
}

void InterestsTab::load()
{
    CommandSequence &sequence = m_dossier.sequence;
    sequence.open();
    lstInterest->ListItems.Clear();
    data::Recordset interests =
        sequence.execute(u"SELECT * FROM MemberInterest WHERE (MemberId="_s + m_dossier.member() + u")"_s);
    fillList(*lstInterest, interests, u"MemberInterestId", interestColumns);
    interests.Close();
    interests.Cancel();
    sequence.close();
}

void InterestsTab::butAddInterest_Click()
{
    enter();
}

void InterestsTab::mnuInterestEdit_Click()
{
    const desktop::ListItem &item = *lstInterest->SelectedItem();
    txtInterest->setText(textOf(item, interestColumns, u"Interest"));
    txtInterestDescription->setText(textOf(item, interestColumns, u"InterestDescription"));
    cmdAddInterest->Tag = item.Tag;
    enter();
}

QString InterestsTab::updateStatement(const QString &key) const
{
    return u"UPDATE MemberInterest SET MemberInterest.Interest = '"_s + txtInterest->text() +
           u"', MemberInterest.InterestDescription = '"_s + txtInterestDescription->text() +
           u"' WHERE (MemberInterest.MemberInterestId="_s + key + u");"_s;
}

void InterestsTab::cmdAddInterest_Click()
{
    if (!isEntryValid())
        return;
    const QString key = std::exchange(cmdAddInterest->Tag, {});
    m_dossier.run(key.isEmpty()
                      ? insertInterest(txtInterest->text(), txtInterestDescription->text(), m_dossier.member())
                      : updateStatement(key));
    load();
    browse();
}

void InterestsTab::CMdInterestCancel_Click()
{
    browse();
    cmdAddInterest->Tag.clear();
}

// The warning says "file" where it means an interest. It is kept so because users know its text.
void InterestsTab::MnuDeleteInterest_Click()
{
    deleteSelectedRow(m_dossier, *lstInterest,
                      {u"Warning you are about to delete the selected file",
                       u"DELETE * FROM MemberInterest WHERE (MemberInterestId =", u"Interest deleted",
                       RowDeletion::Order::RefreshThenMessage},
                      [this] { load(); });
}
