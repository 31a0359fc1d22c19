#include "platform/desktop/Toolbar.h"

#include "platform/runtime/RuntimeError.h"

#include <QToolButton>

namespace desktop {

Toolbar::Toolbar(QWidget *parent, QAnyStringView name) : ControlOf(parent, name)
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

void Toolbar::Move(double, double, double, double)
{
    throw runtime::RuntimeError(runtime::PropertyNotSupported);
}

void Toolbar::setFontSize(double)
{
    throw runtime::RuntimeError(runtime::PropertyNotSupported);
}

} // namespace desktop
