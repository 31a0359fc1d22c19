// Everything known of one member, on seven tabs. Several can stand open at once, also of one member.
//
// An opener makes the window, sets MemberId, sets the caption, which loads it, and shows it. Nothing is kept locked
// meanwhile: the later Update wins. Apart from what a tab says of its own handlers, a failure ends the program.
#pragma once

#include "dossier/AssignedEventsTab.h"
#include "dossier/AttachmentsTab.h"
#include "dossier/ContributionsTab.h"
#include "dossier/EmployerTab.h"
#include "dossier/InterestsTab.h"
#include "dossier/MemberTab.h"
#include "dossier/NotesTab.h"
#include "platform/desktop/Form.h"

class DisplayMembers : public desktop::Form, public Dossier
{
    Q_OBJECT
public:
    DisplayMembers();

    // The same field as MemberId. Error 6 or 13 for what is no 16-bit number.
    runtime::Value MemberIdentification() const { return runtime::Value(MemberId); }
    void setMemberIdentification(const runtime::Value &id);

    desktop::TabbedDialog *SSTab1;
    desktop::CommonDialog *CommonDialog1;
    MemberTab *Frame1;
    EmployerTab *Frame2;
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
