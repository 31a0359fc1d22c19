// A bar of buttons with pictures.
#pragma once

#include "platform/desktop/Control.h"

#include <QToolBar>

namespace desktop {

class Toolbar : public ControlOf<QToolBar>
{
    Q_OBJECT
public:
    Toolbar(QWidget *parent, QAnyStringView name);

    // The button is an action: its text is the description, or without one the tool tip; its objectName is the key.
    QAction *addButton(const QString &key, const QString &description, const QString &toolTip, const QIcon &icon);

    // A docked bar has its place from its window and its font from the system: both raise error 438.
    void Move(double left, double top, double width, double height) override;
    void setFontSize(double points) override;

    // For a window that gives the bar a place of its own at its top edge.
    void place(double left, double top, double width, double height) { Control::Move(left, top, width, height); }

Q_SIGNALS:
    void ButtonClick(QAction *button);
};

} // namespace desktop
