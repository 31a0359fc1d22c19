#include "dossier/EntryArea.h"

#include <QApplication>
#include <QGridLayout>
#include <QHBoxLayout>

namespace {

void setEnabled(const QList<QWidget *> &widgets, bool enabled)
{
    for (QWidget *widget : widgets)
        widget->setEnabled(enabled);
}

} // namespace

EntryArea::EntryArea(desktop::Frame &frame, desktop::ListView &list)
    : m_frame(frame), m_grid(new QGridLayout(&frame)), m_browsing({&list}), m_begunAt(&list)
{
    addWidget(list);
    m_grid->setRowStretch(0, 3);
    m_grid->setColumnStretch(1, 1);
}

void EntryArea::placeRow(desktop::Label &label, QWidget &box, Lines lines)
{
    QSizePolicy policy = label.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    label.setSizePolicy(policy);
    label.setBuddy(&box);
    box.setAccessibleName(label.text());
    const int row = m_rows++;
    m_grid->addWidget(&label, row, 0, lines == Lines::Several ? Qt::AlignTop : Qt::Alignment());
    m_grid->addWidget(&box, row, 1);
    if (lines == Lines::Several)
        m_grid->setRowStretch(row, 2);
    m_labels << &label;
    m_entering << &box;
    if (!m_firstBox)
        m_firstBox = &box;
}

void EntryArea::addWidget(QWidget &widget)
{
    m_grid->addWidget(&widget, m_rows++, 0, 1, 2);
}

QHBoxLayout *EntryArea::addLine()
{
    auto *line = new QHBoxLayout;
    m_grid->addLayout(line, m_rows++, 0, 1, 2);
    return line;
}

void EntryArea::addUnderLastBox(QWidget &widget)
{
    m_grid->addWidget(&widget, m_rows - 1, 1);
    widget.setFocusPolicy(Qt::NoFocus);
    widget.lower();
    widget.setEnabled(false);
}

desktop::CommandButton *EntryArea::addBeginningButton(QAnyStringView name, const QString &caption)
{
    auto *button = new desktop::CommandButton(&m_frame, name, caption);
    QHBoxLayout *line = addLine();
    line->addWidget(button);
    line->addStretch();
    m_browsing << button;
    return button;
}

desktop::CommandButton *EntryArea::addToLastRow(QAnyStringView name, const QString &caption)
{
    if (!m_lastRow) {
        m_lastRow = addLine();
        m_lastRow->addStretch();
    }
    auto *button = new desktop::CommandButton(&m_frame, name, caption);
    m_lastRow->addWidget(button);
    return button;
}

desktop::CommandButton *EntryArea::addEndingButton(QAnyStringView name, const QString &caption)
{
    desktop::CommandButton *button = addToLastRow(name, caption);
    m_entering << button;
    return button;
}

desktop::CommandButton *EntryArea::addCloseButton(QAnyStringView name, const QString &caption)
{
    desktop::CommandButton *button = addToLastRow(name, caption);
    m_browsing << button;
    return button;
}

void EntryArea::showLabels(bool shown)
{
    for (QWidget *label : m_labels)
        label->setVisible(shown);
}

void EntryArea::beginBrowsing()
{
    showLabels(false);
    setEnabled(m_entering, false);
    setEnabled(m_browsing, true);
}

void EntryArea::enter()
{
    if (QWidget *begunAt = QApplication::focusWidget(); begunAt && m_frame.isAncestorOf(begunAt))
        m_begunAt = begunAt;
    showLabels(true);
    setEnabled(m_entering, true);
    m_firstBox->setFocus();
    setEnabled(m_browsing, false);
}

void EntryArea::browse()
{
    setEnabled(m_browsing, true);
    m_begunAt->setFocus();
    setEnabled(m_entering, false);
    showLabels(false);
}
