#include "platform/desktop/ListView.h"

#include "platform/desktop/Keys.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>

#include <utility>

namespace desktop {

namespace {

bool isText(int role)
{
    return role == Qt::DisplayRole || role == Qt::EditRole;
}

} // namespace

void ListItem::setSubItem(int index, QString text)
{
    if (index >= m_texts.size())
        m_texts.resize(index + 1);
    m_texts[index] = std::move(text);
    emitDataChanged();
}

QVariant ListItem::data(int column, int role) const
{
    if (!isText(role))
        return QTreeWidgetItem::data(column, role);
    return column < m_texts.size() && !m_texts[column].isNull() ? QVariant(m_texts[column]) : QVariant();
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

ListView::ListView(QWidget *parent, QAnyStringView name) : ControlOf(parent, name), ListItems(this), ColumnHeaders(this)
{
    setColumnCount(0);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setAlternatingRowColors(true);
    header()->setSectionsClickable(true);
    header()->setSectionsMovable(false);
    header()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    connect(header(), &QHeaderView::sectionClicked, this, [this](int section) { Q_EMIT ColumnClick(section + 1); });
}

ObjectRef<ListItem> ListView::SelectedItem() const
{
    return static_cast<ListItem *>(currentItem());
}

void ListView::keyPressEvent(QKeyEvent *event)
{
    m_pressedKey = event->key();
    QTreeWidget::keyPressEvent(event);
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

void ListView::mouseDoubleClickEvent(QMouseEvent *event)
{
    QTreeWidget::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton)
        Q_EMIT DblClick();
}

ListItem &ListFilling::Add()
{
    auto *item = new ListItem();
    item->m_texts.reserve(m_list.columnCount());
    m_items.append(item);
    return *item;
}

ListFilling::~ListFilling()
{
    m_list.addTopLevelItems(m_items);
}

} // namespace desktop
