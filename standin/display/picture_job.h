// One picture that several threads paint together. Each takes one band of its rows after the other, and puts
// there what a painter of the whole picture would, pixel for pixel.
#pragma once

#include "standin/display/picture_budget.h"

#include <QImage>
#include <atomic>
#include <condition_variable>
#include <functional>
#include <mutex>

namespace standin {

class PictureJob {
public:
    explicit PictureJob(PictureOrder order);

    const PictureOrder& order() const { return wanted; }
    // Paints bands until none is left; for any number of threads at once.
    void work();
    void cancel() { isCancelled = true; } // what is being painted is left where it is
    void wait();                          // until nobody works any more
    bool isDone() const { return bandsDone == bandCount; }
    // Whether the budget of the order was too small for all that there is to paint.
    bool isCut() const { return cutAt.item; }
    // The whole picture once it is done.
    const QImage& picture() const { return image; }
    // In the thread that paints the last band.
    std::function<void()> done;

private:
    struct Band {
        int top, bottom; // rows of pixels of the view
    };
    void paintBands();
    void plan();
    PictureEnd findEnd() const;
    std::vector<int> cuts(std::size_t wantedBands) const;
    std::size_t usefulBands() const;
    int rowStep() const;
    void paint(const Band& band);
    std::vector<const Item*> itemsOf(const Band& band) const;
    void prepare(QPainter& painter, const Band& band) const;

    const PictureOrder wanted;
    std::once_flag planned;
    QImage image;
    std::vector<const Item*> all; // in the picture; only some when there are too many for smooth edges
    bool isSmooth = true;
    PictureEnd cutAt;
    std::vector<Band> bands;
    std::atomic<std::size_t> nextBand{0}, bandsDone{0}, bandCount{1};
    std::atomic<bool> isCancelled{false};
    std::mutex mutex;
    std::condition_variable left;
    int workersInside = 0;
};

} // namespace standin
