#include "platform/desktop/TreeView.h"

#include "platform/desktop/ItemDelegate.h"
#include "platform/desktop/Keys.h"
#include "platform/desktop/MenuKey.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPalette>

#include <limits>
#include <utility>

namespace desktop {

namespace {

bool standsUnder(const QTreeWidgetItem *node, const QTreeWidgetItem *ancestor)
{
    while (node && node != ancestor)
        node = node->parent();
    return node;
}

} // namespace

// Emits the tree's signal when an edit begins and passes on the keys that the editor gets.
class TreeView::LabelDelegate : public ItemDelegate
{
public:
    explicit LabelDelegate(TreeView *tree) : ItemDelegate(tree), m_tree(tree) {}

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        m_tree->m_edited = static_cast<Node *>(m_tree->itemFromIndex(index));
        Q_EMIT m_tree->BeforeLabelEdit();
        QWidget *editor = ItemDelegate::createEditor(parent, option, index);
        editor->setObjectName(m_tree->objectName() + QLatin1String(".LabelEdit"));
        editor->setAccessibleName(m_tree->m_edited->Text());
        if (auto *line = qobject_cast<QLineEdit *>(editor))
            line->setMaxLength(std::numeric_limits<int>::max()); // as in a text box
        return editor;
    }

protected:
    bool eventFilter(QObject *editor, QEvent *event) override
    {
        if (event->type() == QEvent::KeyPress)
            m_tree->m_pressedKey = static_cast<QKeyEvent *>(event)->key();
        return ItemDelegate::eventFilter(editor, event);
    }

private:
    TreeView *m_tree;
};

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
    node->setFlags(node->flags() | Qt::ItemIsEditable);
    node->Key = key;
    node->setText(text);
    if (parent)
        parent->addChild(node);
    else
        m_tree->addTopLevelItem(node);
    m_nodes.push_back(node);
    node->m_index = Count();
    if (!key.isEmpty())
        m_byKey.insert(key, node);
    return *node;
}

void Nodes::Remove(int index)
{
    Node *removed = &(*this)(index);
    if (standsUnder(m_tree->SelectedItem().get(),
                    removed)) // made current first, so that Qt selects its neighbour when it goes
        m_tree->setCurrentItem(removed);
    std::erase_if(m_nodes, [this, removed](const Node *node) {
        const bool goes = standsUnder(node, removed);
        if (goes)
            m_byKey.remove(node->Key);
        return goes;
    });
    for (int place = 1; place <= Count(); ++place)
        m_nodes[size_t(place - 1)]->m_index = place;
    delete removed;
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

TreeView::TreeView(QWidget *parent, QAnyStringView name) : LineView(parent, name), Nodes(this)
{
    setColumnCount(1);
    header()->hide();
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    setUniformRowHeights(true);
    setItemDelegate(new LabelDelegate(this));
    setLabelEdit(tvwManual);
    for (const auto change : {&TreeView::expanded, &TreeView::collapsed})
        connect(this, change, this, [this] { m_widthOfLabels = -1; });
}

ObjectRef<Node> TreeView::SelectedItem() const
{
    const QList<QTreeWidgetItem *> selected = selectedItems();
    return selected.isEmpty() ? nullptr : static_cast<Node *>(selected.constFirst());
}

void TreeView::setLabelEdit(LabelEditConstants begin)
{
    setEditTriggers(begin == tvwAutomatic ? SelectedClicked : NoEditTriggers);
}

void TreeView::StartLabelEdit()
{
    if (const auto node = SelectedItem(); node && state() != EditingState)
        editItem(node.get());
}

void TreeView::commitData(QWidget *editor)
{
    m_newLabel = qobject_cast<QLineEdit *>(editor)->text();
}

// The hint is ignored: Tab does not open the editor of the next label.
void TreeView::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint)
{
    QTreeWidget::closeEditor(editor, QAbstractItemDelegate::NoHint);
    const std::optional<QString> newLabel = std::exchange(m_newLabel, std::nullopt);
    if (!newLabel)
        return;
    bool cancel = false;
    Q_EMIT AfterLabelEdit(cancel, *newLabel);
    if (!cancel)
        m_edited->setText(*newLabel);
}

void TreeView::mousePressEvent(QMouseEvent *event)
{
    Q_EMIT MouseDown(changedButton(*event), event->globalPosition().toPoint());
    if (event->button() != Qt::RightButton)
        QTreeWidget::mousePressEvent(event);
}

void TreeView::contextMenuEvent(QContextMenuEvent *event)
{
    event->accept(); // by the mouse it is the press of the button that counts
    if (event->reason() == QContextMenuEvent::Keyboard)
        openMenuByKey();
}

void TreeView::openMenuByKey()
{
    Q_EMIT MouseDown(vbRightButton, menuPlace(*this, SelectedItem().get()));
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
    m_pressedKey = event->key();
    if (isShiftF10(*event))
        return openMenuByKey();
    const QTreeWidgetItem *before = SelectedItem().get();
    LineView::keyPressEvent(event);
    const QTreeWidgetItem *after = SelectedItem().get();
    const bool confirmed = keyCode(*event) == vbKeyReturn || event->key() == Qt::Key_Space;
    if (after && (after != before || confirmed))
        Q_EMIT Click();
}

// A key that answers a message box is pressed there and released here: it is not meant for the tree.
void TreeView::keyReleaseEvent(QKeyEvent *event)
{
    QTreeWidget::keyReleaseEvent(event);
    if (event->isAutoRepeat() || event->key() != m_pressedKey)
        return;
    m_pressedKey = 0;
    Q_EMIT KeyUp(keyCode(*event));
}

// The column is as wide as the longest label, so that this can be scrolled into view, and as wide as the tree at least,
// so that a click meets a node anywhere in its row.
void TreeView::resizeEvent(QResizeEvent *event)
{
    m_widthOfLabels = -1;
    QTreeWidget::resizeEvent(event);
    header()->setMinimumSectionSize(viewport()->width());
}

// Qt asks for the width again at each step of showing a tree, and each time measures up to a thousand labels.
int TreeView::sizeHintForColumn(int column) const
{
    if (m_widthOfLabels < 0)
        m_widthOfLabels = QTreeWidget::sizeHintForColumn(column);
    return m_widthOfLabels;
}

void TreeView::doItemsLayout()
{
    m_widthOfLabels = -1;
    QTreeWidget::doItemsLayout();
}

void TreeView::dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight, const QList<int> &roles)
{
    m_widthOfLabels = -1;
    QTreeWidget::dataChanged(topLeft, bottomRight, roles);
}

// Of a long tree only the labels in view are measured, and now there are others.
void TreeView::scrollContentsBy(int dx, int dy)
{
    m_widthOfLabels = -1;
    QTreeWidget::scrollContentsBy(dx, dy);
}

// Whoever comes by the keyboard finds a node selected to start from.
void TreeView::focusInEvent(QFocusEvent *event)
{
    QTreeWidget::focusInEvent(event);
    if (isByKeyboard(*event) && !isAnyHighlighted())
        highlightCurrent();
}

} // namespace desktop
