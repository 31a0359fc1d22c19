// The heads of a list's columns, which the keyboard reaches too: Left and Right choose one, Enter and Space click it,
// Down and Esc go back to the lines.
#pragma once

#include <QHeaderView>

class QTreeView;

namespace desktop {

class ColumnHeads : public QHeaderView
{
public:
    // Owned by the list.
    explicit ColumnHeads(QTreeView &list);
    // Takes the focus, at the head that was chosen last.
    void enter();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void initStyleOptionForIndex(QStyleOptionHeader *option, int logicalIndex) const override;
    void paintSection(QPainter *painter, const QRect &rect, int logicalIndex) const override;

private:
    void choose(int section);

    QTreeView &m_list;
    int m_chosen = 0;
};

} // namespace desktop
