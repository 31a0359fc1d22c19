#include "platform/desktop/CanvasControls.h"

#include "platform/desktop/Keys.h"
#include "platform/desktop/Twips.h"

#include <QMouseEvent>

namespace desktop {

namespace {

float inTwips(double pixels)
{
    return float(pixels * twipsPerPixel);
}

template <class ControlType> void reportMove(ControlType &control, const QMouseEvent &event)
{
    Q_EMIT control.MouseMove(heldButtons(event), shiftState(event), inTwips(event.position().x()),
                             inTwips(event.position().y()));
}

} // namespace

CanvasLabel::CanvasLabel(QWidget *parent, QAnyStringView name) : Label(parent, name)
{
    setAutoFillBackground(true);
}

// The canvas below is not to hear of it.
void CanvasLabel::mousePressEvent(QMouseEvent *event)
{
    event->accept();
}

void CanvasLabel::mouseMoveEvent(QMouseEvent *event)
{
    reportMove(*this, *event);
}

CanvasTextBox::CanvasTextBox(QWidget *parent, QAnyStringView name) : ControlOf(parent, name)
{
    setAutoFillBackground(true);
}

void CanvasTextBox::mousePressEvent(QMouseEvent *event)
{
    TextBox::mousePressEvent(event);
    Q_EMIT MouseDown(changedButton(*event), shiftState(*event));
}

void CanvasTextBox::mouseMoveEvent(QMouseEvent *event)
{
    TextBox::mouseMoveEvent(event);
    reportMove(*this, *event);
}

void CanvasTextBox::focusInEvent(QFocusEvent *event)
{
    TextBox::focusInEvent(event);
    Q_EMIT GotFocus();
}

} // namespace desktop
