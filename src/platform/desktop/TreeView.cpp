#include "platform/desktop/TreeView.h"

#include "platform/desktop/Keys.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPalette>

namespace desktop {

void Node::setBold(bool bold)
{
    QFont changed = font(0);
    changed.setBold(bold);
    setFont(0, changed);
}

void Node::setGrey()
{
    setForeground(0, QApplication::palette().brush(QPalette::Disabled, QPalette::Text));
}

void Node::setImages(const ImageList &images, const QString &image, const QString &selectedImage,
                     const QString &expandedImage)
{
    setIcon(0, images.nodeIcon(image, selectedImage, expandedImage));
}

Node &Nodes::Add(Node *parent, const QString &key, const QString &text)
{
    if (!key.isEmpty() && m_byKey.contains(key))
        throw runtime::RuntimeError(runtime::KeyNotUnique);
    auto *node = new Node();
    node->Key = key;
    node->setText(text);
    if (parent)
        parent->addChild(node);
    else
        m_tree->addTopLevelItem(node);
    m_nodes.push_back(node);
    if (!key.isEmpty())
        m_byKey.insert(key, node);
    return *node;
}

void Nodes::Clear()
{
    m_byKey.clear();
    m_nodes.clear();
    m_tree->clear();
}

Node &Nodes::operator()(int index) const
{
    if (index < 1 || index > Count())
        throw runtime::RuntimeError(runtime::IndexOutOfBounds);
    return *m_nodes[size_t(index - 1)];
}

TreeView::TreeView(QWidget *parent, QAnyStringView name) : ControlOf(parent, name), Nodes(this)
{
    setColumnCount(1);
    header()->hide();
    setUniformRowHeights(true);
}

ObjectRef<Node> TreeView::SelectedItem() const
{
    const QList<QTreeWidgetItem *> selected = selectedItems();
    return selected.isEmpty() ? nullptr : static_cast<Node *>(selected.constFirst());
}

void TreeView::mouseReleaseEvent(QMouseEvent *event)
{
    QTreeWidget::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton && viewport()->rect().contains(event->position().toPoint()))
        Q_EMIT Click();
}

// A node once selected stays so until another one is: neither a click beside the nodes nor one with Ctrl takes it away.
QItemSelectionModel::SelectionFlags TreeView::selectionCommand(const QModelIndex &index, const QEvent *event) const
{
    if (!index.isValid())
        return QItemSelectionModel::NoUpdate;
    const auto command = QTreeWidget::selectionCommand(index, event);
    return command & QItemSelectionModel::Toggle ? QItemSelectionModel::ClearAndSelect : command;
}

void TreeView::keyPressEvent(QKeyEvent *event)
{
    const QTreeWidgetItem *before = SelectedItem().get();
    QTreeWidget::keyPressEvent(event);
    const QTreeWidgetItem *after = SelectedItem().get();
    const bool confirmed = keyCode(*event) == vbKeyReturn || event->key() == Qt::Key_Space;
    if (after && (after != before || confirmed))
        Q_EMIT Click();
}

// The first focus selects the first node, so that the keyboard has a place to start from.
void TreeView::focusInEvent(QFocusEvent *event)
{
    QTreeWidget::focusInEvent(event);
    const bool byKeyboard = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    if (byKeyboard && selectedItems().isEmpty() && topLevelItemCount() > 0)
        setCurrentItem(topLevelItem(0));
}

} // namespace desktop
