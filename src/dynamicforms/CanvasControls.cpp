#include "dynamicforms/CanvasControls.h"

#include "platform/desktop/Keys.h"
#include "platform/desktop/Twips.h"

#include <QKeyEvent>
#include <QMouseEvent>

namespace {

float inTwips(double pixels)
{
    return float(desktop::twips(pixels));
}

template <class ControlType> void reportMove(ControlType &control, const QMouseEvent &event)
{
    Q_EMIT control.MouseMove(desktop::heldButtons(event), desktop::shiftState(event), inTwips(event.position().x()),
                             inTwips(event.position().y()));
}

} // namespace

CanvasLabel::CanvasLabel(QWidget *parent, QAnyStringView name) : Label(parent, name)
{
    setElides();
    setAutoFillBackground(true);
}

// Accepted here, because Qt passes an ignored event on to the canvas below.
void CanvasLabel::mousePressEvent(QMouseEvent *event)
{
    event->accept();
}

void CanvasLabel::mouseMoveEvent(QMouseEvent *event)
{
    reportMove(*this, *event);
}

CanvasTextBox::CanvasTextBox(QWidget *parent, QAnyStringView name) : TextBox(parent, name)
{
    setAutoFillBackground(true);
}

void CanvasTextBox::mousePressEvent(QMouseEvent *event)
{
    desktop::TextBox::mousePressEvent(event);
    Q_EMIT MouseDown(desktop::changedButton(*event), desktop::shiftState(*event));
}

void CanvasTextBox::mouseMoveEvent(QMouseEvent *event)
{
    desktop::TextBox::mouseMoveEvent(event);
    reportMove(*this, *event);
}

void CanvasTextBox::focusInEvent(QFocusEvent *event)
{
    desktop::TextBox::focusInEvent(event);
    Q_EMIT GotFocus();
}

void CanvasTextBox::keyPressEvent(QKeyEvent *event)
{
    event->ignore();
    Q_EMIT KeyDown(*event);
    if (!event->isAccepted())
        desktop::TextBox::keyPressEvent(event);
}
