// The label and the box that a user arranges on a canvas: they report the mouse, the focus and the keys.
//
// Each fills its own background, so that showing one does not repaint the canvas below it: a repaint draws the grid,
// and that sets the counter which decides where the next field is stored.
#pragma once

#include "platform/desktop/Controls.h"

// button: the bits of the mouse buttons that are held; shift: those of Shift, Ctrl and Alt; x and y in twips of the
// control itself.
class CanvasLabel : public desktop::Label
{
    Q_OBJECT
public:
    CanvasLabel(QWidget *parent, QAnyStringView name);

Q_SIGNALS:
    void MouseMove(int button, int shift, float x, float y);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
};

class CanvasTextBox : public desktop::TextBox
{
    Q_OBJECT
public:
    CanvasTextBox(QWidget *parent, QAnyStringView name);

Q_SIGNALS:
    void MouseDown(int button, int shift);
    void MouseMove(int button, int shift, float x, float y);
    void GotFocus();
    // Before the box itself uses the key, which it does unless a receiver accepts the event.
    void KeyDown(QKeyEvent &event);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
};
