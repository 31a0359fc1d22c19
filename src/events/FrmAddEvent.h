// A new event is keyed in, or a stored one is changed: EventId decides which when it is saved.
//
// A value with an apostrophe breaks the statement, which ends the program, as every failure here does. With an empty
// name or description nothing is saved and nothing is said. The load puts defaults into the boxes: who fills them loads
// the window first, by setting its caption or by Load().
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

    // Properties without effect: a write is kept nowhere, a read is empty. No window uses them; the names are kept.
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
    // Nothing calls it. It would call popNotes of an object that this window does not have, and so raises error 424.
    static void refreshNotes();
};
