#include "standin/display/live_picture.h"

#include "standin/display/sketch.h"

#include <QPainter>
#include <QRegion>
#include <cmath>
#include <utility>

namespace standin {

namespace {

const double largestStretch = 4;      // of the last picture; beyond it a sketch shows more
const std::size_t worthSharing = 200; // lines

} // namespace

bool LivePicture::Carried::isFor(const PictureOrder& other) const {
    return order.list && order.isSameAs(other) && revision == other.list->revision();
}

LivePicture::~LivePicture() { leave(); }

void LivePicture::forget() {
    drop();
    last.order.list = moving.order.list = nullptr; // the place of a list may be that of another one later
}

void LivePicture::read(const DisplayList& list) {
    if (reading == &list)
        return;
    leave();
    reading = &list;
    reading->addReader(this);
}

void LivePicture::leave() {
    drop();
    for (const auto& each : cancelled)
        each->wait();
    cancelled.clear();
    if (reading)
        reading->removeReader(this);
    reading = nullptr;
}

// Nobody waits for a job that is no longer of use.
void LivePicture::drop() {
    if (!job)
        return;
    job->cancel();
    cancelled.erase(std::remove_if(cancelled.begin(), cancelled.end(),
                                   [](const auto& each) { return each.use_count() == 1; }),
                    cancelled.end());
    cancelled.push_back(std::exchange(job, nullptr));
}

// False when it goes on already.
bool LivePicture::begin(const PictureOrder& order) {
    if (job && job->order().isSameAs(order) && jobRevision == order.list->revision())
        return false;
    drop();
    read(*order.list);
    job = std::make_shared<PictureJob>(order);
    jobRevision = order.list->revision();
    return true;
}

void LivePicture::help(int threads) {
    for (int i = 0; i < threads; ++i)
        workers.start([mine = job] { mine->work(); });
}

void LivePicture::take() {
    last = {job->order(), jobRevision};
    picture = job->picture();
    isLastCut = job->isCut();
    moving.order.list = nullptr;
    job.reset();
}

const QImage& LivePicture::finished(const PictureOrder& order) {
    if (isFinished(order))
        return picture;
    if (begin(order) && effortOf(order, worthSharing) >= worthSharing)
        help(Workers::count() - 1);
    job->work();
    job->wait();
    take();
    return picture;
}

void LivePicture::paintAtOnce(QPainter& painter, const PictureOrder& order) {
    const bool isMoving = moving.isFor(order);
    if (isFinished(order) || (!isMoving && effortOf(order, kMostAtOnce) < kMostAtOnce))
        return painter.drawImage(0, 0, finished(order));
    if (!isMoving) {
        sketchWhatIsOpen(order);
        finishLater(order);
    }
    const QRectF place = placeOfLast(order);
    if (place.size() == QSizeF(picture.size()) / order.ratio)
        painter.drawImage(place.topLeft().toPoint(), picture);
    else if (!place.isEmpty())
        painter.drawImage(place, picture);
    for (const Part& part : sketches)
        painter.drawImage(part.corner, part.image);
}

void LivePicture::finishLater(const PictureOrder& order) {
    begin(order);
    job->done = [this, mine = job.get()] {
        const auto show = [this, mine] {
            if (job.get() != mine)
                return;
            take();
            emit improved();
        };
        QMetaObject::invokeMethod(this, show, Qt::QueuedConnection);
    };
    help(Workers::count());
}

// Where the last picture belongs in another view; empty when it is of no use there.
QRectF LivePicture::placeOfLast(const PictureOrder& order) const {
    if (last.order.list != order.list || order.pen || last.order.ratio != order.ratio)
        return {};
    const View& view = last.order.view;
    const double stretch = order.view.scale() / view.scale();
    if (stretch > largestStretch || stretch < 1 / largestStretch)
        return {};
    const QPointF corner = order.view.toPixel(view.toDrawing({0, 0}));
    return {stretch == 1 ? QPointF(corner.toPoint()) : corner, QSizeF(view.size()) * stretch};
}

void LivePicture::sketchWhatIsOpen(const PictureOrder& order) {
    moving = {order, order.list->revision()};
    const QRectF place = placeOfLast(order);
    const QRect covered(QPoint(int(std::ceil(place.left())), int(std::ceil(place.top()))),
                        QPoint(int(std::floor(place.right())) - 1, int(std::floor(place.bottom())) - 1));
    sketches.clear();
    for (const QRect& open : QRegion(order.window()).subtracted(place.isEmpty() ? QRect() : covered)) {
        QImage image((QSizeF(open.size()) * order.ratio).toSize().expandedTo({1, 1}), order.format());
        image.setDevicePixelRatio(order.ratio);
        image.fill(order.ground());
        Sketch(image, order, open.topLeft()).draw();
        sketches.push_back({open.topLeft(), std::move(image)});
    }
}

} // namespace standin

#include "moc_live_picture.cpp"
