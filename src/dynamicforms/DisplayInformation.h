// The record window: a person's values on pages that are built from the form's metadata, and three lists about him.
//
// The opener sets the public fields before the first touch that loads the window. What cmdEdit and cmdDelete do changes
// with the page that is shown and with EditMode, and is their caption. Showing a page and leaving one pass over every
// failure; a failure of the load, the lists and the commands ends the program. The form is read once, as the
// window loads; error 9 when it has no fields at all.
#pragma once

#include "dynamicforms/RecordLists.h"
#include "dynamicforms/RecordPage.h"
#include "dynamicforms/RecordValues.h"
#include "library/AttachmentRows.h"
#include "platform/desktop/CommonDialog.h"
#include "platform/desktop/Form.h"
#include "platform/desktop/PopupMenu.h"
#include "platform/desktop/TabStrip.h"

#include <functional>
#include <initializer_list>

class DisplayInformation : public desktop::Form
{
    Q_OBJECT
public:
    DisplayInformation();

    qint16 RecordId = 0; // whom it shows
    QString WindowTitle;
    QString EditMode; // empty: viewing; "New": a person to be added; "Edit": while his values are edited

    desktop::TabStrip *TabStrip1;
    desktop::Frame *Frame1;
    desktop::ListView *ListView1;
    desktop::Frame *Frame2;
    desktop::CommandButton *cmdEdit;
    desktop::CommandButton *cmdDelete;
    desktop::CommandButton *cmdCancel;
    desktop::CommandButton *cmdClose;
    desktop::CommonDialog *CommonDialog1;
    desktop::PopupMenu *MnuOptionsView;

    void ShowRecordTab();
    void ShowAttachments() { showList(attachmentsList); }
    void ShowResources() { showList(resourcesList); }
    void ShowEvents() { showList(eventsList); }

    void cmdEdit_Click();
    void cmdDelete_Click();
    void cmdCancel_Click();
    void cmdClose_Click();
    void TabStrip1_BeforeClick();
    void TabStrip1_Click();
    void ListView1_DblClick();
    void ListView1_KeyUp(int keyCode);
    void ListView1_MouseUp(int button, QPoint place);
    void MnuSaveAs_Click();
    void MnuView_Click();

protected:
    void Form_Load() override;
    void Form_Activate() override;

private:
    void setUpContent();
    void setUpMenu();
    void connectHandlers();
    void loadForm();
    void addTabs(std::initializer_list<std::reference_wrapper<const RecordList>> lists);
    QStringList captions() const;
    void showList(const RecordList &list);

    void startEditing();
    void endEditing();
    void leaveButtons();
    void upload();
    void assignResource();
    void saveNew();
    void saveEdited();
    void deletePerson();
    RecordPages pages() const;
    AttachmentOwner person() const;

    FieldRows m_rows;
    RecordPage m_page;
};
