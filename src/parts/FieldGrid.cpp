#include "parts/FieldGrid.h"

#include <QGridLayout>

using desktop::CommandButton;
using desktop::Label;
using desktop::ListBox;
using desktop::MultilineTextBox;
using desktop::TextBox;

namespace {

enum Column : int { LabelColumn, BoxColumn, ColumnCount };

constexpr int rowBelowAll = 100;
constexpr int charactersBehind = 8; // the width of a small control to the right of a box

} // namespace

FieldGrid::FieldGrid(QWidget *parent) : m_parent(parent), m_layout(new QGridLayout(parent))
{
    m_layout->setColumnStretch(BoxColumn, 1);
    m_layout->setRowStretch(rowBelowAll, 1); // the rows keep together at the top
}

void FieldGrid::addRow(const QString &label, QWidget *box, Qt::Alignment labelAlignment)
{
    m_lastLabel = new Label(m_parent, {}, label);
    m_lastLabel->setBuddy(box);
    box->setAccessibleName(label);
    m_layout->addWidget(m_lastLabel, m_rows, LabelColumn, labelAlignment);
    m_layout->addWidget(box, m_rows, BoxColumn);
    m_lastBox = box;
    ++m_rows;
}

TextBox *FieldGrid::addText(QAnyStringView name, const QString &label)
{
    auto *box = new TextBox(m_parent, name);
    addRow(label, box);
    return box;
}

MultilineTextBox *FieldGrid::addMultilineText(QAnyStringView name, const QString &label)
{
    auto *box = new MultilineTextBox(m_parent, name);
    m_layout->setRowStretch(m_rows, 1);
    m_layout->setRowStretch(rowBelowAll, 0);
    addRow(label, box, Qt::AlignTop);
    return box;
}

ListBox *FieldGrid::addList(QAnyStringView name, const QString &label, const QStringList &items, int lines)
{
    auto *list = new ListBox(m_parent, name, items);
    list->setLines(lines);
    addRow(label, list, Qt::AlignTop);
    return list;
}

ListBox *FieldGrid::addOneLineList(QAnyStringView name, const QString &label, const QStringList &items)
{
    auto *list = new ListBox(m_parent, name, items);
    list->setOneLine();
    addRow(label, list);
    return list;
}

void FieldGrid::addBehind(QWidget *widget)
{
    m_layout->removeWidget(m_lastBox);
    auto *row = new QHBoxLayout; // while the widget is hidden, the box is as wide as the other boxes
    row->addWidget(m_lastBox, 1);
    row->addWidget(widget);
    m_layout->addLayout(row, m_rows - 1, BoxColumn);
}

void FieldGrid::addNarrowBehind(QWidget *widget, const QString &purpose)
{
    widget->setAccessibleName(purpose);
    widget->setToolTip(purpose);
    widget->setFixedWidth(charactersBehind * widget->fontMetrics().averageCharWidth());
    addBehind(widget);
}

CommandButton *FieldGrid::addButtonBehind(QAnyStringView name, const QString &caption, const QString &purpose)
{
    auto *button = new CommandButton(m_parent, name, caption);
    addNarrowBehind(button, purpose);
    return button;
}

ListBox *FieldGrid::addListBehind(QAnyStringView name, const QStringList &items, const QString &purpose)
{
    auto *list = new ListBox(m_parent, name, items);
    list->setLines(int(items.size()));
    addNarrowBehind(list, purpose);
    return list;
}

void FieldGrid::addButtons(std::initializer_list<CommandButton *> buttons)
{
    auto *row = new QHBoxLayout;
    row->addStretch();
    for (CommandButton *button : buttons)
        row->addWidget(button);
    m_layout->addLayout(row, rowBelowAll + 1, LabelColumn, 1, ColumnCount);
}
