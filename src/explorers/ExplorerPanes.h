// What stands in both explorers: the bar of one button, the tree of groups, the list, the splitter between them and the
// status bar. The windows keep what they differ in: what is counted, listed and opened.
//
// The controls belong to the window. All geometry is in twips.
#pragma once

#include "platform/desktop/Controls.h"
#include "platform/desktop/ImageList.h"
#include "platform/desktop/ListView.h"
#include "platform/desktop/StatusBar.h"
#include "platform/desktop/Toolbar.h"
#include "platform/desktop/TreeView.h"

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

    // The pointer moved over the splitter: with the left button alone held down, both panes follow it.
    void dragSplitter(int button, float x);
    // Keeps the two bars at the edges of the window.
    void placeBars();

private:
    void setUpBars(const ExplorerTexts &texts);
    void setUpPlaces();

    desktop::Form &m_window;
};
