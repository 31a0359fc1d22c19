// What every control has beyond its Qt widget: its given name as objectName, a Tag, and a place in twips.
//
// The place is kept as the number that was set, so that 4640 stays 4640 though 309 pixels are drawn; for a control that
// a layout places it is reckoned from its pixels.
#pragma once

#include "platform/desktop/PlainText.h"

#include <QAnyStringView>
#include <QHelpEvent>
#include <QString>
#include <QWidget>

#include <array>
#include <initializer_list>
#include <optional>

namespace desktop {

class Control
{
public:
    Control() = default;
    Control(const Control &) = delete;
    Control &operator=(const Control &) = delete;
    virtual ~Control() = default;

    virtual QWidget &widget() = 0;
    const QWidget &widget() const { return const_cast<Control *>(this)->widget(); }

    QString Tag;

    // Twips.
    double Left() const { return kept(0, widget().x()); }
    double Top() const { return kept(1, widget().y()); }
    double Width() const { return kept(2, widget().width()); }
    double Height() const { return kept(3, widget().height()); }
    void setLeft(double left) { Move(left, Top(), Width(), Height()); }
    void setTop(double top) { Move(Left(), top, Width(), Height()); }
    void setWidth(double width) { Move(Left(), Top(), width, Height()); }
    void setHeight(double height) { Move(Left(), Top(), Width(), height); }
    // A docked bar refuses with error 438.
    virtual void Move(double left, double top, double width, double height);

    // Points. Error 438 for a control without a font of its own.
    virtual double FontSize() const;
    virtual void setFontSize(double points);

private:
    double kept(size_t which, int pixels) const;
    std::array<std::optional<double>, 4> m_place; // left, top, width, height
};

// Raises error 438: the control does not have the property.
[[noreturn]] void refuseProperty();

// Tab visits the widgets in this order.
void setTabOrder(std::initializer_list<QWidget *> widgets);

// A Qt widget that is a control.
template <class Widget> class ControlOf : public Widget, public Control
{
public:
    ControlOf(QWidget *parent, QAnyStringView name) : Widget(parent) { this->setObjectName(name.toString()); }
    QWidget &widget() override { return *this; }
    using Control::widget;

protected:
    bool event(QEvent *event) override
    {
        const bool shown = event->type() == QEvent::ToolTip &&
                           showMarkedUpToolTip(this->toolTip(), *static_cast<QHelpEvent *>(event), this);
        return shown || Widget::event(event);
    }
};

// A bar that is docked to its window, which gives it its place, as the system gives it its font: Move and setFontSize
// raise error 438.
template <class Widget> class DockedBar : public ControlOf<Widget>
{
public:
    using ControlOf<Widget>::ControlOf;

    void Move(double, double, double, double) override { refuseProperty(); }
    void setFontSize(double) override { refuseProperty(); }

    // For a window that does not dock the bar and gives it a place of its own. Twips.
    void place(double left, double top, double width, double height) { Control::Move(left, top, width, height); }
};

} // namespace desktop
