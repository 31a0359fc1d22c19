// What the member gave: listed, added and deleted. The amount goes to the store as it was typed; the day is the
// column's default, the present one.
#pragma once

#include "dossier/Dossier.h"
#include "dossier/EntryArea.h"
#include "platform/desktop/PopupMenu.h"

class ContributionsTab : public desktop::Frame
{
    Q_OBJECT
public:
    ContributionsTab(QWidget *parent, Dossier &dossier);

    desktop::ListView *lstContributions;
    desktop::CommandButton *butAddContributions;
    desktop::Label *lblCOntribution;
    desktop::TextBox *txtContribution;
    desktop::Label *lblContributionNote;
    desktop::MultilineTextBox *txtContributionNote;
    // With a row's key in its Tag, saving changes that row. No handler sets it: a contribution cannot be edited yet.
    desktop::CommandButton *cmdSaveContribution;
    desktop::CommandButton *CmdCancelContribution;
    desktop::CommandButton *butCloseContributions;
    desktop::PopupMenu *mnuContributions;

    void load();
    void butAddContributions_Click();
    void CmdCancelContribution_Click();
    void cmdSaveContribution_Click();
    void mnuDeleteContribution_Click();

private:
    void setUpContent();
    QString insertStatement() const;
    QString updateStatement(const QString &key) const;

    Dossier &m_dossier;
    EntryArea m_area;
};
