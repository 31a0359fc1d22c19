#include "dossier/ContributionsTab.h"

#include "dossier/RowDeletion.h"
#include "parts/ListedColumns.h"
#include "platform/desktop/ErrorReport.h"
#include "platform/desktop/MsgBox.h"
#include "platform/runtime/Conversion.h"
#include "platform/runtime/Format.h"
#include "shell/store/CLsDataBaseConnection.h"

#include <array>
#include <tuple>
#include <utility>

using namespace Qt::Literals::StringLiterals;

using runtime::Value;

namespace {

constexpr std::array contributionColumns{
    ListedColumn{.header = u"Contribution Date", .column = u"ContributionDate", .width = 2400},
    ListedColumn{.header = u"Contribution Amount",
                 .column = u"ContributionAmount",
                 .width = 2400,
                 .cell =
                     [](data::Recordset &row) {
                         const Value amount = row[u"ContributionAmount"].Value();
                         return amount.isNull() ? Value() : Value(runtime::FormatCurrency(amount));
                     }},
    ListedColumn{.header = u"Contribution Note", .column = u"ContributionNotes"},
};

} // namespace

ContributionsTab::ContributionsTab(QWidget *parent, Dossier &dossier)
    : Frame(parent, u"Frame5", u"Member's Contribution"_s),
      lstContributions(new desktop::ListView(this, u"lstContributions")),
      mnuContributions(new desktop::PopupMenu(this, u"mnuContributions", u"Contributions Options"_s)),
      m_dossier(dossier), m_area(*this, *lstContributions)
{
    setUpContent();
    QAction *remove = mnuContributions->addItem(u"mnuDeleteContribution", u"Delete Contribution"_s);
    mnuContributions->popUpOver(*lstContributions);
    using desktop::on;
    on(remove, &QAction::triggered, this, &ContributionsTab::mnuDeleteContribution_Click);
    on(butAddContributions, &QPushButton::clicked, this, &ContributionsTab::butAddContributions_Click);
    on(CmdCancelContribution, &QPushButton::clicked, this, &ContributionsTab::CmdCancelContribution_Click);
    on(cmdSaveContribution, &QPushButton::clicked, this, &ContributionsTab::cmdSaveContribution_Click);
}

void ContributionsTab::setUpContent()
{
    lstContributions->setAccessibleName(u"Contributions"_s);
    setUpHeaders(*lstContributions, contributionColumns);
    butAddContributions = m_area.addBeginningButton(u"butAddContributions", u"Add Contribution"_s);
    std::tie(lblCOntribution, txtContribution) =
        m_area.addRow<desktop::TextBox>(u"lblCOntribution", u"Contribution"_s, u"txtContribution");
    std::tie(lblContributionNote, txtContributionNote) = m_area.addRow<desktop::MultilineTextBox>(
        u"lblContributionNote", u"Note"_s, u"txtContributionNote", EntryArea::Lines::Several);
    cmdSaveContribution = m_area.addEndingButton(u"cmdSaveContribution", u"Save"_s);
    CmdCancelContribution = m_area.addEndingButton(u"CmdCancelContribution", u"Cancel"_s);
    butCloseContributions = m_area.addCloseButton(u"butCloseContributions", u"Close"_s);
    m_area.beginBrowsing();
}

void ContributionsTab::load()
{
    CLsDataBaseConnection store;
    data::Recordset contributions =
        store.CreateRecordset(u"SELECT * FROM Contributions WHERE (MemberId ="_s + m_dossier.member() + u")"_s);
    fillList(*lstContributions, contributions, u"ContributionId", contributionColumns, Keyed::LinesWithFirstCell);
    contributions.Close();
    store.DbClose();
}

void ContributionsTab::butAddContributions_Click()
{
    m_area.enter();
}

void ContributionsTab::CmdCancelContribution_Click()
{
    m_area.browse();
}

QString ContributionsTab::insertStatement() const
{
    return u"INSERT INTO Contributions (ContributionAmount, ContributionNotes, MemberId) values ('"_s +
           txtContribution->text() + u"','"_s + txtContributionNote->text() + u"',"_s + m_dossier.member() + u")"_s;
}

QString ContributionsTab::updateStatement(const QString &key) const
{
    return u"UPDATE Contributions SET Contributions.ContributionAmount = '"_s + txtContribution->text() +
           u"', Contributions.ContributionNotes = '"_s + txtContributionNote->text() +
           u"' WHERE (Contributions.ContributionId ="_s + key + u");"_s;
}

void ContributionsTab::cmdSaveContribution_Click()
{
    if (txtContribution->text().isEmpty()) {
        desktop::MsgBox(u"Invalid contribution"_s, desktop::vbCritical, u"Tolmark"_s);
        return;
    }
    if (!runtime::IsNumeric(Value(txtContribution->text()))) {
        desktop::MsgBox(u"Invalid contribution amount"_s, desktop::vbCritical, u"Tolmark"_s);
        return;
    }
    const QString key = std::exchange(cmdSaveContribution->Tag, {});
    m_dossier.run(key.isEmpty() ? insertStatement() : updateStatement(key));
    m_area.browse();
    load();
}

void ContributionsTab::mnuDeleteContribution_Click()
{
    deleteSelectedRow(m_dossier, *lstContributions,
                      {u"Warning you are about to delete the selected contribution",
                       u"DELETE * FROM contributions WHERE (ContributionId =", u"Contribution deleted",
                       RowDeletion::Order::RefreshThenMessage},
                      [this] { load(); });
}
