// The style of both themes of the house: the plain one of the toolkit, with outlines that can be seen.
#pragma once

#include <QIcon>
#include <QProxyStyle>
#include <map>

namespace standin {

// The plain style derives the outline of a box from the colour of the window behind it. On a dark window, or
// in a row whose background is transparent, nothing of an unchecked box would be left.
class HouseStyle : public QProxyStyle {
    Q_OBJECT
public:
    HouseStyle();
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    // The same icon each time: Qt keeps the pixels of each one in a store when the icon is gone.
    QIcon standardIcon(StandardPixmap picture, const QStyleOption* option,
                       const QWidget* widget) const override;

private:
    mutable std::map<std::pair<StandardPixmap, Qt::LayoutDirection>, QIcon> icons;
};

} // namespace standin
