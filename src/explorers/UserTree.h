// The users as the administrator sees them: in the tree, under the groups of their last names, and in a list of one
// group's users.
#pragma once

#include "explorers/ExplorerPanes.h"

// Adds one group for each active row of NodeInformation and under it its users, each one as a child of the user before.
// `current` is set to each node as it is added, so that it ends at the last one, or at the one before a failure.
void loadUserTree(ExplorerPanes &panes, desktop::ObjectRef<desktop::Node> &current);

// Opens the window of the selected user, or lists the users of the selected group. No control calls it; it is kept for
// an edition that shows the administrator a list.
void loadUserList(ExplorerPanes &panes);
