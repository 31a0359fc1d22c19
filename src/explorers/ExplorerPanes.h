// What stands in both explorers: the bar of one button, the tree of groups, the list, the splitter between them, which
// it serves itself, and the status bar.
//
// The controls belong to the window. All geometry is in twips.
#pragma once

#include "platform/desktop/Controls.h"
#include "platform/desktop/ImageList.h"
#include "platform/desktop/ListView.h"
#include "platform/desktop/StatusBar.h"
#include "platform/desktop/Toolbar.h"
#include "platform/desktop/TreeView.h"

#include <functional>

namespace desktop {
class Form;
}

struct ExplorerTexts
{
    QString deleteButton; // description and tool tip
    QString deleteImage;
    QString listing;     // headline of the tree
    QString information; // headline of the list
};

class ExplorerPanes
{
public:
    ExplorerPanes(desktop::Form &window, const ExplorerTexts &texts);

    desktop::Toolbar *Toolbar1;
    desktop::Label *LblMemberListing;
    desktop::Label *LblMemberInformation;
    desktop::TreeView *TreClassView;
    desktop::PictureBox *Picture1;
    desktop::ListView *LstStudenInformation;
    desktop::StatusBar *StatusBar1;
    desktop::ImageList *ImageList1;

    // Adds a group: with its count in bold, or in grey when it is empty. Error 35602 for a group that the tree holds.
    desktop::Node &addGroup(const QString &name, qint32 count);
    // The count that the text of the selected node shows, empty for a grey node. Error 91 without a selected node.
    QString countText() const;

    void forEachSelected(const std::function<void(const desktop::ListItem &)> &act) const;

    // Keeps the two bars at the edges of the window.
    void placeBars();

private:
    void setUpBars(const ExplorerTexts &texts);
    void setUpPlaces();
    // The pointer moved over the splitter: with the left button alone held down, both panes follow it.
    void dragSplitter(int button, float x);

    desktop::Form &m_window;
};
