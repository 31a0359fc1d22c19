// A tab of the dossier about one row that belongs to the member: his own particulars, or his employer. Its boxes show
// the row, Update writes what its statement names. Nothing is validated.
#pragma once

#include "dossier/Dossier.h"
#include "dossier/MemberBoxes.h"

class RowTab : public desktop::Frame
{
    Q_OBJECT
public:
    // How one such tab differs from the other. The statements are those that MemberBoxes fills in.
    struct Design
    {
        QStringView frame;
        QStringView caption;
        std::span<const MemberField> fields;
        QStringView select;
        QStringView update;
        QStringView updateButton;
        QStringView closeButton;
    };
    RowTab(QWidget *parent, Dossier &dossier, const Design &design);

    // Update leaves the city and the state as they are stored, whatever is shown.
    static Design member();
    // Of two employer rows the first is shown, but Update writes both. It leaves the state and the extension as they
    // are stored. Without a row it stores nothing and still reports success.
    static Design employer();

    desktop::CommandButton *butUpdate;
    desktop::CommandButton *butClose;

    // Without a row (a member who is no longer active has none) the boxes stay empty.
    void load();

private:
    void butUpdate_Click();

    Dossier &m_dossier;
    Design m_design;
    MemberBoxes m_boxes;
};
