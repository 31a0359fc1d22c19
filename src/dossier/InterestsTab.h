// The member's interests: listed, added, changed and deleted. Adding and changing share one entry area; the Tag of its
// Save button holds the key of the row that is changed, and is empty while one is added.
#pragma once

#include "dossier/Dossier.h"
#include "dossier/EntryArea.h"
#include "platform/desktop/PopupMenu.h"

class InterestsTab : public desktop::Frame
{
    Q_OBJECT
public:
    InterestsTab(QWidget *parent, Dossier &dossier);

    desktop::ListView *lstInterest;
    desktop::CommandButton *butAddInterest;
    desktop::Label *lblInterest;
    desktop::TextBox *txtInterest;
    desktop::Label *lblInterestDescription;
    desktop::MultilineTextBox *txtInterestDescription;
    desktop::CommandButton *cmdAddInterest;
    desktop::CommandButton *CMdInterestCancel;
    desktop::CommandButton *butCloseInterest;
    desktop::PopupMenu *mnuInterest;

    void load();
    void butAddInterest_Click();
    void mnuInterestEdit_Click();
    void cmdAddInterest_Click();
    void CMdInterestCancel_Click();
    void MnuDeleteInterest_Click();

private:
    void setUpContent();
    void setUpMenu();
    void enter();
    void browse();

    Dossier &m_dossier;
    EntryArea m_area;
};
