// A bar of buttons with pictures. The focus comes to it by the keyboard alone: Left and Right choose a button, Enter
// and Space press it.
#pragma once

#include "platform/desktop/Control.h"

#include <QToolBar>

namespace desktop {

class Toolbar : public DockedBar<QToolBar>
{
    Q_OBJECT
public:
    Toolbar(QWidget *parent, QAnyStringView name);

    // The button is an action: its text is the description, or without one the tool tip; its objectName is the key.
    QAction *addButton(const QString &key, const QString &description, const QString &toolTip, const QIcon &icon);

Q_SIGNALS:
    void ButtonClick(QAction *button);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void goToNeighbour(QWidget *button, int step);
};

} // namespace desktop
