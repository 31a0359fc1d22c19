// Drags data into a widget and drops it there.
#pragma once

#include <QCoreApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QWidget>

// What the drop does at the end; Qt::IgnoreAction when the widget takes none. Qt hands a drop to the widget that a drag
// has entered before, and to no other.
inline Qt::DropAction dropOn(QWidget &target, const QMimeData &data, QPoint at = {5, 5})
{
    QDragEnterEvent enter(at, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    if (!QCoreApplication::sendEvent(&target, &enter) || !enter.isAccepted())
        return Qt::IgnoreAction;
    QDropEvent drop(at, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&target, &drop);
    return drop.isAccepted() ? drop.dropAction() : Qt::IgnoreAction;
}
