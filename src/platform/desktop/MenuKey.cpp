#include "platform/desktop/MenuKey.h"

#include <QKeyEvent>
#include <QTreeWidget>

namespace desktop {

bool isShiftF10(const QKeyEvent &event)
{
    return event.key() == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier;
}

QPoint menuPlace(const QTreeWidget &view, const QTreeWidgetItem *item)
{
    const QRect inView = view.viewport()->rect();
    const QPoint below = item ? view.visualItemRect(item).bottomLeft() : inView.topLeft();
    return view.viewport()->mapToGlobal(
        QPoint(qBound(inView.left(), below.x(), inView.right()), qBound(inView.top(), below.y(), inView.bottom())));
}

} // namespace desktop
