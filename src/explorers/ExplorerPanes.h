// The controls that both explorers have: the panes with the tree of groups and the list, and above them a toolbar with
// one button.
//
// The window owns the controls. All positions and sizes are in twips.
#pragma once

#include "parts/SplitPanes.h"
#include "platform/desktop/Toolbar.h"

#include <functional>

struct ExplorerTexts
{
    QString deleteButton; // description and tool tip
    QString deleteImage;
    QString listing;     // headline of the tree
    QString information; // headline of the list
};

class ExplorerPanes : public SplitPanes
{
public:
    ExplorerPanes(desktop::Form &window, const ExplorerTexts &texts);

    desktop::Toolbar *Toolbar1;
    desktop::Label *LblMemberListing;
    desktop::Label *LblMemberInformation;

    // Adds a group: with its count in bold, or in grey when it is empty. Error 35602 for a group that the tree holds.
    desktop::Node &addGroup(const QString &name, qint32 count);
    // The count that the text of the selected node shows, empty for a grey node; in the tree of users the node's text
    // without blanks and parentheses. Error 91 without a selected node.
    QString countText() const;

    void forEachSelected(const std::function<void(const desktop::ListItem &)> &act) const;

    // Puts the toolbar at the top edge of the window and the status bar at its bottom edge.
    void placeBars();
};
