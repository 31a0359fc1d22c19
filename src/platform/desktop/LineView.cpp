#include "platform/desktop/LineView.h"

#include "platform/desktop/MdiForm.h"

namespace desktop {

void bringLineIntoView(const QAbstractItemView &view, const QModelIndex &line)
{
    MdiForm::bringIntoView(*view.viewport(), view.visualRect(line));
}

} // namespace desktop
