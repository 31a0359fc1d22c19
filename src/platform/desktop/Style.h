// The toolkit's own style, with texts, edges and pictures that can be seen in every palette.
//
// In every palette, the desktop's dark one too, texts, edges and selected pictures stand out from their ground; the
// control that has the focus says so; and the title bar of a child window that is not the active one can be read.
#pragma once

#include <QProxyStyle>

class QStyleOptionGroupBox;

namespace desktop {

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
    // The list of a combo box has a bar beside it, and is not as high as the screen.
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returned) const override;
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
