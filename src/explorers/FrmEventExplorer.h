// The events by groups of their names: a tree of the groups on the left, the events of the chosen one on the right. The
// way to change an event, and the place where events are deleted.
//
// Unlike the member explorer it passes over failures of the tree and of the list: the tree then ends at the group that
// failed; the list stays as it was when its statement is refused, and lacks the rows behind one that cannot be read.
// Only the toolbar deletes, and the panes grow with the window.
#pragma once

#include "explorers/GroupedRows.h"
#include "platform/desktop/Form.h"

#include <QAction>

class FrmEventExplorer : public desktop::Form
{
    Q_OBJECT
public:
    FrmEventExplorer();

    // 99 or more shows the users in the tree, as the administrator sees them. No menu sets it.
    qint16 UserLevel = 0;

    // Opens the record window for a new person. No control of this window calls it; the main window's menu does.
    static void NewMemberInformation();

protected:
    void Form_Load() override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void Form_Resize();
    void LblMemberListing_Click();
    void TreClassView_Click();
    void LstStudenInformation_ColumnClick(int index);
    void LstStudenInformation_DblClick();
    void LstStudenInformation_KeyUp(int keyCode);
    void Toolbar1_ButtonClick(QAction *button);

    void loadTree();
    void loadList();

    ExplorerPanes m_panes;
    GroupedRows m_rows;
};
