// A menu bar that shows where the keyboard is in it: the menu that the arrow keys have come to is drawn as the chosen
// one before it is opened, too.
#pragma once

#include <QMenuBar>
#include <QStyleOptionMenuItem>

namespace desktop {

class MenuBar : public QMenuBar
{
public:
    using QMenuBar::QMenuBar;

protected:
    void initStyleOption(QStyleOptionMenuItem *option, const QAction *action) const override
    {
        QMenuBar::initStyleOption(option, action);
        if (hasFocus() && option->state.testFlag(QStyle::State_Selected))
            option->state |= QStyle::State_Sunken;
    }
};

} // namespace desktop
