// A list of interests and below it the entry of one: what the dossier's tab and the entry of a new member do alike.
#pragma once

#include "dossier/EntryArea.h"
#include "parts/ListedColumns.h"

class InterestArea : public desktop::Frame
{
    Q_OBJECT
public:
    desktop::ListView *lstInterest;
    desktop::Label *lblInterest;
    desktop::TextBox *txtInterest;
    desktop::Label *lblInterestDescription;
    desktop::MultilineTextBox *txtInterestDescription;
    desktop::CommandButton *cmdAddInterest; // "Save" during the entry
    desktop::CommandButton *CMdInterestCancel;

protected:
    // Derived classes make the buttons.
    InterestArea(QWidget *parent, const QString &caption, std::span<const ListedColumn> columns);

    void addBoxes();
    void enter();
    // Empties the boxes too.
    void browse();
    // False, after a message, for an entry without the interest's name. The description may be empty.
    bool isEntryValid() const;

    EntryArea m_area;
};

QString insertInterest(const QString &interest, const QString &description, const QString &memberId);
