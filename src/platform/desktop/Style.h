// The toolkit's own style, put right where it fails the eye.
//
// In every palette, the desktop's dark one too, texts, edges and selected pictures stand out from their ground; the
// control that has the focus says so; and the title bar of a child window that is not the active one can be read.
#pragma once

#include <QProxyStyle>

class QStyleOptionGroupBox;

namespace desktop {

// The contrast ratio of two colours as the guidelines for accessible content count it: 1 to 21.
double contrast(const QColor &one, const QColor &other);
// What a text needs to be read, and what a line or a picture needs to be seen.
inline constexpr double readableContrast = 4.5;
inline constexpr double visibleContrast = 3;
bool isDark(const QColor &colour);
// The colour itself, or mixed with as much of the stronger one as it takes to have that contrast to the ground.
QColor standingOut(const QColor &colour, const QColor &stronger, const QColor &ground, double ratio);
// The same for a text.
QColor readable(const QColor &colour, const QColor &stronger, const QColor &ground);

// The colours of a dark desktop, put right as the style does.
QPalette darkPalette();

class Style : public QProxyStyle
{
    Q_OBJECT
public:
    // Gives it to the application.
    static void install();

    void polish(QPalette &palette) override;
    using QProxyStyle::polish;
    // Pictures, title bars, boxes for ticks and scroll bars grow with the letters.
    int pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget) const override;

private:
    // Fusion, whose faults are known. Any other style draws its own edges.
    bool isFusion() const { return baseStyle()->inherits("QFusionStyle"); }
    bool drawOwnPrimitive(PrimitiveElement element, const QStyleOption &option, QPainter &painter,
                          const QWidget *widget) const;
    void drawGroupBox(const QStyleOptionGroupBox &box, QPainter &painter, const QWidget *widget) const;
};

} // namespace desktop
