// The highlighted lines of a list or tree on the clipboard, one below another, with a tab between the columns: as a
// spreadsheet takes them.
#pragma once

class QAbstractItemView;

namespace desktop {

// A line break or tab within a value becomes a blank. With nothing highlighted the clipboard stays as it is.
void copyLines(const QAbstractItemView &view);

} // namespace desktop
