// The picture of a drawing in a window. What takes long is painted beside the thread of the interface; until
// then the last picture is shown where it belongs now, and a sketch where it has nothing to show.
#pragma once

#include "standin/display/picture_job.h"
#include "standin/display/workers.h"

#include <QObject>

namespace standin {

class LivePicture : public QObject, private ListReader {
    Q_OBJECT
public:
    LivePicture() = default;
    ~LivePicture() override;

    // The finished picture, however long it takes.
    const QImage& finished(const PictureOrder& order);
    // Paints what can be shown without a wait. When that is not the finished picture, `improved` follows.
    void paintAtOnce(QPainter& painter, const PictureOrder& order);
    bool isFinished(const PictureOrder& order) const { return last.isFor(order); }
    // Whether the finished picture leaves something out that would take too long.
    bool isCut() const { return isLastCut; }
    void forget(); // the last picture is of no use for what comes next
    // More work than this is not waited for, as a number of lines.
    static constexpr std::size_t kMostAtOnce = 2500;

signals:
    void improved(); // the finished picture is there

private:
    // An order, and the revision of its list when it was carried out.
    struct Carried {
        PictureOrder order; // without a list when there is none
        std::uint64_t revision = 0;
        bool isFor(const PictureOrder& other) const;
    };
    struct Part {
        QPoint corner; // in the view
        QImage image;
    };
    void leave() override;
    void read(const DisplayList& list);
    bool begin(const PictureOrder& order);
    void help(int threads);
    void take();
    void drop();
    QRectF placeOfLast(const PictureOrder& order) const;
    void sketchWhatIsOpen(const PictureOrder& order);
    void finishLater(const PictureOrder& order);

    Carried last; // that was finished
    QImage picture;
    bool isLastCut = false;
    Carried moving; // what is shown in its place: the last picture where it belongs now, and these
    std::vector<Part> sketches;
    std::shared_ptr<PictureJob> job;                    // that goes on; null when none does
    std::vector<std::shared_ptr<PictureJob>> cancelled; // may still be about to end
    std::uint64_t jobRevision = 0;                      // of the list
    const DisplayList* reading = nullptr;
    Workers workers;
};

} // namespace standin
