// What the canvas paints over the picture of the drawing.
#include "workbench/canvas/canvas.h"

#include "standin/console/command_loop.h"
#include "standin/console/console.h"
#include "standin/display/flat.h"
#include "standin/display/item_painter.h"
#include "standin/display/tracker_picture.h"
#include "standin/documents/document_manager.h"
#include "standin/selection/editor_selection.h"

#include <QPainter>

using namespace standin;

namespace workbench {

namespace {

const QColor windowColor(0x3b, 0x8e, 0xea), crossingColor(0x3f, 0xb0, 0x5a);
const QColor markColor(0x4d, 0xa3, 0xff); // of what is selected or highlighted
const double markWidth = 3;
const std::size_t mostDashedMarks = 2000; // beyond them a mark is a dot among others anyway
const int washOpacity = 48;               // of 255

} // namespace

void Canvas::resizeEvent(QResizeEvent*) {
    if (sheet)
        sheet->resize(size());
}

void Canvas::paintEvent(QPaintEvent*) {
    if (sheet)
        keepUpToDate();
    QPainter painter(this);
    if (!sheet) {
        painter.fillRect(rect(), background);
        return paintWelcome(painter);
    }
    scene.paintAtOnce(painter, sceneOrder());
    const PictureOrder marked = marksOrder();
    if (!marked.only->empty())
        marks.paintAtOnce(painter, marked);
    if (tracked) // at the start of its prompt too, when nobody has moved the mouse over the drawing yet
        tracked->paint(painter, sheet->view(), contrastOf(background));
    const OpenPrompt* prompt = pointPrompt();
    if (prompt)
        paintPrompt(painter, *prompt);
    else if (windowCorner && rect().contains(cursorAt))
        paintWindow(painter, sheet->view().toPixel(flat(*windowCorner)), cursorAt);
    if (rect().contains(cursorAt) && !panning)
        paintCursor(painter);
}

PictureOrder Canvas::sceneOrder() const {
    PictureOrder order;
    order.list = &sheet->list;
    order.view = sheet->view();
    order.ratio = devicePixelRatioF();
    order.background = background;
    return order;
}

void Canvas::finishPicture() {
    if (!sheet)
        return;
    sheet->list.refresh();
    scene.finished(sceneOrder());
    marks.finished(marksOrder());
    tellWhatIsLeftOut();
    update();
}

bool Canvas::isPictureFinished() const { return !sheet || scene.isFinished(sceneOrder()); }

PictureOrder Canvas::marksOrder() {
    const hostSelectionSetPtr selection = editor().getSelection();
    OdDbObjectIdArray selected;
    if (!selection.isNull())
        selection->objectIds(selected);
    const bool areFew = selected.size() + sheet->list.highlighted().size() <= mostDashedMarks;
    marks.setPen(QPen(markColor, markWidth, areFew ? Qt::DashLine : Qt::SolidLine, Qt::RoundCap));
    return marks.orderOf(selected, sceneOrder());
}

void Canvas::paintPrompt(QPainter& painter, const OpenPrompt& prompt) {
    if (!prompt.base || !rect().contains(cursorAt))
        return;
    const QPointF base = sheet->view().toPixel(flat(*prompt.base));
    if (prompt.rectangle)
        return paintWindow(painter, base, cursorAt);
    if (!prompt.rubberBand)
        return;
    painter.setPen(QPen(rubberBand, 0, Qt::DashLine));
    painter.drawLine(base, cursorAt);
}

void Canvas::paintWindow(QPainter& painter, const QPointF& first, const QPointF& second) const {
    const bool crossing = second.x() < first.x();
    QColor color = crossing ? crossingColor : windowColor;
    painter.setPen(QPen(color.lighter(120), 1, crossing ? Qt::DashLine : Qt::SolidLine));
    color.setAlpha(washOpacity);
    painter.setBrush(color);
    painter.drawRect(QRectF(first, second).normalized());
    painter.setBrush(Qt::NoBrush);
}

void Canvas::paintWelcome(QPainter& painter) const {
    QColor ink = contrastOf(background);
    ink.setAlphaF(0.85);
    painter.setPen(ink);
    QFont title = font();
    title.setPointSizeF(font().pointSizeF() * 1.8);
    painter.setFont(title);
    QRect upper = rect(), lower = rect();
    upper.setBottom(rect().center().y() - 4);
    painter.drawText(upper, Qt::AlignHCenter | Qt::AlignBottom, tr("No drawing is open"));
    ink.setAlphaF(0.7);
    painter.setPen(ink);
    painter.setFont(font());
    lower.setTop(rect().center().y() + 8);
    painter.drawText(lower, Qt::AlignHCenter | Qt::AlignTop,
                     tr("OPEN opens one, NEW begins one, HELP lists the commands."));
}

void Canvas::paintCursor(QPainter& painter) const {
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
    if (picksObjects())
        paintPickBox(painter, plain);
}

// What lies within is picked by a click.
void Canvas::paintPickBox(QPainter& painter, const QColor& color) const {
    const int reach = pickBox();
    painter.setPen(QPen(color, 1));
    painter.drawRect(cursorAt.x() - reach, cursorAt.y() - reach, 2 * reach, 2 * reach);
}

} // namespace workbench
