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
const std::size_t mostShapes = 4000; // that are painted for every place of the cursor

// Turns and stretches alike in both directions, and mirrors nothing.
bool keepsShape(const QTransform& map) {
    const double slack = 1e-9 * (std::abs(map.m11()) + std::abs(map.m12()));
    return std::abs(map.m11() - map.m22()) <= slack && std::abs(map.m12() + map.m21()) <= slack;
}

// As the item would look if its drawing were moved so: in a view whose middle lies on the middle of the
// window, large enough for every angle, under a painter that is turned about that middle.
void drawShapes(QPainter& painter, const Item& item, const QTransform& moved, const View& view,
                const QColor& foreground) {
    const double stretch = std::hypot(moved.m11(), moved.m12());
    if (!(stretch > 0))
        return;
    const QPointF middle(view.size().width() / 2.0, view.size().height() / 2.0);
    const int side = static_cast<int>(std::ceil(std::hypot(view.size().width(), view.size().height()))) + 2;
    View turned;
    turned.resize({side, side});
    turned.setScale(view.scale() * stretch);
    turned.lookAt(moved.inverted().map(view.toDrawing(middle)));
    painter.translate(middle);
    painter.rotate(-std::atan2(moved.m12(), moved.m11()) * 180 / M_PI);
    painter.translate(-side / 2.0, -side / 2.0);
    ItemPainter(painter, turned, foreground).draw(item);
}

} // namespace

TrackerPicture::TrackerPicture(const OpenPrompt& prompt, OdDbDatabasePtr database)
    : open(&prompt), base(prompt.base ? std::optional(*prompt.base) : std::nullopt), kind(prompt.kind),
      drawing(std::move(database)) {
    HostEdPointTracker& tracker = *prompt.tracker;
    tracker.setSink(static_cast<HostDrawableSink*>(this));
    if (prompt.base)
        tracker.setBasePoint(prompt.base->x, prompt.base->y, prompt.base->z);
    tracker.addDrawables(this);
}

TrackerPicture::~TrackerPicture() { leaveTracker(); }

void TrackerPicture::leaveTracker() {
    if (!open)
        return;
    HostEdPointTracker& tracker = *open->tracker;
    open = nullptr; // what the tracker removes now stays in the picture
    tracker.removeDrawables(this, 0, 0, 0, 0);
    tracker.setSink(nullptr);
}

void TrackerPicture::addDrawable(OdRxObject* drawable, int, int, int, int) {
    const auto* entity = dynamic_cast<const OdDbEntity*>(drawable);
    if (!entity)
        return;
    Drawable shown{drawable, {}, ItemBuilder().build(*entity, *drawing), {}, {}};
    if (const auto* reference = dynamic_cast<const OdDbBlockReference*>(entity))
        shown.anchor = flat(reference->position());
    if (!shown.item.shapes.empty())
        drawables.push_back(std::move(shown));
}

void TrackerPicture::removeDrawable(OdRxObject* drawable, int, int, int, int) {
    if (!open)
        return;
    drawables.erase(std::remove_if(drawables.begin(), drawables.end(),
                                   [&](const Drawable& each) { return each.object == drawable; }),
                    drawables.end());
}

void TrackerPicture::setCursor(const QPointF& point) {
    if (!open)
        return;
    cursor = point;
    open->tracker->setCursor(point.x(), point.y(), 0);
}

// A point without a base is where the object goes, one with a base the corner of a frame that it fills; an
// angle turns it and a distance stretches it about the base.
QTransform TrackerPicture::movement(const QPointF& anchor) const {
    if (!base)
        return QTransform::fromTranslate(cursor.x() - anchor.x(), cursor.y() - anchor.y());
    const QPointF from = flat(*base), off = cursor - from;
    QTransform about;
    if (kind == OpenPrompt::Angle)
        about.rotateRadians(std::atan2(off.y(), off.x()));
    else if (kind == OpenPrompt::Distance)
        about.scale(std::hypot(off.x(), off.y()), std::hypot(off.x(), off.y()));
    else
        about.scale(off.x(), off.y());
    return QTransform::fromTranslate(-from.x(), -from.y()) * about *
           QTransform::fromTranslate(from.x(), from.y());
}

Box TrackerPicture::box() const {
    Box all;
    for (const Drawable& each : drawables)
        all.add(each.item.box);
    return all;
}

void TrackerPicture::paintPicture(Drawable& drawable, const View& view, const QColor& foreground) {
    const Item& item = drawable.item;
    drawable.paintedScale = view.scale();
    const double larger = std::max(item.box.width(), item.box.height());
    const double scale = larger * view.scale() > mostPixels ? mostPixels / larger : view.scale();
    drawable.pictured = View::of(item.box, scale, border);
    QPixmap picture(drawable.pictured.size());
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    ItemPainter(painter, drawable.pictured, foreground).draw(item);
    painter.end();
    drawable.picture = std::move(picture);
}

void TrackerPicture::drawPicture(QPainter& painter, Drawable& drawable, const QTransform& moved,
                                 const View& view, const QColor& foreground) {
    if (drawable.paintedScale != view.scale())
        paintPicture(drawable, view, foreground);
    const QTransform place = drawable.pictured.pixelsToDrawing() * moved * view.drawingToPixels();
    const bool onlyMoved = place.type() <= QTransform::TxTranslate;
    painter.setRenderHint(QPainter::SmoothPixmapTransform, !onlyMoved);
    painter.setTransform(
        onlyMoved ? QTransform::fromTranslate(std::round(place.dx()), std::round(place.dy())) : place, true);
    if (place.isInvertible())
        painter.drawPixmap(0, 0, drawable.picture);
}

void TrackerPicture::paint(QPainter& painter, const View& view, const QColor& foreground) {
    for (Drawable& each : drawables) {
        const QTransform moved = movement(each.anchor);
        painter.save();
        if (each.item.shapes.size() <= mostShapes && keepsShape(moved))
            drawShapes(painter, each.item, moved, view, foreground);
        else
            drawPicture(painter, each, moved, view, foreground);
        painter.restore();
    }
}

} // namespace standin
