// The letters that Alt is pressed with: each window and each menu deals them out by itself, so that no two of its parts
// share one and nobody keeps a list of them.
//
// A caption that was designed with a letter keeps it. The others get the first letter of one of their words, or else
// any letter that is free; where all are taken, a caption goes without. A letter means the same for as long as the
// window is open: what has one in view keeps it, a caption that comes back gets its own again, and the letters of
// buttons and tabs that are away are left to them while others do. Only a label may have to take another one, for a
// button or tab that would go without. A button's letter is its shortcut and never stands in its text; labels, tabs and
// menu items bear the mark in their texts, as Qt expects it. When memory runs out, everything keeps the letter that it
// has: these functions throw nothing, since Qt calls them where no exception may pass.
#pragma once

#include <QChar>
#include <QKeySequence>
#include <QString>

#include <map>

class QMenu;
class QMenuBar;
class QWidget;

namespace desktop {

// What a caption of a window was dealt last.
struct DealtLetter
{
    QChar letter; // null: none was left
    bool isKept;  // for its button or tab, while that is away
};
using DealtLetters = std::map<QString, DealtLetter>; // by caption

// Deals them out to what shows in the window: buttons, tabs, options, the labels of boxes and the frames that label
// one. The letters of the frame's menus stay the menus'.
void dealMnemonics(QWidget &window, DealtLetters &before);
// To the items of the menu that show.
void dealMnemonics(QMenu &menu);
// To the menus of the bar that show.
void dealMnemonics(QMenuBar &bar);

// The text with the mark at the letter of the shortcut, unless it bears one already: how a button is drawn.
QString withMnemonic(const QString &text, const QKeySequence &shortcut);
// The caption of a label, tab or menu item: its text without the mark.
QString captionOf(const QString &text);

} // namespace desktop
