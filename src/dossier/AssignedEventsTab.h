// The events that the member attended, with actual start, finish and date, and a comment, all free text. A row holds
// the event's name, not its key.
//
// Adding and changing share one entry area; the Tag of its Save button holds the key of the row that is changed. The
// events to choose from are read once, when the window loads.
#pragma once

#include "dossier/Dossier.h"
#include "dossier/EntryArea.h"
#include "platform/desktop/PopupMenu.h"

class AssignedEventsTab : public desktop::Frame
{
    Q_OBJECT
public:
    AssignedEventsTab(QWidget *parent, Dossier &dossier);

    desktop::ListView *lstEvent;
    desktop::CommandButton *butAssignEvent;
    desktop::Label *lblEventSelect;
    desktop::ListBox *lstEventSelect;
    desktop::ListBox *lstEventSelectId; // the events' keys, covered by their names; nothing reads them
    desktop::Label *lblEventActualTimeStarted;
    desktop::TextBox *txtEventActualTimeStarted;
    desktop::Label *lblEventActualTimeFinished;
    desktop::TextBox *txtEventActualTimeFinished;
    desktop::Label *LblEventActualDate;
    desktop::TextBox *txtEventActualDate;
    desktop::Label *lblEventComments;
    desktop::TextBox *txtEventComments;
    desktop::CommandButton *CmdEventSave;
    desktop::CommandButton *cmdEventCancel;
    desktop::CommandButton *butCloseEvent;
    desktop::PopupMenu *mnuEventsOptions;

    // Error 94 for an event without a name or a key.
    void loadEventChoices();
    void loadAssignedEvents();
    void butAssignEvent_Click();
    void mnuEditEvent_Click();
    void CmdEventSave_Click();
    void cmdEventCancel_Click();
    void mnuDeleteEvent_Click();

private:
    void setUpList();
    void setUpEntry();
    void setUpMenu();
    QString insertStatement() const;
    QString updateStatement(const QString &key) const;
    void browse();

    Dossier &m_dossier;
    EntryArea m_area;
};
