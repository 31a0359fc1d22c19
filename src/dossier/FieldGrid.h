// Boxes under one another with their labels on the left: how the entry areas of members lay out their fields.
//
// Each label is the buddy of its box and gives it its accessible name. The tab order follows the order of adding.
#pragma once

#include "platform/desktop/Controls.h"

class QGridLayout;

class FieldGrid
{
public:
    // The parent owns what the grid makes.
    explicit FieldGrid(QWidget *parent);

    desktop::TextBox *addText(QAnyStringView name, const QString &label);
    // A list box one line high.
    desktop::ListBox *addOneLineList(QAnyStringView name, const QString &label, const QStringList &items);

private:
    void addRow(const QString &label, QWidget *box);

    QWidget *m_parent;
    QGridLayout *m_layout;
    int m_rows = 0;
};
