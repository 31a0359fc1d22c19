// The administrator's tree: the users under the groups of their last names.
#pragma once

#include "explorers/ExplorerPanes.h"

// Adds one group for each active row of NodeInformation and, nested one under another, its users. Returns the node
// added last, unset when there is no group.
desktop::ObjectRef<desktop::Node> loadUserTree(ExplorerPanes &panes);
