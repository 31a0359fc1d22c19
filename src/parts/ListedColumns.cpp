#include "parts/ListedColumns.h"

#include "parts/RowTexts.h"

#include <QHeaderView>

using desktop::ListFilling;
using desktop::ListItem;
using desktop::ListView;

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
        if (!key.isEmpty())
            item.Tag = runtime::joinedText(rows[key].Value());
        for (size_t at = 0; at < columns.size(); ++at)
            putSubItem(item, int(at), rows[columns[at].column]);
    }
}
