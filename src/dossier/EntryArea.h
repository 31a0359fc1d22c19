// A tab with a list and, below it, an area for the entry of one line. It is in one of two states: browsing, with the
// list in use, or entering, with the boxes in use and their labels shown.
//
// The frame owns all controls. Labels keep their place while they are hidden, so that nothing jumps.
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

    // The next row, top down: a label and its box. Tab follows the order of the calls.
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
    // Covered by the box of the last row, and in use as it is.
    void addUnderLastBox(QWidget &widget);
    // A row with one button at its left, in use while browsing.
    desktop::CommandButton *addBeginningButton(QAnyStringView name, const QString &caption);
    // The last row: what ends the entry, in use meanwhile, and behind it what closes the window, in use while browsing.
    desktop::CommandButton *addEndingButton(QAnyStringView name, const QString &caption);
    desktop::CommandButton *addCloseButton(QAnyStringView name, const QString &caption);

    // What else is in use only then.
    void useWhileEntering(QWidget &widget) { m_entering << &widget; }

    // At start, before anyone has the focus.
    void beginBrowsing();
    // The keyboard goes on in the first box, and afterwards where the entry was begun.
    void enter();
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
