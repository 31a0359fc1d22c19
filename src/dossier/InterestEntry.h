// The tab on which a new member's interests are gathered. They stay in the list until the member is saved; an interest
// once added can be neither changed nor removed here.
#pragma once

#include "dossier/InterestArea.h"

class InterestEntry : public InterestArea
{
    Q_OBJECT
public:
    explicit InterestEntry(QWidget *parent);

    void cmdAddInterest_Click();
    void CMdInterestCancel_Click();

private:
    QWidget *setUpButtons();
    void endEntry();
};
