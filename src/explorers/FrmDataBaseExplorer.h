// The members by groups of their last names: a tree of the groups on the left, the members of the chosen one on the
// right. The way into a member's dossier, and the place where members are deleted.
//
// A failure of the load, the tree, the list, a double click or the deletion by the toolbar ends the program. One of a
// column click or of the splitter is passed over without a word, and so is one of a key in the list, but for error 7.
#pragma once

#include "explorers/GroupedRows.h"
#include "platform/desktop/Form.h"

#include <QAction>

class FrmDataBaseExplorer : public desktop::Form
{
    Q_OBJECT
public:
    FrmDataBaseExplorer();

    // 99 or more shows the users in the tree, as the administrator sees them.
    qint16 UserLevel = 0;

protected:
    void Form_Load() override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void LblMemberListing_Click();
    void TreClassView_Click();
    void LstStudenInformation_ColumnClick(int index);
    void LstStudenInformation_DblClick();
    void LstStudenInformation_KeyUp(int keyCode);
    void Toolbar1_ButtonClick(QAction *button);

    void deleteSelectedMembers();
    static void openDossier(const desktop::ListItem &item);

    ExplorerPanes m_panes;
    GroupedRows m_rows;
};
