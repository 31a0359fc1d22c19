// The menu bar of a child window, inside the window: F10 opens its first menu that can be used. Alt is the frame's.
//
// It owns its menus. A menu's given name is the objectName of its action; the menu itself is called NAME.menu.
#pragma once

#include "platform/desktop/Control.h"
#include "platform/desktop/MenuBar.h"
#include "platform/desktop/PopupMenu.h"

class MenuBar : public desktop::ControlOf<desktop::MenuBar>
{
public:
    MenuBar(QWidget *window, QAnyStringView name);

    desktop::PopupMenu *add(const QString &name, const QString &caption);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void openFirst();
};
