// The document library: its structure as a tree on the left, the documents of the selected node on the right.
//
// Its opener decides by adminFunction what it is: the manager, which builds the structure and takes files in, or the
// browser, in which a double click links a document to a person. A failure ends the program, and so does cancelling an
// upload (error 424). Four handlers pass over their failures: a mouse button pressed in the tree, the states of the
// menus, the splitter and the link. What is not saved is lost without a question.
#pragma once

#include "library/LibraryDocuments.h"
#include "library/LibraryTree.h"
#include "library/MenuBar.h"
#include "parts/SplitPanes.h"
#include "platform/desktop/Form.h"

class frmDocumentExp : public desktop::Form
{
    Q_OBJECT
public:
    frmDocumentExp();

    QString NodeName; // unused, as the next one
    QString NodeDescription;
    bool adminFunction = false;
    QString PersonalInformationId; // whom the browser links to

    // Gives the menus their own colour, with texts that stand out from it whatever the palette. Nobody calls it: the
    // menus keep the system's colours.
    void SetMenuColours();

protected:
    void Form_Load() override;
    void resizeEvent(QResizeEvent *event) override;

private:
    using Handler = void (frmDocumentExp::*)();
    QAction *addItem(desktop::PopupMenu *menu, QAnyStringView name, const QString &caption, Handler handler = nullptr);
    void setUpMenus();
    void setUpLibraryOptions();
    void setUpFileMenu();
    void setUpNodeMenus();
    void setMode();
    QAction *item(const char *name) const;
    void enable(std::initializer_list<const char *> names, bool enabled) const;

    void SetMenuState();
    void setPopupState();
    void addCatagory() { m_library.AddNewNode(QStringLiteral("Catagory")); }
    void addLibrary() { m_library.AddNewNode(QStringLiteral("Library")); }
    void deleteNode() { m_library.DeleteNode(); }
    void MnuRenameNode_Click();
    void mnuSave_Click();
    void mnuUpLoadDocument_Click();
    void mnuClose_Click();
    void TreClassView_MouseDown(int button, QPoint place);
    void TreClassView_Click();
    void TreClassView_BeforeLabelEdit();
    void TreClassView_AfterLabelEdit(bool &cancel, const QString &newString);
    void TreClassView_KeyUp(int keyCode);
    void LstStudenInformation_DblClick();
    void LstStudenInformation_KeyUp(int keyCode);

    MenuBar *m_menuBar;
    SplitPanes m_panes;
    desktop::PopupMenu *MnuLibraryOption;
    desktop::CommonDialog *CommonDialog1;
    LibraryTree m_library;
    LibraryDocuments m_documents;
    QString m_oldLabel; // of the node edited last
    bool m_editingRoot = false;
};
