#include "library/MenuBar.h"

#include <QEvent>
#include <QShortcut>

MenuBar::MenuBar(QWidget *window, QAnyStringView name) : ControlOf(window, name)
{
    setNativeMenuBar(false);
    auto *shortcut = new QShortcut(Qt::Key_F10, window);
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    connect(shortcut, &QShortcut::activated, this, &MenuBar::openFirst);
}

desktop::PopupMenu *MenuBar::add(const QString &name, const QString &caption)
{
    auto *menu = new desktop::PopupMenu(this, name + QLatin1String(".menu"), caption);
    menu->menuAction()->setObjectName(name);
    addMenu(menu);
    return menu;
}

// A menu bar of Qt takes the keyboard when Alt is pressed anywhere in its top-level window, which it learns from this
// event. Under the frame that would be several bars at once, so that Alt is left to the frame's.
bool MenuBar::eventFilter(QObject *watched, QEvent *event)
{
    return event->type() != QEvent::ShortcutOverride && ControlOf::eventFilter(watched, event);
}

void MenuBar::openFirst()
{
    for (QAction *menu : actions()) {
        if (menu->isVisible() && menu->isEnabled())
            return setActiveAction(menu);
    }
}
