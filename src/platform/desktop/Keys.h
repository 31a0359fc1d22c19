// Key codes, shift states and mouse buttons as the handlers name them.
#pragma once

#include <functional>

class QFocusEvent;
class QInputEvent;
class QKeyEvent;
class QMouseEvent;
class QWidget;

namespace desktop {

enum KeyCode : int { vbKeyTab = 9, vbKeyReturn = 13, vbKeyEscape = 27, vbKeyDelete = 46, vbKeyF2 = 113 };

enum ShiftMask : int { vbShiftMask = 1, vbCtrlMask = 2, vbAltMask = 4 };

enum MouseButton : int { vbLeftButton = 1, vbRightButton = 2, vbMiddleButton = 4 };

// The code of the key, 0 for a key that no handler asks for.
int keyCode(const QKeyEvent &event);
// The sum of Shift, Ctrl and Alt as they are held.
int shiftState(const QInputEvent &event);
// Whether Tab or the key of a label has moved the focus.
bool isByKeyboard(const QFocusEvent &event);
// The sum of the buttons that are down.
int heldButtons(const QMouseEvent &event);
// The button that was pressed or released.
int changedButton(const QMouseEvent &event);

// Turns pages by Ctrl with Page Down (1) and Page Up (-1) while the focus is in the widget.
void onPageKeys(QWidget *widget, const std::function<void(int pages)> &turn);

} // namespace desktop
