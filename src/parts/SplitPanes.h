// A tree on the left and a list on the right, a headline over each, between them a bar that the mouse drags and Ctrl
// with Left and Right moves, and a status bar below.
//
// The window owns the controls. They have the same names in every window, but for the headlines, whose names the window
// gives. Moves of the splitter are handled here. All positions and sizes are in twips.
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
    SplitPanes(desktop::Form &window, const Headline &overTree, const Headline &overList, double treeWidth = 2475);

    desktop::Label *treeHeadline;
    desktop::Label *listHeadline;
    desktop::TreeView *TreClassView;
    desktop::PictureBox *Picture1;
    desktop::ListView *LstStudenInformation;
    desktop::StatusBar *StatusBar1;
    desktop::ImageList *ImageList1; // "OpenFolder", "ClosedFolder"

    // Gives the panes the size of the window less constant margins, and each panel of the status bar a fifth of its
    // width. The sizes are absolute values, so that in a window smaller than the margins the panes grow as it shrinks.
    void followWindow();
    // Puts the status bar at the bottom edge of the window, over its whole width.
    void placeStatusBar();

protected:
    desktop::Form &m_window;

private:
    void setUpPlaces(double treeWidth);
    void setUpSplitter();
    // Answers a move of the pointer over the splitter. While the left button alone is held down, the panes share the
    // width anew at the pointer.
    void dragSplitter(int button, float x);
};
