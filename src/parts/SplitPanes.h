// A tree on the left and a list on the right, a headline over each, between them a bar that the mouse drags, and a
// status bar below.
//
// The controls belong to the window and have the same given names in every window; the headlines bear their own. The
// panes serve the splitter themselves. All geometry is in twips.
#pragma once

#include "platform/desktop/Controls.h"
#include "platform/desktop/ImageList.h"
#include "platform/desktop/ListView.h"
#include "platform/desktop/StatusBar.h"
#include "platform/desktop/TreeView.h"

namespace desktop {
class Form;
}

class SplitPanes
{
public:
    struct Headline
    {
        QStringView name;
        QString text;
    };
    SplitPanes(desktop::Form &window, const Headline &overTree, const Headline &overList);

    desktop::Label *treeHeadline;
    desktop::Label *listHeadline;
    desktop::TreeView *TreClassView;
    desktop::PictureBox *Picture1;
    desktop::ListView *LstStudenInformation;
    desktop::StatusBar *StatusBar1;
    desktop::ImageList *ImageList1; // "OpenFolder", "ClosedFolder"

    // The panes take the window's size, the panels of the status bar a fifth of its width each. In a window smaller
    // than what the panes leave free, they grow again as it shrinks.
    void followWindow();
    // Keeps the status bar at the edge of the window.
    void placeStatusBar();

protected:
    desktop::Form &m_window;

private:
    void setUpPlaces();
    // The pointer moved over the splitter: with the left button alone held down, both panes follow it.
    void dragSplitter(int button, float x);
};
