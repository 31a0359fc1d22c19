// An event is keyed in, or one of the file is changed: EventId decides which when it is saved.
//
// No failure is held back: a value with an apostrophe breaks the statement and ends the program. An empty name or
// description saves nothing and says nothing. The first touch that loads the window puts defaults into its boxes, so
// who opens it on an event sets the caption before the boxes.
#pragma once

#include "platform/desktop/Controls.h"
#include "platform/desktop/Form.h"
#include "platform/runtime/Value.h"

class FrmAddEvent : public desktop::Form
{
    Q_OBJECT
public:
    FrmAddEvent();

    // The one window that the main menu shows, made at its first use.
    static FrmAddEvent &shared();

    // The row's EventIdentification; empty: a new row.
    QString EventId;

    desktop::Frame *Frame1;
    desktop::TextBox *txtEventName;
    desktop::TextBox *txtEventDescription;
    desktop::TextBox *txtEventStartDate;
    desktop::CommandButton *cmdStartDate;
    desktop::TextBox *txtEventStartTime;
    desktop::ListBox *lstStartTime;
    desktop::TextBox *txtEventEndDate;
    desktop::CommandButton *cmdEndDate;
    desktop::TextBox *txtEventEndTime;
    desktop::ListBox *lstEndTime;
    desktop::CommandButton *cmdSave;
    desktop::CommandButton *CmdClose;

    // Names without effect: what is written is kept nowhere, what is read is empty.
    runtime::Value NoteId() const { return empty(); }
    void setNoteId(const runtime::Value &) {}
    runtime::Value NoteTitle() const { return empty(); }
    void setNoteTitle(const runtime::Value &) {}
    runtime::Value Note() const { return empty(); }
    void setNote(const runtime::Value &) {}
    runtime::Value EquipmentId() const { return empty(); }
    void setEquipmentId(const runtime::Value &) {}
    runtime::Value EquipmentSerialNumber() const { return empty(); }
    void setEquipmentSerialNumber(const runtime::Value &) {}
    runtime::Value ViewNote() const { return empty(); }
    void setViewNote(const runtime::Value &) {}
    void setRefreshF(const QObject *) {}

    void cmdStartDate_Click();
    void cmdEndDate_Click();
    void cmdSave_Click();
    void CmdClose_Click();

protected:
    void Form_Load() override;

private:
    static runtime::Value empty() { return runtime::Value(QString()); }
    void setUpContent();
    void openCalendar(const QString &caption, const desktop::TextBox *box);
    QString insertStatement() const;
    QString updateStatement() const;
    // Nobody calls it; with nothing to call popNotes on, it fails with error 424.
    static void refreshNotes();
};
