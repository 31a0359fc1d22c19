#include "platform/desktop/Toolbar.h"

#include <QLayout>

namespace desktop {

Toolbar::Toolbar(QWidget *parent, QAnyStringView name) : DockedBar(parent, name)
{
    setMovable(false);
    layout()->setContentsMargins(4, 2, 4, 2); // a bar of a given height has no more to spare beside its buttons
    setContextMenuPolicy(Qt::PreventContextMenu);
    connect(this, &QToolBar::actionTriggered, this, &Toolbar::ButtonClick);
}

QAction *Toolbar::addButton(const QString &key, const QString &description, const QString &toolTip, const QIcon &icon)
{
    QAction *action = addAction(icon, description.isEmpty() ? toolTip : description);
    action->setObjectName(key);
    action->setToolTip(toolTip);
    QWidget *button = widgetForAction(action);
    button->setAccessibleName(action->text());
    button->setFocusPolicy(Qt::TabFocus); // the keyboard reaches it without taking the focus at a click
    return action;
}

} // namespace desktop
