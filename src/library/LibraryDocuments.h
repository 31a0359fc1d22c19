// The documents of a library's node: their list, a file's way in as a new version, and the links to persons.
//
// A document refers to its node by the node's place in the tree. Every failure goes to the caller.
#pragma once

#include "platform/desktop/CommonDialog.h"
#include "platform/desktop/ListView.h"
#include "platform/desktop/TreeView.h"

class LibraryDocuments
{
public:
    LibraryDocuments(const desktop::TreeView &tree, desktop::ListView &list, desktop::CommonDialog &dialog);

    // Lists all versions of all documents of the selected node.
    void ListDocuments();
    // Asks for a file and stores it under the selected node; its version is one more than the highest of its name
    // there. The list stays as it was. Error 424 when no file is chosen.
    void upload();
    // Adds a link from the selected document to the person; it does not look for one that is there already.
    void linkTo(const QString &person) const;

private:
    QString selectedIndex() const;

    const desktop::TreeView &m_tree;
    desktop::ListView &m_list;
    desktop::CommonDialog &CommonDialog1;
};
