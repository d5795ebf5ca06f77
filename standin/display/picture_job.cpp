#include "standin/display/picture_job.h"

#include "standin/display/item_painter.h"
#include "standin/display/workers.h"

#include <algorithm>
#include <cmath>
#include <new>

namespace standin {

namespace {

const double rowsAround = 6;   // half the thickest line reaches so far into the next band, and a little more
const int coarsestStep = 4;    // rows; with it bands end at whole device pixels at the usual ratios
const double itemsToABand = 8; // of the usual height: what crosses the border of a band is painted twice
const std::size_t mostBands = 12;   // for each thread
const std::size_t worthSharing = 8; // items

} // namespace

PictureJob::PictureJob(PictureOrder order) : wanted(std::move(order)) {}

// A thread that comes after the job was cancelled looks at nothing.
void PictureJob::work() {
    {
        const std::lock_guard<std::mutex> lock(mutex);
        ++workersInside;
    }
    try {
        paintBands();
    } catch (const std::bad_alloc&) {
        isCancelled = true;
    }
    const std::lock_guard<std::mutex> lock(mutex);
    --workersInside;
    left.notify_all();
}

void PictureJob::paintBands() {
    if (isCancelled)
        return;
    std::call_once(planned, [this] { plan(); });
    for (std::size_t band = nextBand++; band < bandCount && !isCancelled; band = nextBand++) {
        paint(bands[band]);
        if (!isCancelled && ++bandsDone == bandCount && done)
            done();
    }
}

void PictureJob::wait() {
    std::unique_lock<std::mutex> lock(mutex);
    left.wait(lock, [this] { return workersInside == 0; });
}

void PictureJob::plan() {
    const QSize pixels = wanted.view.size() * wanted.ratio;
    image = QImage(pixels, wanted.format());
    image.setDevicePixelRatio(wanted.ratio);
    const std::size_t most = wanted.mostSmooth();
    all = standin::itemsOf(wanted, most + 1);
    isSmooth = all.size() <= most;
    if (isSmooth)
        std::sort(all.begin(), all.end());
    cutAt = findEnd();
    int top = 0;
    for (const int bottom : cuts(usefulBands())) {
        bands.push_back({top, bottom});
        top = bottom;
    }
    bandCount = bands.size();
}

// The items are looked at closely only where a quick look does not show that they are cheap enough.
PictureEnd PictureJob::findEnd() const {
    double most = 0;
    const auto isCheap = [&](const Item& item) {
        most += mostCostOf(item, wanted);
        return most <= wanted.budget;
    };
    if (isSmooth && std::all_of(all.begin(), all.end(), [&](const Item* item) { return isCheap(*item); }))
        return {};
    if (!isSmooth)
        visitItems(wanted, isCheap);
    if (most <= wanted.budget)
        return {};
    std::vector<const Item*> items = isSmooth ? all : standin::itemsOf(wanted, wanted.list->size());
    std::sort(items.begin(), items.end());
    return endOf(items, wanted);
}

// So many rows make whole device pixels; 0 when no number of rows does.
int PictureJob::rowStep() const {
    const double pixels = coarsestStep * wanted.ratio;
    return pixels == std::round(pixels) ? coarsestStep : 0;
}

std::size_t PictureJob::usefulBands() const {
    const auto threads = static_cast<std::size_t>(Workers::count());
    if (rowStep() == 0 || all.size() < worthSharing)
        return 1;
    const double rows = wanted.view.size().height();
    double heights = 0;
    for (const Item* item : all)
        heights += std::min(rows, item->box.height() * wanted.view.scale());
    const double usual = heights / static_cast<double>(all.size()) + rowsAround;
    const auto fitting = static_cast<std::size_t>(rows / (itemsToABand * usual));
    return std::clamp(fitting, threads, mostBands * threads);
}

// Where the bands end, so that each is about as much work as the others, as far as that is known.
std::vector<int> PictureJob::cuts(std::size_t count) const {
    const int rows = wanted.view.size().height(), step = std::max(1, rowStep());
    std::vector<double> work(static_cast<std::size_t>(rows / step) + 1, 1.0);
    for (std::size_t i = 0; i < all.size() && isSmooth; ++i) {
        const Item* item = all[i];
        const double middle = wanted.view.toPixel(item->box.center()).y();
        work[static_cast<std::size_t>(std::clamp(middle, 0.0, rows - 1.0) / step)] +=
            static_cast<double>(effortOf(*item));
    }
    double total = 0;
    for (const double part : work)
        total += part;
    std::vector<int> ends;
    double before = 0;
    for (std::size_t i = 0; i + 1 < work.size() && ends.size() + 1 < count; ++i) {
        before += work[i];
        const int end = static_cast<int>(i + 1) * step;
        if (before >= total * static_cast<double>(ends.size() + 1) / static_cast<double>(count) && end < rows)
            ends.push_back(end);
    }
    ends.push_back(rows);
    return ends;
}

// What may be painted into the band of all that is in the picture.
std::vector<const Item*> PictureJob::itemsOf(const Band& band) const {
    const double unit = 1 / wanted.view.scale(), rows = wanted.view.size().height();
    const auto inUnits = [&](const Reach& reach) { return (reach.pixels + reach.ofWindow * rows) * unit; };
    const Box part = wanted.boxOfRows(band.top, band.bottom, rowsAround), box = wanted.box();
    std::vector<const Item*> items;
    const auto take = [&](const Item& item) {
        const Box painted = item.box.grown(item.reach.units + inUnits(item.reach));
        if (item.box.intersects(box) && painted.intersects(part))
            items.push_back(&item);
        return !isCancelled;
    };
    if (!isSmooth && !wanted.only) {
        wanted.list->visitPainted(part.grown(inUnits(wanted.list->reachOfMarks())), take);
    } else {
        for (const Item* item : isSmooth ? all : *wanted.only)
            take(*item);
    }
    if (!isSmooth)
        std::sort(items.begin(), items.end());
    return items;
}

void PictureJob::prepare(QPainter& painter, const Band& band) const {
    const QRect part(0, band.top, wanted.view.size().width(), band.bottom - band.top);
    painter.setClipRect(part); // of one band, too: only a picture with a clip gets its lines quickly
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(part, wanted.ground());
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.setRenderHint(QPainter::Antialiasing, isSmooth);
}

// Each thread has a picture of its own over the same pixels, as large as the whole, so that lines are cut off
// at the same places.
void PictureJob::paint(const Band& band) {
    QImage mine(const_cast<uchar*>(image.constBits()), image.width(), image.height(), image.bytesPerLine(),
                image.format());
    mine.setDevicePixelRatio(wanted.ratio);
    QPainter painter(&mine);
    prepare(painter, band);
    ItemPainter itemPainter(painter, wanted.view, wanted.foreground());
    itemPainter.stopAt(&isCancelled);
    itemPainter.paintOnly(wanted.boxOfRows(band.top, band.bottom, rowsAround));
    itemPainter.endAt(cutAt);
    if (wanted.pen)
        itemPainter.setPen(*wanted.pen);
    for (const Item* item : itemsOf(band))
        itemPainter.draw(*item);
}

} // namespace standin
