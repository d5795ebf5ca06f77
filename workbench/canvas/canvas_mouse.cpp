// Looking around, picking objects and giving points with the mouse.
#include "workbench/canvas/canvas.h"

#include "standin/console/command_loop.h"
#include "standin/console/console.h"
#include "standin/display/tracker_picture.h"
#include "standin/selection/editor_selection.h"

#include <QMouseEvent>
#include <QWheelEvent>
#include <cmath>

using namespace standin;

namespace workbench {

namespace {

const double wheelFactor = 1.25; // for one notch
const double notch = 120;
const int dragDistance = 6; // pixels; a mouse that moved less was clicked

} // namespace

const OpenPrompt* Canvas::pointPrompt() const {
    const OpenPrompt* prompt = io.openPrompt();
    return prompt && prompt->wantsPoint() && io.isWaiting() ? prompt : nullptr;
}

bool Canvas::picksObjects() const {
    const OpenPrompt* prompt = pointPrompt();
    return prompt ? prompt->picksObjects : !loop.isRunning() && !windowCorner;
}

OdGePoint3d Canvas::drawingPoint(const QPointF& pixel) const {
    const QPointF point = sheet->view().toDrawing(pixel);
    return {point.x(), point.y(), 0};
}

void Canvas::wheelEvent(QWheelEvent* event) {
    if (!sheet)
        return;
    const double factor = std::pow(wheelFactor, event->angleDelta().y() / notch);
    sheet->change(true).zoomAt(event->position(), factor);
    viewChanged();
}

void Canvas::mousePressEvent(QMouseEvent* event) {
    if (!sheet)
        return;
    if (event->button() == Qt::MiddleButton) {
        panning = true;
        panFrom = event->pos();
        setCursor(Qt::ClosedHandCursor);
    } else if (event->button() == Qt::LeftButton) {
        press(event->pos(), event->modifiers());
    } else if (event->button() == Qt::RightButton && io.isWaiting()) {
        io.enterLine({}); // as Enter
    } else if (event->button() == Qt::RightButton && windowCorner) {
        windowCorner.reset(); // a window that is half drawn is dropped
        update();
    } else if (event->button() == Qt::RightButton && !loop.isRunning()) {
        emit menuWanted(event->globalPos());
    }
}

void Canvas::press(const QPoint& pixel, Qt::KeyboardModifiers modifiers) {
    pressedAt = pixel;
    if (pointPrompt()) {
        editor().setPicksRemove(modifiers & Qt::ShiftModifier);
        return io.pickPoint(drawingPoint(pixel));
    }
    if (loop.isRunning())
        return;
    if (windowCorner)
        return finishWindow(pixel, modifiers);
    const OdDbObjectIdArray found = editor().pickedAt(drawingPoint(pixel));
    if (found.empty())
        windowCorner = drawingPoint(pixel);
    else
        choose(found, modifiers);
    update();
}

void Canvas::finishWindow(const QPoint& pixel, Qt::KeyboardModifiers modifiers) {
    const OdGePoint3d first = *windowCorner, second = drawingPoint(pixel);
    windowCorner.reset();
    choose(editor().pickedIn(first, second, EditorSelection::isCrossing(first, second)), modifiers);
    update();
}

void Canvas::choose(const OdDbObjectIdArray& ids, Qt::KeyboardModifiers modifiers) {
    if (modifiers & Qt::ShiftModifier)
        editor().remove(ids);
    else
        editor().add(ids);
}

void Canvas::mouseMoveEvent(QMouseEvent* event) {
    cursorAt = event->pos();
    if (!sheet)
        return update();
    io.moveCursor(drawingPoint(event->pos()));
    if (panning) {
        sheet->change(true).panBy(event->pos() - panFrom);
        panFrom = event->pos();
    }
    if (tracked)
        tracked->setCursor(sheet->view().toDrawing(cursorAt));
    viewChanged();
}

// A window may be drawn with the button held down, too.
void Canvas::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::MiddleButton) {
        panning = false;
        setCursor(Qt::BlankCursor);
    }
    const bool dragged = (event->pos() - pressedAt).manhattanLength() > dragDistance;
    if (!sheet || event->button() != Qt::LeftButton || !dragged)
        return;
    const OpenPrompt* prompt = pointPrompt();
    if (prompt && prompt->rectangle)
        io.pickPoint(drawingPoint(event->pos()));
    else if (windowCorner)
        finishWindow(event->pos(), event->modifiers());
}

void Canvas::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::MiddleButton)
        zoomExtents();
    else
        mousePressEvent(event);
}

void Canvas::leaveEvent(QEvent*) {
    cursorAt = {-1, -1};
    emit cursorLeft();
    update();
}

} // namespace workbench
