// A tree whose nodes have unique keys.
#pragma once

#include "platform/desktop/Control.h"
#include "platform/desktop/ImageList.h"
#include "platform/desktop/ObjectRef.h"

#include <QHash>
#include <QTreeWidget>

#include <vector>

namespace desktop {

class TreeView;

// One node; owned by its tree.
class Node : public QTreeWidgetItem
{
public:
    QString Key;
    QString Tag;

    QString Text() const { return text(0); }
    void setText(const QString &text) { QTreeWidgetItem::setText(0, text); }
    void setBold(bool bold);
    // The system's colour of disabled text.
    void setGrey();
    void setImages(const ImageList &images, const QString &image, const QString &selectedImage,
                   const QString &expandedImage);
};

// All nodes of a tree in the order in which they were added, from 1.
class Nodes
{
public:
    explicit Nodes(TreeView *tree) : m_tree(tree) {}

    // A top-level node, or with a parent its last child. Error 35602 for a key that is in use.
    Node &Add(Node *parent, const QString &key, const QString &text);
    void Clear();
    int Count() const { return int(m_nodes.size()); }
    // Error 35600 outside 1 to Count.
    Node &operator()(int index) const;

private:
    TreeView *m_tree;
    std::vector<Node *> m_nodes;
    QHash<QString, Node *> m_byKey;
};

class TreeView : public ControlOf<QTreeWidget>
{
    Q_OBJECT
public:
    TreeView(QWidget *parent, QAnyStringView name);

    desktop::Nodes Nodes;
    // Unset while no node is selected.
    ObjectRef<Node> SelectedItem() const;

Q_SIGNALS:
    // A click anywhere in the tree, and a node reached or confirmed by the keyboard.
    void Click();

protected:
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index, const QEvent *event) const override;
};

} // namespace desktop
