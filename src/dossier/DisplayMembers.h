// Everything known of one member, on seven tabs. Several can stand open at once, also of one member.
//
// An opener makes the window, sets MemberId, sets the caption, which loads it, and shows it. Rows are not locked: of
// two dossiers of one member the later Update wins. A failure ends the program, unless a tab says otherwise.
#pragma once

#include "dossier/AssignedEventsTab.h"
#include "dossier/AttachmentsTab.h"
#include "dossier/ContributionsTab.h"
#include "dossier/InterestsTab.h"
#include "dossier/NotesTab.h"
#include "dossier/RowTab.h"
#include "platform/desktop/Form.h"

class DisplayMembers : public desktop::Form, public Dossier
{
    Q_OBJECT
public:
    DisplayMembers();

    // The same field as MemberId. Error 6, 13 or 94 for what is no 16-bit number.
    runtime::Value MemberIdentification() const { return runtime::Value(MemberId); }
    void setMemberIdentification(const runtime::Value &id);

    desktop::TabbedDialog *SSTab1;
    desktop::CommonDialog *CommonDialog1;
    RowTab *Frame1;
    RowTab *Frame2;
    AssignedEventsTab *Frame7;
    ContributionsTab *Frame5;
    AttachmentsTab *Frame4;
    InterestsTab *Frame3;
    NotesTab *Frame6;

protected:
    void Form_Load() override;

private:
    void setUpTabs();
    void setUpCloseButtons();
};
