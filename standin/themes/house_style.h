// The style of both themes of the house: the plain one of the toolkit, with outlines that can be seen.
#pragma once

#include <QProxyStyle>

namespace standin {

// The plain style derives the outline of a box from the colour of the window behind it. On a dark window, or
// in a row whose background is transparent, nothing of an unchecked box would be left.
class HouseStyle : public QProxyStyle {
    Q_OBJECT
public:
    HouseStyle();
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
};

} // namespace standin
