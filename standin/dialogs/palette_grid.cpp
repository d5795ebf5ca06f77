// The grid of palette colours: the basic ones in a row of their own, the shades below, the greys last.
#include "standin/dialogs/color_dialog.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QToolTip>

namespace standin {

namespace {

const int cell = 18;
const int gap = 6; // between the three parts
const int columns = 24;
const int firstShade = 10, firstGrey = 250, lastIndex = 255;
const int shadeRows = 10;

} // namespace

PaletteGrid::PaletteGrid(QWidget* parent) : QWidget(parent) { setFocusPolicy(Qt::StrongFocus); }
PaletteGrid::~PaletteGrid() = default;

QColor PaletteGrid::colorOf(int index) {
    return QColor::fromRgb(QRgb(OdCmEntityColor::lookUpRGB(static_cast<std::uint8_t>(index))));
}

QSize PaletteGrid::sizeHint() const { return {columns * cell + 1, (shadeRows + 2) * cell + 2 * gap + 1}; }

void PaletteGrid::setCurrent(int index) {
    currentIndex = index;
    update();
}

// Each column of shades is one hue, each row one brightness.
QRect PaletteGrid::cellOf(int index) const {
    if (index < firstShade)
        return {(index - 1) * cell, 0, cell, cell};
    if (index >= firstGrey)
        return {(index - firstGrey) * cell, (shadeRows + 1) * cell + 2 * gap, cell, cell};
    const int column = (index - firstShade) / shadeRows, row = (index - firstShade) % shadeRows;
    return {column * cell, (row + 1) * cell + gap, cell, cell};
}

int PaletteGrid::indexAt(const QPoint& position) const {
    for (int index = 1; index <= lastIndex; ++index)
        if (cellOf(index).contains(position))
            return index;
    return 0;
}

void PaletteGrid::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    for (int index = 1; index <= lastIndex; ++index) {
        painter.setPen(palette().color(QPalette::Mid));
        painter.setBrush(colorOf(index));
        painter.drawRect(cellOf(index).adjusted(1, 1, -2, -2));
    }
    if (!currentIndex)
        return;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(palette().color(QPalette::Highlight), 3));
    painter.drawRect(cellOf(currentIndex).adjusted(1, 1, -2, -2));
}

void PaletteGrid::pick(int index) {
    if (index < 1 || index > lastIndex)
        return;
    setCurrent(index);
    emit picked(index);
}

void PaletteGrid::mousePressEvent(QMouseEvent* event) { pick(indexAt(event->pos())); }

void PaletteGrid::keyPressEvent(QKeyEvent* event) {
    static const std::map<int, int> steps = {
        {Qt::Key_Left, -shadeRows}, {Qt::Key_Right, shadeRows}, {Qt::Key_Up, -1}, {Qt::Key_Down, 1}};
    const auto step = steps.find(event->key());
    if (step == steps.end())
        return QWidget::keyPressEvent(event);
    pick(currentIndex ? currentIndex + step->second : 1);
}

bool PaletteGrid::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    if (const int index = indexAt(help->pos()))
        QToolTip::showText(help->globalPos(), tr("Colour %1, %2").arg(index).arg(colorOf(index).name()),
                           this);
    else
        QToolTip::hideText();
    return true;
}

} // namespace standin
