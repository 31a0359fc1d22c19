#include "dossier/StoredBoxes.h"

#include "dossier/StatesList.h"
#include "parts/RowTexts.h"

using namespace Qt::Literals::StringLiterals;

desktop::TextBox *StoredBoxes::addText(QAnyStringView name, const QString &label, const QString &column)
{
    auto *box = m_grid.addText(name, label);
    m_boxes.emplace_back(column, [box](const data::Field &field) { putText(*box, field); });
    return box;
}

desktop::ListBox *StoredBoxes::addStates(QAnyStringView name, const QString &column)
{
    auto *box = m_grid.addOneLineList(name, u"State"_s, statesList());
    m_boxes.emplace_back(column, [box](const data::Field &field) { putText(*box, field); });
    return box;
}

void StoredBoxes::show(data::Recordset &row) const
{
    for (const auto &[column, put] : m_boxes)
        put(row[column]);
}
