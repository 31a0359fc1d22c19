// Boxes under one another with their labels on the left: how the windows of many fields lay them out.
//
// Each label is the buddy of its box and gives it its accessible name. The tab order follows the order of adding.
#pragma once

#include "platform/desktop/Controls.h"

class QGridLayout;

class FieldGrid
{
public:
    // The parent widget owns the labels and boxes.
    explicit FieldGrid(QWidget *parent);

    desktop::TextBox *addText(QAnyStringView name, const QString &label);
    // This row takes the height that the other rows leave over.
    desktop::MultilineTextBox *addMultilineText(QAnyStringView name, const QString &label);
    // A list box that shows so many items at a time.
    desktop::ListBox *addList(QAnyStringView name, const QString &label, const QStringList &items, int lines);
    // A list box one line high.
    desktop::ListBox *addOneLineList(QAnyStringView name, const QString &label, const QStringList &items);

    // The label of the last row.
    desktop::Label *lastLabel() const { return m_lastLabel; }

    // Puts the widget to the right of the last row's box, in the width that it needs.
    void addBehind(QWidget *widget);
    // Make a small control at that place. The purpose is its tool tip and its accessible name.
    desktop::CommandButton *addButtonBehind(QAnyStringView name, const QString &caption, const QString &purpose);
    desktop::ListBox *addListBehind(QAnyStringView name, const QStringList &items, const QString &purpose);

    // Puts the buttons at the bottom right, below all rows.
    void addButtons(std::initializer_list<desktop::CommandButton *> buttons);

private:
    void addRow(const QString &label, QWidget *box, Qt::Alignment labelAlignment = {});
    void addNarrowBehind(QWidget *widget, const QString &purpose);

    QWidget *m_parent;
    QGridLayout *m_layout;
    desktop::Label *m_lastLabel = nullptr;
    QWidget *m_lastBox = nullptr;
    int m_rows = 0;
};
