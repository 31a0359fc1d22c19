// A tab with a list and, below it, boxes for the entry of one line. It is either browsing, with the list enabled and
// the boxes' labels hidden, or entering, with the boxes enabled and their labels shown.
//
// The frame owns all controls. A hidden label keeps its place, so that the boxes do not move.
#pragma once

#include "platform/desktop/Controls.h"
#include "platform/desktop/ListView.h"

#include <utility>

class QGridLayout;
class QHBoxLayout;

class EntryArea
{
public:
    enum class Lines { One, Several };

    // The list fills the top.
    EntryArea(desktop::Frame &frame, desktop::ListView &list);

    // Adds a row with a label and its box below the last one. Tab follows the order of the calls.
    template <class Box>
    std::pair<desktop::Label *, Box *> addRow(QAnyStringView labelName, const QString &caption, QAnyStringView name,
                                              Lines lines = Lines::One)
    {
        auto *label = new desktop::Label(&m_frame, labelName, caption);
        auto *box = new Box(&m_frame, name);
        placeRow(*label, *box, lines);
        return {label, box};
    }
    void addWidget(QWidget &widget);
    // Adds a control that the box of the last row covers; it is never enabled.
    void addUnderLastBox(QWidget &widget);
    // Adds a row with a button that begins an entry; enabled while browsing.
    desktop::CommandButton *addBeginningButton(QAnyStringView name, const QString &caption);
    // Buttons in the bottom row, from the left: those that end an entry, enabled while entering, and the one that
    // closes the window, enabled while browsing.
    desktop::CommandButton *addEndingButton(QAnyStringView name, const QString &caption);
    desktop::CommandButton *addCloseButton(QAnyStringView name, const QString &caption);

    // Makes another control enabled while entering and disabled while browsing.
    void useWhileEntering(QWidget &widget) { m_entering << &widget; }

    // Sets the state at start, which is that of browsing. Unlike browse() it leaves the focus alone.
    void beginBrowsing();
    // Puts the focus into the first box.
    void enter();
    // Puts the focus back where it was when the entry was begun.
    void browse();

private:
    void placeRow(desktop::Label &label, QWidget &box, Lines lines);
    QHBoxLayout *addLine();
    desktop::CommandButton *addToLastRow(QAnyStringView name, const QString &caption);
    void showLabels(bool shown);

    desktop::Frame &m_frame;
    QGridLayout *m_grid;
    QHBoxLayout *m_lastRow = nullptr;
    int m_rows = 0;
    QList<QWidget *> m_labels;
    QList<QWidget *> m_entering;
    QList<QWidget *> m_browsing;
    QWidget *m_firstBox = nullptr;
    QWidget *m_begunAt = nullptr;
};
