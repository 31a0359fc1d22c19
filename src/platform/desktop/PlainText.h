// Texts that come from people and from data are shown as they are. Qt reads marks of its own in some places; what
// stands here takes that meaning from them.
#pragma once

#include <QString>

class QHelpEvent;
class QWidget;

namespace desktop {

// More characters than any screen shows. Qt takes seconds to lay out a text of megabytes, at each painting.
constexpr qsizetype mostShown = 4000;

// A window's title up to that length. Qt reads "[*]" in it as the place of a mark for unsaved changes.
void setTitle(QWidget &window, const QString &title);
QString titleOf(const QWidget &window);

// The text for a tab or a menu item, in which Qt reads "&" as the mark of a key.
QString withoutMnemonic(QString text);

// Shows a tool tip that Qt would take for HTML. False, with nothing shown, for any other, which Qt shows as it is.
bool showMarkedUpToolTip(const QString &toolTip, const QHelpEvent &event, QWidget *widget);
// Shows any text as a tool tip.
void showPlainToolTip(const QString &text, const QHelpEvent &event, QWidget *widget);

} // namespace desktop
