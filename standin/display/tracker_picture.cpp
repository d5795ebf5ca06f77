#include "standin/display/tracker_picture.h"

#include "sdk/db/block_reference.h"
#include "standin/console/console.h"
#include "standin/display/flat.h"
#include "standin/display/item_builder.h"
#include "standin/display/item_painter.h"

#include <algorithm>
#include <cmath>

namespace standin {

namespace {

const double mostPixels = 2600; // of a picture along one side; a larger one is painted smaller and stretched
const int border = 2;           // pixels around it

} // namespace

TrackerPicture::TrackerPicture(const OpenPrompt& prompt, OdDbDatabasePtr database)
    : shownPrompt(prompt), drawing(std::move(database)) {
    HostEdPointTracker& tracker = *prompt.tracker;
    tracker.setSink(static_cast<HostDrawableSink*>(this));
    if (prompt.base)
        tracker.setBasePoint(prompt.base->x, prompt.base->y, prompt.base->z);
    tracker.addDrawables(this);
}

TrackerPicture::~TrackerPicture() {
    shownPrompt.tracker->removeDrawables(this, 0, 0, 0, 0);
    shownPrompt.tracker->setSink(nullptr);
}

void TrackerPicture::addDrawable(OdRxObject* drawable, int, int, int, int) {
    const auto* entity = dynamic_cast<const OdDbEntity*>(drawable);
    if (!entity)
        return;
    Drawable shown{drawable, {}, ItemBuilder().build(*entity, *drawing)};
    if (const auto* reference = dynamic_cast<const OdDbBlockReference*>(entity))
        shown.anchor = flat(reference->position());
    if (!shown.item.shapes.empty())
        drawables.push_back(std::move(shown));
    paintedScale = 0;
}

void TrackerPicture::removeDrawable(OdRxObject* drawable, int, int, int, int) {
    drawables.erase(std::remove_if(drawables.begin(), drawables.end(),
                                   [&](const Drawable& each) { return each.object == drawable; }),
                    drawables.end());
    paintedScale = 0;
}

void TrackerPicture::setCursor(const QPointF& point) {
    cursor = point;
    shownPrompt.tracker->setCursor(point.x(), point.y(), 0);
}

// A point without a base is where the object goes, one with a base the corner of a frame that it fills; an
// angle turns it and a distance stretches it about the base.
QTransform TrackerPicture::movement(const QPointF& anchor) const {
    if (!shownPrompt.base)
        return QTransform::fromTranslate(cursor.x() - anchor.x(), cursor.y() - anchor.y());
    const QPointF base = flat(*shownPrompt.base), off = cursor - base;
    QTransform about;
    if (shownPrompt.kind == OpenPrompt::Angle)
        about.rotateRadians(std::atan2(off.y(), off.x()));
    else if (shownPrompt.kind == OpenPrompt::Distance)
        about.scale(std::hypot(off.x(), off.y()), std::hypot(off.x(), off.y()));
    else
        about.scale(off.x(), off.y());
    return QTransform::fromTranslate(-base.x(), -base.y()) * about *
           QTransform::fromTranslate(base.x(), base.y());
}

void TrackerPicture::paintPictures(const View& view, const QColor& foreground) {
    pictures.clear();
    pictured.clear();
    paintedScale = view.scale();
    for (const Drawable& each : drawables) {
        const double larger = std::max(each.item.box.width(), each.item.box.height());
        const double scale = larger * view.scale() > mostPixels ? mostPixels / larger : view.scale();
        pictured.push_back(View::of(each.item.box, scale, border));
        QPixmap picture(pictured.back().size());
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        ItemPainter(painter, pictured.back(), foreground).draw(each.item);
        painter.end();
        pictures.push_back(std::move(picture));
    }
}

void TrackerPicture::paint(QPainter& painter, const View& view, const QColor& foreground) {
    if (paintedScale != view.scale())
        paintPictures(view, foreground);
    painter.save();
    for (std::size_t i = 0; i < drawables.size(); ++i) {
        const QTransform moved =
            pictured[i].pixelsToDrawing() * movement(drawables[i].anchor) * view.drawingToPixels();
        const bool onlyMoved = moved.type() <= QTransform::TxTranslate;
        painter.setRenderHint(QPainter::SmoothPixmapTransform, !onlyMoved);
        painter.setTransform(
            onlyMoved ? QTransform::fromTranslate(std::round(moved.dx()), std::round(moved.dy())) : moved);
        if (moved.isInvertible())
            painter.drawPixmap(0, 0, pictures[i]);
    }
    painter.restore();
}

} // namespace standin
