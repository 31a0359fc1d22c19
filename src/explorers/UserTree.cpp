#include "explorers/UserTree.h"

#include "parts/ListedColumns.h"
#include "platform/runtime/Conversion.h"
#include "shell/store/CLsDataBaseConnection.h"
#include "shell/users/frmNewUser.h"

#include <array>

using namespace Qt::Literals::StringLiterals;

using desktop::Node;
using runtime::joinedText;

namespace {

constexpr std::array userColumns{
    ListedColumn{.header = u"First Name", .tag = u"UserFirstName", .column = u"UserFirstName"},
    ListedColumn{.header = u"Middle Name", .tag = u"UserMiddleName", .column = u"UserMiddleName"},
    ListedColumn{.header = u"Last Name", .tag = u"UserLastName", .column = u"UserLastName"},
    ListedColumn{.header = u"User Name", .tag = u"UserName", .column = u"UserName"},
    ListedColumn{.header = u"User Level", .tag = u"UserLevel", .column = u"UserLevel"},
};

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

void loadUserTree(ExplorerPanes &panes, desktop::ObjectRef<Node> &current)
{
    CLsDataBaseConnection outer;
    CLsDataBaseConnection inner;
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
}

void loadUserList(ExplorerPanes &panes)
{
    const auto node = panes.TreClassView->SelectedItem();
    if (!node->Tag.isEmpty()) {
        desktop::showNew<frmNewUser>([&node](frmNewUser &window) { window.SecurityId = node->Tag; });
        return;
    }
    desktop::ListView &list = *panes.LstStudenInformation;
    setUpHeaders(list, userColumns);
    CLsDataBaseConnection store;
    data::Recordset users =
        store.CreateRecordset(u"select * from [Security] Where UserLastName like '"_s + node->Text() + u"%'"_s);
    fillList(list, users, u"SecurityId", userColumns);
    users.Close();
    store.DbClose();
}
