// The structure of the library: the nodes of a tree, and the rows that keep them from one opening to the next.
//
// A node is known by its place among the nodes, in its own row and in those of its documents. Nothing is written before
// save, and save only appends: the rows of earlier saves stay, so that a later load finds each node as often as it was
// saved. Every failure goes to the caller.
#pragma once

#include "platform/desktop/ImageList.h"
#include "platform/desktop/TreeView.h"

class LibraryTree
{
public:
    LibraryTree(desktop::TreeView &tree, const desktop::ImageList &images) : m_tree(tree), m_images(images) {}

    enum class Labels { Plain, WithCounts }; // "Bylaws", "Bylaws     (3)" where there are documents
    // Puts the root into the empty tree and the stored nodes under it. The root is selected from the start, so that
    // there is a node to which the menus apply. Error 35600 for a row whose parent does not stand above it.
    void load(Labels labels);
    // Appends a row for each node.
    void save() const;

    // Adds a node of the type, "Library" or "Catagory", under the selected one: "Library 3". Its number is that of the
    // nodes so far, so after a removal it can be taken: error 35602.
    void AddNewNode(const QString &type);
    // Removes the selected node after a question, and after a second one when there are nodes under it. The rows of its
    // documents stay.
    void DeleteNode();

    // Whether the node bears the label of the root: one that does counts as the root.
    bool isRoot(const desktop::Node &node) const;

private:
    void addRoot();
    void AddLoadedNode(const QString &type, int parentIndex, const QString &label);
    void addNode(desktop::Node &parent, const QString &type, const QString &key, const QString &label);
    void setImages(desktop::Node &node) const;

    desktop::TreeView &m_tree;
    const desktop::ImageList &m_images;
};
