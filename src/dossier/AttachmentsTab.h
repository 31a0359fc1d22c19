// The member's files, kept in the data store. Every upload is a row of its own with the next version of the file's
// name; the numbering of a name is common to all members. An older version stays until it is deleted by itself.
//
// A failure of adding, listing or viewing ends the program. One of a drop gives a message, any of a deletion
// says "Nothing selected", and one of saving says nothing.
#pragma once

#include "dossier/Dossier.h"
#include "library/AttachmentRows.h"
#include "platform/desktop/CommonDialog.h"
#include "platform/desktop/Controls.h"
#include "platform/desktop/PopupMenu.h"

class AttachmentsTab : public desktop::Frame
{
    Q_OBJECT
public:
    AttachmentsTab(QWidget *parent, Dossier &dossier, desktop::CommonDialog &dialog);

    desktop::ListView *lstAttachement;
    desktop::CheckBox *Check1;
    desktop::CommandButton *butAddAttachement;
    desktop::CommandButton *butCLoseAttachment;
    desktop::PopupMenu *MnuViewOptions;

    // With Check1 one line for each name. Its version, date and key are the highest of all rows of the name, each taken
    // by itself: they may come from different rows.
    void load();
    void Check1_Click();
    void butAddAttachement_Click();
    void lstAttachement_OLEDragDrop(const desktop::DataObject &dropped);
    void MnuSaveAs_Click();
    void lstAttachement_KeyUp(int keyCode);
    void MnuView_Click();
    void MnuDeleteAttachment_Click();

private:
    void setUpContent();
    void setUpMenu();
    AttachmentOwner member() const;
    QString listStatement() const;
    void addDropped(const desktop::DataObject &dropped);
    void saveSelected();

    Dossier &m_dossier;
    desktop::CommonDialog &CommonDialog1;
};
