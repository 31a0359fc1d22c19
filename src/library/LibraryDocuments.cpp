#include "library/LibraryDocuments.h"

#include "library/StoredFile.h"
#include "parts/ListedColumns.h"
#include "platform/runtime/Conversion.h"
#include "shell/store/CLsDataBaseConnection.h"

#include <array>

using namespace Qt::Literals::StringLiterals;

using runtime::Value;

namespace {

constexpr std::array documentColumns{
    ListedColumn{.header = u"Document ID", .column = u"DocumentId"},
    ListedColumn{.header = u"Document Date", .column = u"DocumentDate", .width = 2700},
    ListedColumn{.header = u"Document Name", .column = u"DocumentName", .width = 3600},
    ListedColumn{.header = u"Document Version", .column = u"DocuemntVersion"},
};

// The rows are those of one name in one node, the newest version first. The sum is a double, so that the column refuses
// the number after its largest, instead of a 32-bit sum overflowing.
Value nextVersion(data::Recordset &versions)
{
    if (versions.Eof())
        return Value(qint32(1));
    const Value newest = versions[u"DocuemntVersion"].Value();
    return newest.isNull() ? Value() : Value(runtime::toDouble(newest) + 1);
}

} // namespace

LibraryDocuments::LibraryDocuments(const desktop::TreeView &tree, desktop::ListView &list,
                                   desktop::CommonDialog &dialog)
    : m_tree(tree), m_list(list), CommonDialog1(dialog)
{
    setUpHeaders(list, documentColumns);
}

QString LibraryDocuments::selectedIndex() const
{
    return QString::number(m_tree.SelectedItem()->Index());
}

void LibraryDocuments::ListDocuments()
{
    CLsDataBaseConnection store;
    data::Recordset documents =
        store.CreateRecordset(u"select * from [Resources] Where ObjectIndex = "_s + selectedIndex());
    fillList(m_list, documents, {}, documentColumns);
    documents.Close();
    store.DbClose();
}

void LibraryDocuments::upload()
{
    CLsDataBaseConnection store;
    data::Recordset documents = store.CreateRecordset(u"select * from Resources"_s);
    CommonDialog1.DialogTitle = u"OPEN FILE"_s;
    CommonDialog1.Filter = u"All files (*.*)|*.*|EXE files (*.exe)|*.exe|COM files (*.com)|*.com|"
                           "BIN files (*.bin)|*.bin |SYS files (*.sys)|*.sys|DLL files (*.dll)|*.dll"_s;
    if (!CommonDialog1.ShowOpen())
        throw runtime::RuntimeError(runtime::ObjectRequired); // deliberate: to cancel ends the program
    documents.AddNew();
    CLsDataBaseConnection lookup;
    data::Recordset versions =
        lookup.CreateRecordset(u"select * from Resources where DocumentName = '"_s + CommonDialog1.FileTitle +
                               u"'  and ObjectIndex = "_s + selectedIndex() + u" ORDER BY DocuemntVersion desc"_s);
    const FileToStore file(CommonDialog1.FileName);
    documents[u"ObjectIndex"].setValue(Value(qint32(m_tree.SelectedItem()->Index())));
    documents[u"DocumentName"].setValue(CommonDialog1.FileTitle);
    documents[u"Document"].AppendChunk(file.bytes());
    documents[u"DocuemntVersion"].setValue(nextVersion(versions));
    documents.Update();
    file.close();
    documents.Update(); // deliberate; nothing is pending, so this writes nothing
}

void LibraryDocuments::linkTo(const QString &person) const
{
    CLsDataBaseConnection store;
    data::Recordset links = store.CreateRecordset(u"Select * from ReferenceInfo"_s);
    links.AddNew();
    links[u"DocumentId"].setValue(m_list.SelectedItem()->Text());
    links[u"PersonalInformationId"].setValue(person);
    links.UpdateBatch();
}
