#include "dossier/RowDeletion.h"

#include "platform/desktop/MsgBox.h"

using namespace Qt::Literals::StringLiterals;

void deleteSelectedRow(Dossier &dossier, const desktop::ListView &list, const RowDeletion &deletion,
                       const std::function<void()> &refresh)
{
    const QString question = deletion.warning.toString() + u"\r\nDo you want to continue"_s;
    if (desktop::MsgBox(question, desktop::vbYesNo) != desktop::vbYes)
        return;
    dossier.run(deletion.statement.toString() + list.SelectedItem()->Tag + u')');
    const bool refreshesFirst = deletion.order == RowDeletion::Order::RefreshThenMessage;
    if (refreshesFirst)
        refresh();
    desktop::MsgBox(deletion.confirmation.toString(), desktop::vbInformation);
    if (!refreshesFirst)
        refresh();
}
