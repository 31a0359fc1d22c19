// The letters that Alt is pressed with: each window and each menu deals them out by itself, so that no two of its parts
// share one and nobody keeps a list of them.
//
// A caption that was designed with a letter keeps it. The others get the first letter of one of their words, or else
// any letter that is free; where all are taken, a caption goes without. What has a letter keeps it while it can, so
// that a letter means the same for as long as the window is open. A button's letter is its shortcut and never stands in
// its text; labels, tabs and menu items bear the mark in their texts, as Qt expects it. Without memory to deal with,
// everything keeps what it has: Qt calls these where no exception may pass.
#pragma once

#include <QChar>
#include <QKeySequence>
#include <QString>

class QMenu;
class QMenuBar;
class QWidget;

namespace desktop {

// Deals them out to what shows in the window: buttons, tabs, options and the labels of boxes. The letters of the
// frame's menus stay the menus'.
void dealMnemonics(QWidget &window);
// To the items of the menu that show.
void dealMnemonics(QMenu &menu);
// To the menus of the bar that show.
void dealMnemonics(QMenuBar &bar);

// The text with the mark at the letter of the shortcut, unless it bears one already: how a button is drawn.
QString withMnemonic(const QString &text, const QKeySequence &shortcut);
// The caption of a label, tab or menu item: its text without the mark.
QString captionOf(const QString &text);

} // namespace desktop
