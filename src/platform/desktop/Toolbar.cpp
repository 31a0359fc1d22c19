#include "platform/desktop/Toolbar.h"

#include "platform/desktop/Keys.h"

#include <QKeyEvent>
#include <QLayout>
#include <QToolButton>

namespace desktop {

Toolbar::Toolbar(QWidget *parent, QAnyStringView name) : DockedBar(parent, name)
{
    setMovable(false);
    layout()->setContentsMargins(4, 2, 4, 2); // narrow, so that the buttons fit into a bar of a given height
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
    button->installEventFilter(this);
    return action;
}

void Toolbar::goToNeighbour(QWidget *button, int step)
{
    QList<QWidget *> buttons;
    for (QAction *action : actions()) {
        if (QWidget *each = widgetForAction(action); each->focusPolicy() & Qt::TabFocus && each->isEnabled())
            buttons << each;
    }
    const qsizetype next = buttons.indexOf(button) + step + buttons.size();
    buttons[next % buttons.size()]->setFocus(Qt::TabFocusReason);
}

bool Toolbar::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return DockedBar::eventFilter(watched, event);
    auto *button = qobject_cast<QToolButton *>(watched);
    const auto *key = static_cast<QKeyEvent *>(event);
    if (key->key() == Qt::Key_Left || key->key() == Qt::Key_Right)
        goToNeighbour(button, key->key() == Qt::Key_Left ? -1 : 1);
    else if (keyCode(*key) != vbKeyReturn)
        return DockedBar::eventFilter(watched, event);
    else if (!key->isAutoRepeat())
        button->click();
    return true;
}

} // namespace desktop
