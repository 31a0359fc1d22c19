// Lists and trees paint so much of an item's text as a screen could show; the item keeps it whole.
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
};

} // namespace desktop
