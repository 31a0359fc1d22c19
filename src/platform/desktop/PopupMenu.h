// A menu that is nowhere on a bar and shown only as a pop-up. The menu's objectName is its given name, its caption is
// for assistive tools.
#pragma once

#include "platform/desktop/ListView.h"

#include <QMenu>

namespace desktop {

class PopupMenu : public QMenu
{
public:
    PopupMenu(QWidget *parent, QAnyStringView name, const QString &caption);

    QAction *addItem(QAnyStringView name, const QString &caption);
    QAction *addLine(QAnyStringView name);

    // Shows the menu wherever the right button is released over a list that has an item.
    void popUpOver(ListView &list);
};

} // namespace desktop
