#include "platform/desktop/ListedColumns.h"

#include "platform/runtime/Conversion.h"

#include <QHeaderView>

namespace desktop {

void setUpHeaders(ListView &list, std::span<const ListedColumn> columns)
{
    list.ColumnHeaders.Clear();
    for (const ListedColumn &column : columns)
        list.ColumnHeaders.Add(column.header.toString(), column.tag.toString());
    QHeaderView &header = *list.header();
    for (int section = 0; section < header.count(); ++section) // no header is cut off
        header.resizeSection(section, qMax(header.defaultSectionSize(), header.sectionSizeHint(section)));
}

void fillList(ListView &list, data::Recordset &rows, QStringView key, std::span<const ListedColumn> columns)
{
    list.ListItems.Clear();
    ListFilling filling(list);
    for (; !rows.Eof(); rows.MoveNext()) {
        ListItem &item = filling.Add();
        item.Tag = runtime::joinedText(rows[key].Value());
        for (size_t at = 0; at < columns.size(); ++at) {
            runtime::Value value = rows[columns[at].column].Value();
            if (!value.isNull())
                item.setSubItem(int(at), runtime::toText(std::move(value)));
        }
    }
}

} // namespace desktop
