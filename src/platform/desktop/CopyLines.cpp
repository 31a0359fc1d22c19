#include "platform/desktop/CopyLines.h"

#include <QAbstractItemView>
#include <QClipboard>
#include <QGuiApplication>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace desktop {

namespace {

// What begins with a quotation mark would be read as quoted up to the next one; so it is quoted.
QString asCell(QString value)
{
    static const QRegularExpression breaks(u"\\R|[\\t\\x{1c}-\\x{1f}]"_s);
    value.replace(breaks, u" "_s);
    return value.startsWith(u'"') ? u'"' + value.replace(u"\""_s, u"\"\""_s) + u'"' : value;
}

} // namespace

void copyLines(const QAbstractItemView &view)
{
    QModelIndexList lines = view.selectionModel()->selectedRows(); // in no order
    if (lines.isEmpty())
        return;
    std::ranges::sort(lines, {}, &QModelIndex::row);
    QStringList texts;
    for (const QModelIndex &line : lines) {
        QStringList cells;
        for (int column = 0; column < view.model()->columnCount(line.parent()); ++column)
            cells << asCell(line.siblingAtColumn(column).data(Qt::EditRole).toString());
        texts << cells.join(u'\t');
    }
    QGuiApplication::clipboard()->setText(texts.join(u'\n'));
}

} // namespace desktop
