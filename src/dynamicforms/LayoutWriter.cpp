#include "dynamicforms/LayoutWriter.h"

#include "shell/store/DataStore.h"

using namespace Qt::Literals::StringLiterals;

namespace {

void deleteAll(data::Recordset &rows)
{
    for (; !rows.Eof(); rows.MoveNext())
        rows.Delete();
}

} // namespace

LayoutWriter::LayoutWriter(int pages) : m_work(u"Saving page"_s, pages)
{
    openDataStore(m_connection);
    data::Recordset fields = openRows(m_connection, u"select * from FieldInfo Where FieldEdit = 1"_s);
    deleteAll(fields);
    fields.Close();
    m_pages = openRows(m_connection, u"select * from TabInfo Where TabEdit = 1"_s);
    deleteAll(m_pages);
}

void LayoutWriter::addPage(const QString &caption, const QString &description)
{
    m_work.at(++m_page);
    m_pages.AddNew();
    m_pages[u"TabNam"].setValue(caption);
    m_pages[u"TabDescription"].setValue(description);
    m_pages.UpdateBatch();
    data::Recordset stored = openRows(m_connection, u"Select * from TabInfo Where TabNam = '"_s + caption + u'\'');
    m_tabId = stored[u"TabId"].Value();
    m_fields = openRows(m_connection, u"select * from FieldInfo"_s);
}

void LayoutWriter::addField(const LayoutField &field)
{
    m_work.at(m_page);
    m_fields.AddNew();
    m_fields[u"FieldDescription"].setValue(field.description);
    m_fields[u"FieldName"].setValue(field.name);
    m_fields[u"TabId"].setValue(m_tabId);
    if (field.displayOrder)
        m_fields[u"FieldDisplayOrder"].setValue(runtime::Value(*field.displayOrder));
    m_fields[u"fieldLeft"].setValue(field.fieldLeft);
    m_fields[u"fieldTop"].setValue(field.fieldTop);
    m_fields[u"labelLeft"].setValue(field.labelLeft);
    m_fields[u"labelTop"].setValue(field.labelTop);
    m_fields[u"fieldWidth"].setValue(field.fieldWidth);
    m_fields.UpdateBatch();
}
