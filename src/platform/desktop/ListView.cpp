#include "platform/desktop/ListView.h"

#include "platform/desktop/ColumnHeads.h"
#include "platform/desktop/ItemDelegate.h"
#include "platform/desktop/Keys.h"
#include "platform/desktop/MenuKey.h"
#include "platform/desktop/PlainText.h"
#include "platform/desktop/Twips.h"
#include "platform/runtime/Conversion.h"

#include <QContextMenuEvent>
#include <QDropEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMetaMethod>
#include <QMimeData>
#include <QMouseEvent>
#include <QUrl>

#include <algorithm>
#include <utility>

namespace desktop {

namespace {

bool isText(int role)
{
    return role == Qt::DisplayRole || role == Qt::EditRole;
}

// A line of the list is one line high whatever its texts hold.
QString onOneLine(QString text)
{
    return text.remove(u'\r').replace(u'\n', u' ');
}

} // namespace

QString ListItem::SubItems(int index) const
{
    return size_t(index) < m_values.size() ? runtime::joinedText(m_values[size_t(index)]) : QString();
}

void ListItem::setSubItem(int index, runtime::Value value)
{
    if (value.isNull() || value.is<QByteArray>())
        runtime::toText(value); // raises its error now and not when the line is painted
    if (size_t(index) >= m_values.size())
        m_values.resize(size_t(index) + 1);
    m_values[size_t(index)] = std::move(value);
    emitDataChanged();
}

QVariant ListItem::data(int column, int role) const
{
    if (!isText(role))
        return QTreeWidgetItem::data(column, role);
    QString text = SubItems(column);
    if (text.isNull())
        return {};
    if (role == Qt::DisplayRole)
        text.truncate(mostShown);
    return role == Qt::DisplayRole && text.contains(u'\n') ? onOneLine(text) : text;
}

void ListItem::setData(int column, int role, const QVariant &value)
{
    if (isText(role))
        setSubItem(column, value.toString());
    else
        QTreeWidgetItem::setData(column, role, value);
}

ListItem &ListItems::Add(const QString &text)
{
    auto *item = new ListItem();
    item->setText(text);
    m_list->addTopLevelItem(item);
    return *item;
}

void ListItems::Clear()
{
    m_list->clear();
}

int ListItems::Count() const
{
    return m_list->topLevelItemCount();
}

ListItem &ListItems::operator()(int index) const
{
    auto *item = static_cast<ListItem *>(m_list->topLevelItem(index - 1));
    if (!item)
        throw runtime::RuntimeError(runtime::IndexOutOfBounds);
    return *item;
}

void ColumnHeaders::Add(const QString &text, const QString &tag)
{
    m_headers.push_back({text, tag});
    QStringList labels;
    for (const ColumnHeader &header : m_headers)
        labels << header.Text;
    m_list->setColumnCount(Count());
    m_list->setHeaderLabels(labels);
    m_list->headerItem()->setToolTip(Count() - 1, text); // a section may be narrower than its text
}

void ColumnHeaders::setWidth(int index, double width)
{
    (*this)(index); // refuses an index outside
    m_list->header()->resizeSection(index - 1, pixels(width));
}

void ColumnHeaders::Clear()
{
    m_headers.clear();
    m_list->setColumnCount(0);
}

const ColumnHeader &ColumnHeaders::operator()(int index) const
{
    if (index < 1 || index > Count())
        throw runtime::RuntimeError(runtime::IndexOutOfBounds);
    return m_headers[size_t(index - 1)];
}

DataObject::DataObject(const QMimeData &data)
{
    QStringList files;
    for (const QUrl &url : data.urls()) {
        if (url.isLocalFile())
            files << url.toLocalFile();
    }
    if (!files.isEmpty())
        m_files = files;
}

const QStringList &DataObject::Files() const
{
    if (!m_files)
        throw runtime::RuntimeError(runtime::WrongDataFormat);
    return *m_files;
}

ListView::ListView(QWidget *parent, QAnyStringView name)
    : LineView(parent, name), ListItems(this), ColumnHeaders(this), m_heads(new ColumnHeads(*this))
{
    setHeader(m_heads);
    setItemDelegate(new ItemDelegate(this));
    setColumnCount(0);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setAlternatingRowColors(true);
    header()->setSectionsClickable(true);
    header()->setSectionsMovable(false);
    header()->setTextElideMode(Qt::ElideRight);
    header()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    connect(header(), &QHeaderView::sectionClicked, this, [this](int section) { Q_EMIT ColumnClick(section + 1); });
}

ObjectRef<ListItem> ListView::SelectedItem() const
{
    if (QTreeWidgetItem *current = currentItem(); current && current->isSelected())
        return static_cast<ListItem *>(current);
    const QModelIndexList lines = selectionModel()->selectedRows(); // in no order
    const auto topmost = std::ranges::min_element(lines, {}, &QModelIndex::row);
    return topmost == lines.end() ? nullptr : static_cast<ListItem *>(itemFromIndex(*topmost));
}

bool ListView::viewportEvent(QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto &help = *static_cast<QHelpEvent *>(event);
        const QModelIndex cell = indexAt(help.pos());
        if (cell.isValid() && sizeHintForIndex(cell).width() > visualRect(cell).width()) {
            showPlainToolTip(cell.data().toString(), help, viewport());
            return true;
        }
    }
    return LineView::viewportEvent(event);
}

void ListView::keyPressEvent(QKeyEvent *event)
{
    m_pressedKey = event->key();
    const bool toTheHeads = event->key() == Qt::Key_Up && event->modifiers() == Qt::AltModifier &&
                            isSignalConnected(QMetaMethod::fromSignal(&ListView::ColumnClick));
    if (isShiftF10(*event))
        openMenuByKey();
    else if (toTheHeads)
        m_heads->enter();
    else
        LineView::keyPressEvent(event);
}

// The Enter that answers a message box is pressed there and released here: it is not meant for the list.
void ListView::keyReleaseEvent(QKeyEvent *event)
{
    QTreeWidget::keyReleaseEvent(event);
    if (event->isAutoRepeat() || event->key() != m_pressedKey)
        return;
    m_pressedKey = 0;
    Q_EMIT KeyUp(keyCode(*event));
}

// Whoever comes by the keyboard finds a line selected.
void ListView::focusInEvent(QFocusEvent *event)
{
    QTreeWidget::focusInEvent(event);
    if (isByKeyboard(*event))
        selectALine();
}

void ListView::selectALine()
{
    if (!isAnyHighlighted())
        highlightCurrent();
}

void ListView::mouseDoubleClickEvent(QMouseEvent *event)
{
    QTreeWidget::mouseDoubleClickEvent(event);
    if (event->button() != Qt::LeftButton)
        return;
    QTreeWidgetItem *line = itemAt(event->position().toPoint());
    if (line && !line->isSelected()) // with Ctrl the first of the two clicks has taken the selection away
        setCurrentItem(line);
    if (line || ListItems.Count() == 0)
        Q_EMIT DblClick();
}

QItemSelectionModel::SelectionFlags ListView::selectionCommand(const QModelIndex &index, const QEvent *event) const
{
    const auto *click = dynamic_cast<const QMouseEvent *>(event);
    const bool isForMenu = click && click->button() == Qt::RightButton;
    return isForMenu && !index.isValid() ? QItemSelectionModel::NoUpdate : LineView::selectionCommand(index, event);
}

void ListView::mouseReleaseEvent(QMouseEvent *event)
{
    QTreeWidget::mouseReleaseEvent(event);
    Q_EMIT MouseUp(changedButton(*event), event->globalPosition().toPoint());
}

void ListView::contextMenuEvent(QContextMenuEvent *event)
{
    event->accept(); // by the mouse it is the release of the button that counts
    if (event->reason() == QContextMenuEvent::Keyboard)
        openMenuByKey();
}

// A right click selects the line that it meets, and so does the key.
void ListView::openMenuByKey()
{
    selectALine();
    Q_EMIT MouseUp(vbRightButton, menuPlace(*this, SelectedItem().get()));
}

void ListView::setTakesDrops()
{
    m_takesDrops = true;
    setAcceptDrops(true);
    viewport()->setAcceptDrops(true);
}

bool ListView::takes(QDropEvent &drag) const
{
    if (m_takesDrops) {
        drag.setDropAction(Qt::CopyAction);
        drag.accept();
    }
    return m_takesDrops;
}

void ListView::dragEnterEvent(QDragEnterEvent *event)
{
    takes(*event);
}

void ListView::dragMoveEvent(QDragMoveEvent *event)
{
    takes(*event);
}

void ListView::dropEvent(QDropEvent *event)
{
    if (!takes(*event))
        return;
    QMetaObject::invokeMethod(
        this, [this, data = DataObject(*event->mimeData())] { Q_EMIT OLEDragDrop(data); }, Qt::QueuedConnection);
}

ListItem &ListFilling::Add()
{
    auto *item = new ListItem();
    item->m_values.reserve(size_t(m_list.columnCount()));
    m_items.append(item);
    return *item;
}

ListFilling::~ListFilling()
{
    m_list.addTopLevelItems(m_items);
}

} // namespace desktop
