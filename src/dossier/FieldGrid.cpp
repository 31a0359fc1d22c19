#include "dossier/FieldGrid.h"

#include <QGridLayout>

FieldGrid::FieldGrid(QWidget *parent) : m_parent(parent), m_layout(new QGridLayout(parent))
{
    m_layout->setColumnStretch(1, 1);
    m_layout->setRowStretch(100, 1); // the rows keep together at the top
}

void FieldGrid::addRow(const QString &label, QWidget *box)
{
    auto *caption = new QLabel(label, m_parent);
    caption->setBuddy(box);
    box->setAccessibleName(label);
    m_layout->addWidget(caption, m_rows, 0);
    m_layout->addWidget(box, m_rows, 1);
    ++m_rows;
}

desktop::TextBox *FieldGrid::addText(QAnyStringView name, const QString &label)
{
    auto *box = new desktop::TextBox(m_parent, name);
    addRow(label, box);
    return box;
}

desktop::ListBox *FieldGrid::addOneLineList(QAnyStringView name, const QString &label, const QStringList &items)
{
    auto *list = new desktop::ListBox(m_parent, name, items);
    list->setOneLine();
    addRow(label, list);
    return list;
}
