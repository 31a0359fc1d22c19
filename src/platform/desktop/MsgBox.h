// The one place that shows message boxes.
#pragma once

#include <QString>

namespace desktop {

// The kinds of box, as the windows' flags: buttons plus icon.
enum MsgBoxStyle : int { vbOKOnly = 0, vbYesNoCancel = 3, vbYesNo = 4, vbCritical = 16, vbInformation = 64 };
enum MsgBoxResult : int { vbOK = 1, vbCancel = 2, vbYes = 6, vbNo = 7 };

// Shows the text as it is and waits for the answer. Without a title of its own the box bears the application's. Esc
// and the close button answer Cancel or OK; a box with Yes and No alone is answered by one of the two.
MsgBoxResult MsgBox(const QString &prompt, int style = vbOKOnly, const QString &title = {});

} // namespace desktop
