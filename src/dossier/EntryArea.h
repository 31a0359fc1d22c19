// A tab with a list and, below it, an area for the entry of one line. It is in one of two states: browsing, with the
// list in use, or entering, with the boxes in use and their labels shown.
//
// The frame owns all controls. Labels keep their place while they are hidden, so that nothing jumps.
#pragma once

#include "platform/desktop/Controls.h"
#include "platform/desktop/ListView.h"

#include <initializer_list>

class QGridLayout;
class QHBoxLayout;

class EntryArea
{
public:
    enum class Lines { One, Several };

    // The list fills the top.
    EntryArea(desktop::Frame &frame, desktop::ListView &list);

    // Top down, in the order of the calls.
    void addRow(desktop::Label &label, QWidget &box, Lines lines = Lines::One);
    void addWidget(QWidget &widget);
    // Covered by the box of the last row, and in use as it is.
    void addUnderLastBox(QWidget &widget);
    // In use while browsing.
    void addButtonsBelowList(std::initializer_list<desktop::CommandButton *> buttons);
    // The buttons that end the entry, and the one that closes the window, in use while browsing.
    void addButtons(std::initializer_list<desktop::CommandButton *> ending, desktop::CommandButton &close);

    // What else is in use only then.
    void useWhileEntering(QWidget &widget) { m_entering << &widget; }

    // At start, before anyone has the focus.
    void beginBrowsing();
    // The keyboard goes on in the first box, and afterwards where the entry was begun.
    void enter();
    void browse();

private:
    QHBoxLayout *addLine();
    void showLabels(bool shown);

    desktop::Frame &m_frame;
    QGridLayout *m_grid;
    int m_rows = 0;
    QList<QWidget *> m_labels;
    QList<QWidget *> m_entering;
    QList<QWidget *> m_browsing;
    QWidget *m_firstBox = nullptr;
    QWidget *m_begunAt = nullptr;
};
