#include "platform/desktop/Toolbar.h"

namespace desktop {

Toolbar::Toolbar(QWidget *parent, QAnyStringView name) : DockedBar(parent, name)
{
    setMovable(false);
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
