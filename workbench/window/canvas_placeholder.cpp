#include "workbench/window/canvas_placeholder.h"

#include <QMouseEvent>
#include <QPainter>

namespace workbench {

namespace {

QColor contrastOf(const QColor& background) {
    return qGray(background.rgb()) > 127 ? QColor(Qt::black) : QColor(Qt::white);
}

} // namespace

CanvasPlaceholder::CanvasPlaceholder(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("canvas"));
    setMouseTracking(true);
    setMinimumSize(240, 160);
    setCursor(Qt::BlankCursor);
}

CanvasPlaceholder::~CanvasPlaceholder() = default;

void CanvasPlaceholder::showDrawing(const QString& name) {
    drawingName = name;
    update();
}

void CanvasPlaceholder::apply(const Settings& settings) {
    background = settings.canvasBack;
    cursorLook = settings.cursor;
    update();
}

void CanvasPlaceholder::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), background);
    drawTexts(painter);
    if (rect().contains(cursorAt))
        drawCursor(painter);
}

void CanvasPlaceholder::drawTexts(QPainter& painter) const {
    QColor ink = contrastOf(background);
    ink.setAlphaF(0.85);
    painter.setPen(ink);
    QFont title = font();
    title.setPointSizeF(font().pointSizeF() * 1.8);
    painter.setFont(title);
    QRect upper = rect();
    upper.setBottom(rect().center().y());
    painter.drawText(upper.adjusted(0, 0, 0, -4), Qt::AlignHCenter | Qt::AlignBottom,
                     drawingName.isEmpty() ? tr("No drawing is open") : drawingName);
    ink.setAlphaF(0.6);
    painter.setPen(ink);
    painter.setFont(font());
    QRect lower = rect();
    lower.setTop(rect().center().y());
    painter.drawText(
        lower.adjusted(0, 8, 0, 0), Qt::AlignHCenter | Qt::AlignTop,
        tr("Type a command on the line below: QPREF opens the options, HELP lists the commands."));
}

void CanvasPlaceholder::drawCursor(QPainter& painter) const {
    const int reachX = qMax(8, width() * cursorLook.sizePercent / 100);
    const int reachY = qMax(8, height() * cursorLook.sizePercent / 100);
    const int reach = qMin(reachX, reachY);
    const bool axes = cursorLook.colouring == CursorSettings::Axes;
    const QColor plain =
        cursorLook.colouring == CursorSettings::OneColor ? cursorLook.color : contrastOf(background);
    painter.setPen(QPen(axes ? QColor(0xe0, 0x50, 0x50) : plain, cursorLook.lineWidth));
    painter.drawLine(cursorAt - QPoint(reach, 0), cursorAt + QPoint(reach, 0));
    painter.setPen(QPen(axes ? QColor(0x50, 0xc0, 0x50) : plain, cursorLook.lineWidth));
    painter.drawLine(cursorAt - QPoint(0, reach), cursorAt + QPoint(0, reach));
}

void CanvasPlaceholder::mouseMoveEvent(QMouseEvent* event) {
    cursorAt = event->pos();
    update();
}

void CanvasPlaceholder::leaveEvent(QEvent*) {
    cursorAt = {-1, -1};
    update();
}

} // namespace workbench

#include "moc_canvas_placeholder.cpp"
