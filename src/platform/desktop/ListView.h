// A list in report view: a header for each column, items with sub-items, one or several selected. Where somebody hears
// of clicks on the headers, Alt with Up goes to them.
#pragma once

#include "platform/desktop/LineView.h"
#include "platform/desktop/ObjectRef.h"
#include "platform/runtime/Value.h"

#include <QStringList>
#include <QTreeWidget>

#include <optional>
#include <utility>
#include <vector>

class QMimeData;

namespace desktop {

class ColumnHeads;
class ListView;

// One line; owned by its list. Sub-items count from 1, as the columns behind the first do.
//
// It keeps its values itself, one behind another: Qt's own item makes a list and a variant of each, and long lists have
// tens of thousands. A value becomes a text when that is shown or asked for, which for most lines is never.
class ListItem : public QTreeWidgetItem
{
public:
    QString Tag;

    QString Text() const { return SubItems(0); }
    void setText(const QString &text) { setSubItem(0, text); }
    QString SubItems(int index) const;
    void setSubItem(int index, QString text) { setSubItem(index, runtime::Value(std::move(text))); }
    // Errors 94 and 13 for what has no text: Null and bytes.
    void setSubItem(int index, runtime::Value value);

    QVariant data(int column, int role) const override;
    void setData(int column, int role, const QVariant &value) override;

private:
    friend class ListFilling;
    std::vector<runtime::Value> m_values; // by column, as far as there are any; Null where none was set
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
    // Twips. Error 35600 outside 1 to Count.
    void setWidth(int index, double width);
    void Clear();
    int Count() const { return int(m_headers.size()); }
    // Error 35600 outside 1 to Count.
    const ColumnHeader &operator()(int index) const;

private:
    ListView *m_list;
    std::vector<ColumnHeader> m_headers;
};

// What was dropped on a list: the files of a file manager, or something else.
class DataObject
{
public:
    explicit DataObject(const QMimeData &data);
    // The paths. Error 461 when what was dropped is no list of files.
    const QStringList &Files() const;

private:
    std::optional<QStringList> m_files;
};

// A cell that is too narrow for its text has it as its tool tip.
class ListView : public LineView<QTreeWidget>
{
    Q_OBJECT
public:
    ListView(QWidget *parent, QAnyStringView name);

    desktop::ListItems ListItems;
    desktop::ColumnHeaders ColumnHeaders;
    // The highlighted line, of several the one that was clicked last or else the topmost; unset where none is.
    ObjectRef<ListItem> SelectedItem() const;
    // Whatever is dropped on the list is reported by OLEDragDrop.
    void setTakesDrops();

Q_SIGNALS:
    // The header's place, from 1.
    void ColumnClick(int index);
    // On a line, which is selected by then. Also in a list without lines; not beside the lines of one that has some.
    void DblClick();
    // The release of a key whose press came to this list too.
    void KeyUp(int keyCode);
    // The release of a mouse button, with the pointer's place on the screen. The menu key and Shift with F10
    // count as the right button over the selected line.
    void MouseUp(int button, QPoint place);
    // Reported once the drop has come to its end: whoever the data came from waits no longer.
    void OLEDragDrop(const DataObject &data);

protected:
    bool viewportEvent(QEvent *event) override;
    // A right click beside the lines leaves the selection: the menu that it opens works on the selected line.
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index, const QEvent *event) const override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void openMenuByKey();
    // Unless one is selected: the one that the focus is on, or else the first.
    void selectALine();
    // Accepts the drag as a copy. False where the list takes no drops.
    bool takes(QDropEvent &drag) const;

    ColumnHeads *m_heads;
    bool m_takesDrops = false;
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
