// Outlines of check boxes, radio buttons and fields in colours that stand out from the rows they stand on.
#include "standin/themes/house_style.h"

#include <QApplication>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>

namespace standin {

namespace {

const int kTextShare = 40; // of an outline, in percent; the rest is the colour of fields
const int kFocusLightened = 130;
const int kFocusInset = 3;   // pixels within the outline of a button
const int kDarkenedBy = 140; // the plain style darkens the window's colour by this for an outline

int blended(int text, int base) { return (text * kTextShare + base * (100 - kTextShare)) / 100; }

QColor outlineColor(const QPalette& palette) {
    const QColor text = palette.color(QPalette::Text);
    const QColor base = palette.color(QPalette::Base);
    return QColor(blended(text.red(), base.red()), blended(text.green(), base.green()),
                  blended(text.blue(), base.blue()));
}

// The application's colours, with a window colour from which the plain style makes the wanted outline.
QPalette outlining(const QPalette& own) {
    QPalette palette = QApplication::palette();
    palette.setCurrentColorGroup(own.currentColorGroup());
    palette.setColor(QPalette::Window, outlineColor(palette).lighter(kDarkenedBy));
    return palette;
}

// What the keys go to, once they are used.
bool showsFocus(const QStyleOption& option) {
    return (option.state & QStyle::State_HasFocus) && (option.state & QStyle::State_KeyboardFocusChange);
}

void drawFocus(QPainter& painter, const QRect& place, const QStyleOption& option) {
    painter.save();
    painter.setPen(option.palette.color(QPalette::Highlight).lighter(kFocusLightened));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(place.adjusted(0, 0, -1, -1));
    painter.restore();
}

} // namespace

HouseStyle::HouseStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

void HouseStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
    const auto* const button = qstyleoption_cast<const QStyleOptionButton*>(option);
    const auto* const frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
    if (button && (element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton)) {
        QStyleOptionButton outlined(*button);
        outlined.palette = outlining(button->palette);
        QProxyStyle::drawPrimitive(element, &outlined, painter, widget);
    } else if (frame && element == PE_FrameLineEdit) {
        QStyleOptionFrame outlined(*frame);
        outlined.palette = outlining(frame->palette);
        QProxyStyle::drawPrimitive(element, &outlined, painter, widget);
    } else {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        if (element == PE_Frame && showsFocus(*option))
            drawFocus(*painter, option->rect, *option);
    }
}

// The button that Enter presses has the outline of a focus anyway, so that the focus needs one of its own.
void HouseStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const {
    QProxyStyle::drawControl(element, option, painter, widget);
    if (element == CE_PushButton && showsFocus(*option))
        drawFocus(*painter, option->rect.adjusted(kFocusInset, kFocusInset, -kFocusInset, -kFocusInset),
                  *option);
}

void HouseStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                    QPainter* painter, const QWidget* widget) const {
    const auto* const spinBox = qstyleoption_cast<const QStyleOptionSpinBox*>(option);
    if (spinBox && control == CC_SpinBox) {
        QStyleOptionSpinBox outlined(*spinBox);
        outlined.palette = outlining(spinBox->palette);
        QProxyStyle::drawComplexControl(control, &outlined, painter, widget);
    } else {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
}

QIcon HouseStyle::standardIcon(StandardPixmap picture, const QStyleOption* option,
                               const QWidget* widget) const {
    const auto direction = option ? option->direction : QGuiApplication::layoutDirection();
    QIcon& icon = icons[{picture, direction}];
    if (icon.isNull())
        icon = QProxyStyle::standardIcon(picture, option, widget);
    return icon;
}

} // namespace standin

#include "moc_house_style.cpp"
