#include "platform/desktop/ColumnHeads.h"

#include "platform/desktop/Keys.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyleOptionFocusRect>
#include <QTreeView>

namespace desktop {

ColumnHeads::ColumnHeads(QTreeView &list) : QHeaderView(Qt::Horizontal, &list), m_list(list)
{
    setStretchLastSection(true);
}

void ColumnHeads::enter()
{
    choose(m_chosen);
    setFocus(Qt::OtherFocusReason);
}

// The head bears the name of the column, so that it is read aloud.
void ColumnHeads::choose(int section)
{
    m_chosen = qBound(0, section, count() - 1);
    setAccessibleName(model()->headerData(m_chosen, Qt::Horizontal).toString());
    const int left = sectionViewportPosition(m_chosen);
    if (left < 0 || left + sectionSize(m_chosen) > viewport()->width())
        m_list.horizontalScrollBar()->setValue(sectionPosition(m_chosen));
    viewport()->update();
}

void ColumnHeads::keyPressEvent(QKeyEvent *event)
{
    const int key = event->key();
    if (key == Qt::Key_Left || key == Qt::Key_Right)
        choose(m_chosen + (key == Qt::Key_Left ? -1 : 1));
    else if (key == Qt::Key_Down || key == Qt::Key_Escape)
        m_list.setFocus(Qt::OtherFocusReason);
    else if (key != Qt::Key_Space && keyCode(*event) != vbKeyReturn)
        QHeaderView::keyPressEvent(event);
    else if (!event->isAutoRepeat())
        Q_EMIT sectionClicked(m_chosen);
}

// Qt elides a text that is wider than the section, but cuts off one that is only wider than the room for text in it; so
// it is elided here, by that room.
void ColumnHeads::initStyleOptionForIndex(QStyleOptionHeader *option, int logicalIndex) const
{
    QHeaderView::initStyleOptionForIndex(option, logicalIndex);
    QStyleOptionHeader section = *option;
    section.rect = QRect(0, 0, sectionSize(logicalIndex), height());
    const int room = style()->subElementRect(QStyle::SE_HeaderLabel, &section, this).width();
    option->text =
        fontMetrics().elidedText(model()->headerData(logicalIndex, Qt::Horizontal).toString(), textElideMode(), room);
}

void ColumnHeads::paintSection(QPainter *painter, const QRect &rect, int logicalIndex) const
{
    painter->save(); // Qt leaves its own pen behind
    QHeaderView::paintSection(painter, rect, logicalIndex);
    painter->restore();
    if (!hasFocus() || logicalIndex != m_chosen)
        return;
    QStyleOptionFocusRect option;
    option.initFrom(this);
    option.rect = rect.adjusted(1, 1, -2, -2);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, painter, this);
}

} // namespace desktop
