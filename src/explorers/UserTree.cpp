#include "explorers/UserTree.h"

#include "platform/runtime/Conversion.h"
#include "shell/CLsDataBaseConnection.h"

using namespace Qt::Literals::StringLiterals;

using desktop::Node;
using runtime::joinedText;

namespace {

Node &addUser(ExplorerPanes &panes, Node &parent, data::Recordset &users, int number)
{
    const QString lastName = joinedText(users[u"UserLastName"].Value());
    const QString text = lastName + u", "_s + joinedText(users[u"UserFirstName"].Value()) + u" "_s +
                         joinedText(users[u"UserMiddleName"].Value());
    Node &node = panes.TreClassView->Nodes.Add(&parent, lastName + QString::number(number), text);
    node.Tag = runtime::toText(users[u"SecurityId"].Value());
    node.setImages(*panes.ImageList1, u"ClosedFolder"_s, u"OpenFolder"_s, u"ClosedFolder"_s);
    return node;
}

} // namespace

desktop::ObjectRef<Node> loadUserTree(ExplorerPanes &panes)
{
    CLsDataBaseConnection outer;
    CLsDataBaseConnection inner;
    Node *current = nullptr;
    data::Recordset groups = outer.CreateRecordset(u"select * from NodeInformation Where NodeActive = 1"_s);
    for (; !groups.Eof(); groups.MoveNext()) {
        const QString name = runtime::toText(groups[u"NodeName"].Value());
        current = &panes.TreClassView->Nodes.Add(nullptr, u"ClientManager"_s + name, name);
        current->setImages(*panes.ImageList1, u"ClosedFolder"_s, {}, u"ClosedFolder"_s);
        data::Recordset users =
            inner.CreateRecordset(u"select * from [Security] Where UserLastName like '"_s + name + u"%'"_s);
        for (int number = 0; !users.Eof(); users.MoveNext(), ++number)
            current = &addUser(panes, *current, users, number); // each further user nests under the one before it
        users.Close();
        inner.DbClose();
    }
    groups.Close();
    return current;
}
