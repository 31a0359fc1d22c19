// A tree whose nodes have unique keys and a place in one collection, by which a data store can know them.
//
// Labels can be edited in place: AfterLabelEdit comes when the editor is gone already, so its handler may show a box or
// start the edit again. What is removed takes its children along, and the places of all later nodes move up.
#pragma once

#include "platform/desktop/ImageList.h"
#include "platform/desktop/LineView.h"
#include "platform/desktop/ObjectRef.h"

#include <QHash>
#include <QTreeWidget>

#include <optional>
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
    // The place among all nodes of the tree, from 1.
    int Index() const { return m_index; }
    // Unset for a top-level node.
    ObjectRef<Node> Parent() const { return static_cast<Node *>(parent()); }
    int Children() const { return childCount(); }
    void setBold(bool bold);
    // The system's colour of disabled text.
    void setGrey();
    void setImages(const ImageList &images, const QString &image, const QString &selectedImage,
                   const QString &expandedImage);

private:
    friend class Nodes;
    int m_index = 0;
};

// All nodes of a tree in the order in which they were added, from 1.
class Nodes
{
public:
    explicit Nodes(TreeView *tree) : m_tree(tree) {}

    // A top-level node, or with a parent its last child. Error 35602 for a key that is in use.
    Node &Add(Node *parent, const QString &key, const QString &text);
    // The node with all that stands under it. Error 35600 outside 1 to Count.
    void Remove(int index);
    void Clear();
    int Count() const { return int(m_nodes.size()); }
    // Error 35600 outside 1 to Count.
    Node &operator()(int index) const;

private:
    TreeView *m_tree;
    std::vector<Node *> m_nodes;
    QHash<QString, Node *> m_byKey;
};

// How the edit of a label begins: by a click on the selected node too, or by StartLabelEdit alone.
enum LabelEditConstants : int { tvwAutomatic = 0, tvwManual = 1 };

class TreeView : public LineView<QTreeWidget>
{
    Q_OBJECT
public:
    TreeView(QWidget *parent, QAnyStringView name);

    desktop::Nodes Nodes;
    // Unset while no node is selected.
    ObjectRef<Node> SelectedItem() const;
    // Manual unless it is set.
    void setLabelEdit(LabelEditConstants begin);
    // Opens the editor on the selected node; without one, or with an editor open already, it does nothing.
    void StartLabelEdit();
    void Refresh() { viewport()->update(); }

Q_SIGNALS:
    // A click anywhere in the tree, and a node reached or confirmed by the keyboard.
    void Click();
    // The press of a mouse button, with the pointer's place on the screen, before it selects anything; the right button
    // never does. The menu key and Shift with F10 count as the right button over the selected
    // node.
    void MouseDown(int button, QPoint place);
    // The release of a key whose press came to this tree or to the editor of a label.
    void KeyUp(int keyCode);
    void BeforeLabelEdit();
    // An edit that ended otherwise than by Esc. The label takes the new text afterwards, unless the handler cancels.
    void AfterLabelEdit(bool &cancel, const QString &newString);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void doItemsLayout() override;
    void dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight, const QList<int> &roles) override;
    void scrollContentsBy(int dx, int dy) override;
    int sizeHintForColumn(int column) const override;
    void commitData(QWidget *editor) override;
    void closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index, const QEvent *event) const override;

private:
    class LabelDelegate;
    void openMenuByKey();

    int m_pressedKey = 0;
    mutable int m_widthOfLabels = -1;  // in pixels; has to be found out anew where it is negative
    Node *m_edited = nullptr;          // the last one that an editor was opened on
    std::optional<QString> m_newLabel; // between the end of an edit and the editor's closing
};

} // namespace desktop
