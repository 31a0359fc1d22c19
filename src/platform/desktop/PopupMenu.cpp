#include "platform/desktop/PopupMenu.h"

#include "platform/desktop/ErrorReport.h"
#include "platform/desktop/Keys.h"
#include "platform/desktop/Mnemonics.h"

namespace desktop {

PopupMenu::PopupMenu(QWidget *parent, QAnyStringView name, const QString &caption) : QMenu(caption, parent)
{
    setObjectName(name.toString());
    setAccessibleName(caption); // Qt tells nobody the title of a menu
    connect(this, &QMenu::aboutToShow, this, [this] { dealMnemonics(*this); });
}

QAction *PopupMenu::addItem(QAnyStringView name, const QString &caption)
{
    QAction *item = addAction(caption);
    item->setObjectName(name.toString());
    return item;
}

QAction *PopupMenu::addLine(QAnyStringView name)
{
    QAction *line = addSeparator();
    line->setObjectName(name.toString());
    return line;
}

void PopupMenu::popUpOver(ListView &list)
{
    on(&list, &ListView::MouseUp, this, [&list](PopupMenu *menu, int button, QPoint place) {
        if (button == vbRightButton && list.ListItems.Count() > 0)
            menu->popup(place);
    });
}

} // namespace desktop
