// The member's interests: listed, added, changed and deleted. Adding and changing share one entry area; the Tag of its
// Save button holds the key of the row that is changed, and is empty while one is added.
#pragma once

#include "dossier/Dossier.h"
#include "dossier/InterestArea.h"
#include "platform/desktop/PopupMenu.h"

class InterestsTab : public InterestArea
{
    Q_OBJECT
public:
    InterestsTab(QWidget *parent, Dossier &dossier);

    desktop::CommandButton *butAddInterest;
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
    QString updateStatement(const QString &key) const;

    Dossier &m_dossier;
};
