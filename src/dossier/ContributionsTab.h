// What the member gave: listed, added and deleted. The amount goes to the store as it was typed; the day is the
// store's.
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
    // A key in its Tag turns the save into a change of that row. Nothing sets it so far.
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

    Dossier &m_dossier;
    EntryArea m_area;
};
