// What the administrator sees of the users: the tree of them under the groups of their last names, and a list of a
// group's users.
#pragma once

#include "explorers/ExplorerPanes.h"

// Adds one group for each active row of NodeInformation and, nested one under another, its users. `current` becomes
// each node as it is added.
void loadUserTree(ExplorerPanes &panes, desktop::ObjectRef<desktop::Node> &current);

// Opens the window of the selected user, or lists the users of the selected group. No click leads here: it is kept for
// an administrator's list.
void loadUserList(ExplorerPanes &panes);
