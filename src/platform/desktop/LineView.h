// What every list and tree does by the keyboard: a key that leads to a line highlights it, and Ctrl with C copies what
// is highlighted.
//
// Qt keeps a current line beside the highlighted ones, unseen when nothing is highlighted. A key would start from it:
// Down would go to the line after it, and a key that leads to that line itself would do nothing.
#pragma once

#include "platform/desktop/Control.h"
#include "platform/desktop/CopyLines.h"

#include <QAbstractItemView>
#include <QKeyEvent>

namespace desktop {

// Scrolls the main window to the line where the list reaches beyond its edge.
void bringLineIntoView(const QAbstractItemView &view, const QModelIndex &line);

template <class View> class LineView : public ControlOf<View>
{
public:
    using ControlOf<View>::ControlOf;

    // With nothing highlighted the search begins at the first line.
    void keyboardSearch(const QString &search) override
    {
        const QModelIndex current = this->currentIndex();
        if (!isAnyHighlighted())
            this->selectionModel()->clearCurrentIndex();
        View::keyboardSearch(search);
        if (!this->currentIndex().isValid())
            this->selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
    }

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        if (event->matches(QKeySequence::Copy))
            return copyLines(*this);
        const bool isPlain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
        const bool highlights = isPlain && leadsToALine(event->key()) && !isAnyHighlighted();
        const bool isAStep = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down;
        if (highlights && !this->currentIndex().isValid()) // from nowhere Qt takes the End key to the first line
            this->selectionModel()->setCurrentIndex(this->model()->index(0, 0), QItemSelectionModel::NoUpdate);
        if (!highlights || !isAStep) // a step would go on from the current line
            View::keyPressEvent(event);
        if (highlights && !isAnyHighlighted())
            highlightCurrent();
    }
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override
    {
        View::currentChanged(current, previous);
        if (this->hasFocus())
            bringLineIntoView(*this, current);
    }

    bool isAnyHighlighted() const { return this->selectionModel()->hasSelection(); }
    // The current line, or else the first one.
    void highlightCurrent()
    {
        const QModelIndex current = this->currentIndex();
        this->setCurrentIndex(current.isValid() ? current : this->model()->index(0, 0));
    }

private:
    static bool leadsToALine(int key)
    {
        return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_Home || key == Qt::Key_End ||
               key == Qt::Key_PageUp || key == Qt::Key_PageDown;
    }
};

} // namespace desktop
