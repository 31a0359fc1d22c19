// The menu key in a list or tree, and Shift with F10, which stands for it on a keyboard without one.
#pragma once

#include <QPoint>

class QKeyEvent;
class QTreeWidget;
class QTreeWidgetItem;

namespace desktop {

bool isShiftF10(const QKeyEvent &event);

// Where the menu opens, on the screen: below the item, as far as that is in view, and at the top where there is none.
QPoint menuPlace(const QTreeWidget &view, const QTreeWidgetItem *item);

} // namespace desktop
