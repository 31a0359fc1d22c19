// A menu whose parts bear their given names; its items get their letters as it opens. One that is nowhere on a bar is
// shown only as a pop-up: its objectName is its given name, its caption is for assistive tools.
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
