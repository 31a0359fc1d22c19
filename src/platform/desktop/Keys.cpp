#include "platform/desktop/Keys.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QShortcut>
#include <QWidget>

#include <utility>

namespace desktop {

int keyCode(const QKeyEvent &event)
{
    switch (event.key()) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return vbKeyTab;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return vbKeyReturn;
    case Qt::Key_Escape:
        return vbKeyEscape;
    case Qt::Key_Delete:
        return vbKeyDelete;
    case Qt::Key_F2:
        return vbKeyF2;
    default:
        return 0;
    }
}

namespace {

int sumOf(Qt::MouseButtons buttons)
{
    return (buttons & Qt::LeftButton ? vbLeftButton : 0) | (buttons & Qt::RightButton ? vbRightButton : 0) |
           (buttons & Qt::MiddleButton ? vbMiddleButton : 0);
}

} // namespace

int shiftState(const QInputEvent &event)
{
    const Qt::KeyboardModifiers held = event.modifiers();
    return (held & Qt::ShiftModifier ? vbShiftMask : 0) | (held & Qt::ControlModifier ? vbCtrlMask : 0) |
           (held & Qt::AltModifier ? vbAltMask : 0);
}

bool isByKeyboard(const QFocusEvent &event)
{
    const Qt::FocusReason reason = event.reason();
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason;
}

int heldButtons(const QMouseEvent &event)
{
    return sumOf(event.buttons());
}

int changedButton(const QMouseEvent &event)
{
    return sumOf(event.button());
}

void onPageKeys(QWidget *widget, const std::function<void(int pages)> &turn)
{
    for (const auto &[key, pages] : {std::pair(Qt::Key_PageDown, 1), {Qt::Key_PageUp, -1}}) {
        auto *shortcut = new QShortcut(Qt::CTRL | key, widget);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        QObject::connect(shortcut, &QShortcut::activated, widget, [turn, pages = pages] { turn(pages); });
    }
}

} // namespace desktop
