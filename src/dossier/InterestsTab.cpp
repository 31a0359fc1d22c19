#include "dossier/InterestsTab.h"

#include "dossier/RowDeletion.h"
#include "parts/RowTexts.h"
#include "platform/desktop/ErrorReport.h"
#include "platform/desktop/MsgBox.h"

#include <tuple>

using namespace Qt::Literals::StringLiterals;

using desktop::MultilineTextBox;
using desktop::TextBox;

InterestsTab::InterestsTab(QWidget *parent, Dossier &dossier)
    : Frame(parent, u"Frame3", u"Member's Interest"_s), lstInterest(new desktop::ListView(this, u"lstInterest")),
      m_dossier(dossier), m_area(*this, *lstInterest)
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
    lstInterest->setAccessibleName(u"Interests"_s);
    lstInterest->ColumnHeaders.Add(u"Interest"_s);
    lstInterest->ColumnHeaders.Add(u"Interest Description"_s);
    lstInterest->ColumnHeaders.setWidth(1, 2700);
    butAddInterest = m_area.addBeginningButton(u"butAddInterest", u"Add Interest"_s);
    std::tie(lblInterest, txtInterest) = m_area.addRow<TextBox>(u"lblInterest", u"Interest"_s, u"txtInterest");
    std::tie(lblInterestDescription, txtInterestDescription) = m_area.addRow<MultilineTextBox>(
        u"lblInterestDescription", u"Interest Description"_s, u"txtInterestDescription", EntryArea::Lines::Several);
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
    addItems(*lstInterest, interests, [](desktop::ListItem &item, data::Recordset &interest) {
        item.Tag = runtime::joinedText(interest[u"MemberInterestId"].Value());
        putSubItem(item, 0, interest[u"Interest"]);
        putSubItem(item, 1, interest[u"InterestDescription"]);
    });
    interests.Close();
    interests.Cancel();
    sequence.close();
}

void InterestsTab::enter()
{
    cmdAddInterest->setText(u"Save"_s);
    m_area.enter();
}

void InterestsTab::browse()
{
    cmdAddInterest->setText(u"Add Interest"_s);
    txtInterest->clear();
    txtInterestDescription->clear();
    cmdAddInterest->Tag.clear();
    m_area.browse();
}

void InterestsTab::butAddInterest_Click()
{
    enter();
}

void InterestsTab::mnuInterestEdit_Click()
{
    const desktop::ListItem &item = *lstInterest->SelectedItem();
    txtInterest->setText(item.Text());
    txtInterestDescription->setText(item.SubItems(1));
    cmdAddInterest->Tag = item.Tag;
    enter();
}

void InterestsTab::cmdAddInterest_Click()
{
    if (txtInterest->text().isEmpty()) {
        desktop::MsgBox(u"Invalid Interest"_s, desktop::vbCritical, u"Tolmark"_s);
        return;
    }
    if (const QString key = std::exchange(cmdAddInterest->Tag, {}); !key.isEmpty())
        m_dossier.run(u"UPDATE MemberInterest SET MemberInterest.Interest = '"_s + txtInterest->text() +
                      u"', MemberInterest.InterestDescription = '"_s + txtInterestDescription->text() +
                      u"' WHERE (MemberInterest.MemberInterestId="_s + key + u");"_s);
    else
        m_dossier.run(u"INSERT INTO MemberInterest (Interest, InterestDescription, MemberId) values ('"_s +
                      txtInterest->text() + u"','"_s + txtInterestDescription->text() + u"',"_s + m_dossier.member() +
                      u")"_s);
    load();
    browse();
}

void InterestsTab::CMdInterestCancel_Click()
{
    browse();
}

// The question speaks of a file; that is how it is known.
void InterestsTab::MnuDeleteInterest_Click()
{
    deleteSelectedRow(m_dossier, *lstInterest,
                      {u"Warning you are about to delete the selected file",
                       u"DELETE * FROM MemberInterest WHERE (MemberInterestId =", u"Interest deleted",
                       RowDeletion::Order::RefreshThenMessage},
                      [this] { load(); });
}
