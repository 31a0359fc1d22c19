#include "library/LibraryTree.h"

#include "platform/desktop/LongWork.h"
#include "platform/desktop/MsgBox.h"
#include "platform/runtime/Conversion.h"
#include "shell/store/CLsDataBaseConnection.h"

using namespace Qt::Literals::StringLiterals;

using desktop::Node;
using runtime::Value;

namespace {

const auto rootName = u"Main Library"_s;

qint32 documentsUnder(const Value &objectIndex)
{
    CLsDataBaseConnection store;
    data::Recordset documents =
        store.CreateRecordset(u"SELECT * FROM Resources WHERE ObjectIndex = "_s + runtime::joinedText(objectIndex));
    const qint32 count = documents.RecordCount();
    documents.Close();
    store.DbClose();
    return count;
}

QString labelWithCount(data::Recordset &object)
{
    const Value text = object[u"ObjectText"].Value();
    const qint32 count = documentsUnder(object[u"ObjectIndex"].Value());
    if (count == 0)
        return runtime::toText(text);
    return runtime::joinedText(text) + u"     ("_s + QString::number(count) + u')';
}

bool confirmed(const QString &question)
{
    return desktop::MsgBox(question + u"\nDo you wish to continue"_s, desktop::vbYesNoCancel) == desktop::vbYes;
}

} // namespace

void LibraryTree::load(Labels labels)
{
    addRoot();
    CLsDataBaseConnection store;
    data::Recordset objects =
        store.CreateRecordset(u"SELECT ObjectTbl.* From ObjectTbl Where (((ObjectTbl.ObjectType) <> \"Root\")) "
                              "ORDER BY ObjectTbl.ObjectIndex, ObjectTbl.ObjectParentIndex;"_s);
    for (; !objects.Eof(); objects.MoveNext()) {
        const QString label =
            labels == Labels::WithCounts ? labelWithCount(objects) : runtime::toText(objects[u"ObjectText"].Value());
        AddLoadedNode(runtime::toText(objects[u"ObjectType"].Value()),
                      runtime::toLong(objects[u"ObjectParentIndex"].Value()), label);
    }
    objects.Close();
}

void LibraryTree::save() const
{
    CLsDataBaseConnection store;
    data::Recordset objects = store.CreateRecordset(u"select * from ObjectTbl"_s);
    desktop::LongWork work(u"Saving"_s, m_tree.Nodes.Count());
    for (int index = 1; index <= m_tree.Nodes.Count(); ++index) {
        work.at(index);
        const Node &node = m_tree.Nodes(index);
        const bool root = isRoot(node);
        objects.AddNew();
        objects[u"ObjectText"].setValue(node.Text());
        objects[u"ObjectIndex"].setValue(Value(qint32(node.Index())));
        objects[u"ObjectType"].setValue(root ? u"Root"_s : node.Tag);
        objects[u"ObjectParentIndex"].setValue(Value(qint32(root ? 0 : node.Parent()->Index())));
        objects.UpdateBatch();
    }
    objects.Close();
}

// The root is selected before the other nodes come: selecting one measures the whole tree, which takes no time while
// the root is alone.
void LibraryTree::addRoot()
{
    Node &root = m_tree.Nodes.Add(nullptr, rootName, rootName);
    setImages(root);
    root.setExpanded(true);
    m_tree.setCurrentItem(&root);
}

void LibraryTree::AddLoadedNode(const QString &type, int parentIndex, const QString &label)
{
    addNode(m_tree.Nodes(parentIndex), type, type + u' ' + QString::number(m_tree.Nodes.Count()), label);
}

void LibraryTree::AddNewNode(const QString &type)
{
    const QString name = type + u' ' + QString::number(m_tree.Nodes.Count());
    addNode(*m_tree.SelectedItem(), type, name, name);
}

void LibraryTree::addNode(Node &parent, const QString &type, const QString &key, const QString &label)
{
    Node &node = m_tree.Nodes.Add(&parent, key, label);
    setImages(node);
    node.Tag = type;
    node.setExpanded(true);
    m_tree.Refresh();
}

void LibraryTree::setImages(Node &node) const
{
    node.setImages(m_images, u"ClosedFolder"_s, u"OpenFolder"_s, u"OpenFolder"_s);
}

void LibraryTree::DeleteNode()
{
    const Node &node = *m_tree.SelectedItem();
    if (!confirmed(u"You are about to delete the "_s + node.Tag + u' ' + node.Text()))
        return;
    if (node.Children() > 0 &&
        !confirmed(u"Warning deleting this "_s + node.Tag + u" will delete all object listed under it"_s))
        return;
    m_tree.Nodes.Remove(node.Index());
}

bool LibraryTree::isRoot(const Node &node) const
{
    return node.Text() == m_tree.Nodes(1).Text();
}
