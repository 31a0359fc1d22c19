// Boxes under one another, each for a column of the store: how a tab shows the one row that it is about.
#pragma once

#include "parts/FieldGrid.h"
#include "platform/data/Recordset.h"

#include <functional>
#include <utility>
#include <vector>

class StoredBoxes
{
public:
    // The parent owns the boxes.
    explicit StoredBoxes(QWidget *parent) : m_grid(parent) {}

    desktop::TextBox *addText(QAnyStringView name, const QString &label, const QString &column);
    // The list of the states, one line high.
    desktop::ListBox *addStates(QAnyStringView name, const QString &column);
    void addButtons(std::initializer_list<desktop::CommandButton *> buttons) { m_grid.addButtons(buttons); }

    // Gives each box the text of its column, in the order of adding. A Null leaves its box as it was.
    void show(data::Recordset &row) const;

private:
    FieldGrid m_grid;
    std::vector<std::pair<QString, std::function<void(const data::Field &)>>> m_boxes;
};
