#include "dossier/MemberBoxes.h"

#include "dossier/StatesList.h"
#include "parts/RowTexts.h"
#include "platform/runtime/RuntimeError.h"

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

QString contentsOf(const desktop::TextBox &box)
{
    return box.text();
}

QString contentsOf(const desktop::ListBox &box)
{
    return box.Text();
}

} // namespace

MemberBoxes::MemberBoxes(QWidget *parent, std::span<const MemberField> fields, Window window) : m_grid(parent)
{
    for (const MemberField &field : fields) {
        const bool isHere = !(window == Window::Dossier ? field.boxInDossier : field.boxInEntry).isEmpty();
        if (isHere)
            m_boxes.push_back({field.column, addControl(field, window)});
    }
}

MemberBoxes::Control MemberBoxes::addControl(const MemberField &field, Window window)
{
    const bool inDossier = window == Window::Dossier;
    const QStringView name = inDossier ? field.boxInDossier : field.boxInEntry;
    const QString label = (inDossier || field.labelInEntry.isEmpty() ? field.label : field.labelInEntry).toString();
    if (field.isState)
        return m_grid.addOneLineList(name, label, statesList());
    return m_grid.addText(name, label);
}

void MemberBoxes::setFocusToFirst()
{
    std::visit([](QWidget *box) { box->setFocus(); }, m_boxes.front().control);
}

void MemberBoxes::show(data::Recordset &row) const
{
    for (const Box &box : m_boxes)
        std::visit([&](auto *control) { putText(*control, row[box.column]); }, box.control);
}

QString MemberBoxes::text(QStringView column) const
{
    const auto box = std::ranges::find(m_boxes, column, &Box::column);
    if (box == m_boxes.end())
        throw runtime::RuntimeError(runtime::IndexOutOfBounds);
    return std::visit([](const auto *control) { return contentsOf(*control); }, box->control);
}

QString MemberBoxes::filledIn(QStringView statement, const QString &memberId) const
{
    static const QRegularExpression place(u"\\{(\\w+)\\}"_s);
    QString filled;
    qsizetype done = 0;
    for (const QRegularExpressionMatch &match : place.globalMatch(statement.toString())) {
        const QStringView column = match.capturedView(1);
        filled += statement.sliced(done, match.capturedStart() - done);
        filled += column == u"MemberId" ? memberId : text(column);
        done = match.capturedEnd();
    }
    filled += statement.sliced(done);
    return filled;
}
