// Rows on their way into the controls: a column that is Null leaves its place as it was.
#pragma once

#include "platform/data/Recordset.h"
#include "platform/desktop/ListView.h"
#include "platform/runtime/Conversion.h"

#include <utility>

// Gives the control (a text box or a list) the field's text.
template <class Control> void putText(Control &control, const data::Field &field)
{
    if (runtime::Value value = field.Value(); !value.isNull())
        control.setText(runtime::toText(std::move(value)));
}

// Sub-item 0 is the item's own text.
inline void putSubItem(desktop::ListItem &item, int index, const data::Field &field)
{
    if (runtime::Value value = field.Value(); !value.isNull())
        item.setSubItem(index, std::move(value));
}

// An item for each row, from the current one to the last; all appear together.
template <class FillItem> void addItems(desktop::ListView &list, data::Recordset &rows, FillItem fillItem)
{
    desktop::ListFilling filling(list);
    for (; !rows.Eof(); rows.MoveNext())
        fillItem(filling.Add(), rows);
}
