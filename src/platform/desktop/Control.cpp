#include "platform/desktop/Control.h"

#include "platform/desktop/Twips.h"
#include "platform/runtime/RuntimeError.h"

namespace desktop {

double Control::kept(size_t which, int inPixels) const
{
    const std::optional<double> &place = m_place[which];
    return place && pixels(*place) == inPixels ? *place : twips(inPixels);
}

void Control::Move(double left, double top, double width, double height)
{
    m_place = {left, top, width, height};
    widget().setGeometry(pixels(left), pixels(top), pixels(width), pixels(height));
}

double Control::FontSize() const
{
    return widget().font().pointSizeF();
}

void Control::setFontSize(double points)
{
    QFont font = widget().font();
    font.setPointSizeF(points);
    widget().setFont(font);
}

void refuseProperty()
{
    throw runtime::RuntimeError(runtime::PropertyNotSupported);
}

void setTabOrder(std::initializer_list<QWidget *> widgets)
{
    QWidget *before = nullptr;
    for (QWidget *widget : widgets) {
        if (before)
            QWidget::setTabOrder(before, widget);
        before = widget;
    }
}

} // namespace desktop
