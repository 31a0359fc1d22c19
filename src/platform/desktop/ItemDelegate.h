// How lists and trees show an item: so much of its text as a screen could show, while the item keeps it whole, in a
// line that has room for the accents of capital letters.
#pragma once

#include "platform/desktop/PlainText.h"

#include <QStyledItemDelegate>

namespace desktop {

class ItemDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant &value, const QLocale &locale) const override
    {
        return QStyledItemDelegate::displayText(value, locale).left(mostShown);
    }
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        constexpr int roomForAccents = 4; // logical pixels; they reach beyond the height that the font tells
        return QStyledItemDelegate::sizeHint(option, index)
            .expandedTo({0, option.fontMetrics.height() + roomForAccents});
    }
};

} // namespace desktop
