// The tab on which a new member's interests are gathered. They stay in the list until the member is saved; an interest
// once added can be neither changed nor removed here.
#pragma once

#include "dossier/EntryArea.h"

class InterestEntry : public desktop::Frame
{
    Q_OBJECT
public:
    explicit InterestEntry(QWidget *parent);

    desktop::ListView *lstInterest;
    desktop::Label *lblInterest;
    desktop::TextBox *txtInterest;
    desktop::Label *lblInterestDescription;
    desktop::MultilineTextBox *txtInterestDescription;
    desktop::CommandButton *cmdAddInterest;
    desktop::CommandButton *CMdInterestCancel;

    void cmdAddInterest_Click();
    void CMdInterestCancel_Click();

private:
    void setUpContent();
    QWidget *setUpButtons();
    void beginEntry();
    void endEntry();

    EntryArea m_area;
};
