// A list in report view: a header for each column, items with sub-items, one or several selected.
#pragma once

#include "platform/desktop/Control.h"
#include "platform/desktop/ObjectRef.h"

#include <QTreeWidget>

#include <vector>

namespace desktop {

class ListView;

// One line; owned by its list. Sub-items count from 1, as the columns behind the first do.
//
// It keeps its texts itself, one behind another: Qt's own item makes a list and a variant of each, and long lists have
// tens of thousands.
class ListItem : public QTreeWidgetItem
{
public:
    QString Tag;

    QString Text() const { return SubItems(0); }
    void setText(const QString &text) { setSubItem(0, text); }
    QString SubItems(int index) const { return m_texts.value(index); }
    void setSubItem(int index, QString text);

    QVariant data(int column, int role) const override;
    void setData(int column, int role, const QVariant &value) override;

private:
    friend class ListFilling;
    QStringList m_texts; // by column, as far as there are any
};

// The lines, from 1.
class ListItems
{
public:
    explicit ListItems(ListView *list) : m_list(list) {}

    ListItem &Add(const QString &text = {});
    void Clear();
    int Count() const;
    // Error 35600 outside 1 to Count.
    ListItem &operator()(int index) const;

private:
    ListView *m_list;
};

struct ColumnHeader
{
    QString Text;
    QString Tag;
};

class ColumnHeaders
{
public:
    explicit ColumnHeaders(ListView *list) : m_list(list) {}

    void Add(const QString &text, const QString &tag = {});
    void Clear();
    int Count() const { return int(m_headers.size()); }
    // Error 35600 outside 1 to Count.
    const ColumnHeader &operator()(int index) const;

private:
    ListView *m_list;
    std::vector<ColumnHeader> m_headers;
};

class ListView : public ControlOf<QTreeWidget>
{
    Q_OBJECT
public:
    ListView(QWidget *parent, QAnyStringView name);

    desktop::ListItems ListItems;
    desktop::ColumnHeaders ColumnHeaders;
    // The focused line; unset in an empty list.
    ObjectRef<ListItem> SelectedItem() const;

Q_SIGNALS:
    // The header's place, from 1.
    void ColumnClick(int index);
    void DblClick();
    // The release of a key whose press came to this list too.
    void KeyUp(int keyCode);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    int m_pressedKey = 0;
};

// Adds lines that appear together when it ends, which is a great deal faster than one by one.
class ListFilling
{
public:
    explicit ListFilling(ListView &list) : m_list(list) {}
    ListFilling(const ListFilling &) = delete;
    ListFilling &operator=(const ListFilling &) = delete;
    ~ListFilling();

    ListItem &Add();

private:
    ListView &m_list;
    QList<QTreeWidgetItem *> m_items;
};

} // namespace desktop
