// What the tests of all lists ask: their lines as texts, and a double click on one.
#pragma once

#include "platform/desktop/ListView.h"

#include <QTest>

// The cells of a line joined by "|", all of them or the first few.
inline QString line(const desktop::ListView &list, int index, int columns = -1)
{
    QStringList cells;
    for (int column = 0; column < (columns < 0 ? list.ColumnHeaders.Count() : columns); ++column)
        cells << list.ListItems(index).SubItems(column);
    return cells.join(QLatin1Char('|'));
}

inline QStringList lines(const desktop::ListView &list, int columns = -1)
{
    QStringList all;
    for (int index = 1; index <= list.ListItems.Count(); ++index)
        all << line(list, index, columns);
    return all;
}

inline void doubleClick(desktop::ListView &list, int index)
{
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(&list.ListItems(index)).center());
}
