// What stands in both explorers: the panes of the tree of groups and of the list, and the bar of one button above them.
//
// The controls belong to the window. All geometry is in twips.
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
    // The count that the text of the selected node shows, empty for a grey node. Error 91 without a selected node.
    QString countText() const;

    void forEachSelected(const std::function<void(const desktop::ListItem &)> &act) const;

    // Keeps the two bars at the edges of the window.
    void placeBars();
};
