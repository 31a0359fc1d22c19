#include "parts/ListedColumns.h"

#include "platform/runtime/Conversion.h"
#include "platform/runtime/RuntimeError.h"

#include <QHeaderView>

#include <algorithm>

using desktop::ListFilling;
using desktop::ListItem;
using desktop::ListView;
using runtime::Value;

namespace {

Value cellOf(const ListedColumn &column, data::Recordset &row)
{
    return column.cell ? column.cell(row) : row[column.column].Value();
}

} // namespace

void setUpHeaders(ListView &list, std::span<const ListedColumn> columns)
{
    list.ColumnHeaders.Clear();
    addHeaders(list, columns);
}

void addHeaders(ListView &list, std::span<const ListedColumn> columns)
{
    const int first = list.ColumnHeaders.Count();
    for (const ListedColumn &column : columns)
        list.ColumnHeaders.Add(column.header.toString(), column.tag.toString());
    QHeaderView &header = *list.header();
    for (size_t at = 0; at < columns.size(); ++at) {
        const int section = first + int(at);
        if (columns[at].width > 0)
            list.ColumnHeaders.setWidth(section + 1, columns[at].width);
        else
            header.resizeSection(section, qMax(header.defaultSectionSize(), header.sectionSizeHint(section)));
    }
}

void fillList(ListView &list, data::Recordset &rows, QStringView key, std::span<const ListedColumn> columns,
              Keyed keyed)
{
    list.ListItems.Clear();
    ListFilling filling(list);
    for (; !rows.Eof(); rows.MoveNext()) {
        ListItem &item = filling.Add();
        bool hasFirstCell = false;
        for (size_t at = 0; at < columns.size(); ++at) {
            Value value = cellOf(columns[at], rows);
            if (value.isNull())
                continue;
            hasFirstCell |= at == 0;
            item.setSubItem(int(at), std::move(value));
        }
        if (!key.isEmpty() && (keyed == Keyed::EveryLine || hasFirstCell))
            item.Tag = runtime::joinedText(rows[key].Value());
    }
}

QString textOf(const ListItem &line, std::span<const ListedColumn> columns, QStringView column)
{
    const auto found = std::ranges::find(columns, column, &ListedColumn::column);
    if (found == columns.end())
        throw runtime::RuntimeError(runtime::IndexOutOfBounds);
    return line.SubItems(int(found - columns.begin()));
}
