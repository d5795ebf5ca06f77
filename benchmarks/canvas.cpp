// A drawing of 200,000 mixed entities on the canvas, 1600 by 1000 pixels: from the parsed file to the first
// picture ("show_ms", limit 2000), the same zoomed in, picking at the worst of many places ("worst_ms", limit
// 50), a click that takes the group of what lies there ("worst_ms", limit 50), and a reference of it all that
// follows the cursor ("worst_ms", limit 33 for 30 pictures a second). Beside that, at every zoom and for
// 1,000,000 entities too: a frame while the view moves (limit 0.15 of what one plain painter takes for the
// same view) and the finished picture (limit 0.7). All figures are processor time of the thread that works.
#include "benchmarks/run.h"
#include "benchmarks/timing.h"
#include "sdk/db/block_reference.h"
#include "sdk/db/block_table.h"
#include "sdk/db/dictionary.h"
#include "sdk/db/group.h"
#include "standin/console/console.h"
#include "standin/display/marks_image.h"
#include "standin/display/picking.h"
#include "standin/display/tracker_picture.h"
#include "standin/selection/editor_selection.h"
#include "tests/support/mixed_drawing.h"
#include "tests/support/plain_picture.h"
#include "tests/support/shown_reference.h"

#include <QPainter>
#include <benchmark/benchmark.h>
#include <cmath>
#include <thread>

namespace {

using namespace standin;

const int entityCount = 200000;
const QSize window(1600, 1000);
const double ratio = 1; // of device pixels

template <class Work> double millisecondsOf(Work work) { return timing::secondsOf(work) * 1e3; }

const std::string& largeBytes() {
    static const std::string bytes = mixedDrawing(entityCount)->writeBytes();
    return bytes;
}

View fitted(const DisplayList& list) {
    View view;
    view.resize(window);
    view.fit(list.extents());
    return view;
}

PictureOrder orderOf(const DisplayList& list, const View& view) {
    PictureOrder order;
    order.list = &list;
    order.view = view;
    order.ratio = ratio;
    return order;
}

void showAll(benchmark::State& state) {
    double slowest = 0;
    for (auto _ : state) {
        const OdDbDatabasePtr drawing = OdDbDatabase::readBytes(largeBytes());
        const double time = millisecondsOf([&] {
            DisplayList list(drawing);
            list.refresh();
            plainPicture(orderOf(list, fitted(list)));
        });
        state.SetIterationTime(time / 1e3);
        slowest = std::max(slowest, time);
    }
    state.counters["show_ms"] = slowest;
}
BENCHMARK(showAll)->Iterations(3)->UseManualTime()->Unit(benchmark::kMillisecond);

// A list that is ready, as while the user looks around.
struct Shown {
    explicit Shown(const OdDbDatabasePtr& drawing = OdDbDatabase::readBytes(largeBytes())) : list(drawing) {
        list.refresh();
        view = fitted(list);
    }
    PictureOrder order() const { return orderOf(list, view); }
    DisplayList list;
    View view;
};

Shown& shownOf(std::int64_t count) {
    static std::int64_t present = 0;
    static std::unique_ptr<Shown> shown;
    if (present != count)
        shown = std::make_unique<Shown>(mixedDrawing(static_cast<int>(count)));
    present = count;
    shown->view = fitted(shown->list);
    return *shown;
}

// Where the middle of the drawing is full of objects.
Shown& shownAt(const benchmark::State& state) {
    Shown& shown = shownOf(state.range(0));
    shown.view.zoomAt({800, 500}, std::pow(2, state.range(1)));
    return shown;
}

// range(0): objects; range(1): how many times the view is zoomed in by 2. A frame while the view is moved and
// zoomed, until it is on the screen, as a part of what the plain painter takes for the same view.
void movingFrame(benchmark::State& state) {
    Shown& shown = shownAt(state);
    LivePicture picture;
    picture.finished(shown.order());
    QImage screen(window, QImage::Format_RGB32);
    timing::Turns frames, plain;
    double slowest = 0;
    int step = 0;
    for (auto _ : state) {
        ++step;
        if (step % 3 == 0)
            shown.view.zoomAt({700, 400}, step % 2 ? 1.25 : 0.8);
        else
            shown.view.panBy(QPointF(37, -23));
        frames.add(timing::secondsOf([&] {
            QPainter painter(&screen);
            picture.paintAtOnce(painter, shown.order());
        }));
        plain.add(timing::secondsOf([&] { plainPicture(shown.order()); }));
        slowest = std::max(slowest, frames.last() / plain.last());
    }
    state.counters["frame_ms"] = 1e3 * frames.fastest();
    state.counters["plain_ms"] = 1e3 * plain.fastest();
    state.counters["ratio"] = frames.ratioTo(plain);
    state.counters["worst_ratio"] = slowest;
}

// The finished picture, by two threads, as a part of the same: what the busier of them takes, which is the
// time until it is there on a machine that has nothing else to do.
void finishedPicture(benchmark::State& state) {
    const Shown& shown = shownAt(state);
    timing::Turns painted, plain;
    QImage picture, expected;
    for (auto _ : state) {
        PictureJob job(shown.order());
        double seconds[2];
        std::thread helper([&] { seconds[0] = timing::secondsOf([&] { job.work(); }); });
        seconds[1] = timing::secondsOf([&] { job.work(); });
        helper.join();
        painted.add(std::max(seconds[0], seconds[1]));
        plain.add(timing::secondsOf([&] { expected = plainPicture(shown.order()); }));
        picture = job.picture();
    }
    if (picture != expected)
        state.SkipWithError("the picture is not that of the plain painter");
    state.counters["picture_ms"] = 1e3 * painted.fastest();
    state.counters["plain_ms"] = 1e3 * plain.fastest();
    state.counters["ratio"] = painted.ratioTo(plain);
    state.counters["fastest_ratio"] = painted.fastest() / plain.fastest();
}

void everyZoom(benchmark::internal::Benchmark* bench) {
    for (const int count : {200000, 1000000})
        for (int zoom = 0; zoom <= 8; ++zoom)
            bench->Args({count, zoom});
    bench->Iterations(9)->Unit(benchmark::kMillisecond);
}
BENCHMARK(movingFrame)->Apply(everyZoom);
BENCHMARK(finishedPicture)->Apply(everyZoom);

// The frame in which a group of so many members is highlighted for the first time, as a part of what the
// plain painter takes for a frame of the drawing.
void highlight(benchmark::State& state) {
    Shown& shown = shownOf(entityCount);
    const auto space =
        odrxCast<OdDbBlockTableRecord>(shown.list.database().getModelSpaceId().safeOpenObject());
    OdDbObjectIdArray members = space->entityIds();
    members.resize(static_cast<std::size_t>(state.range(0)));
    MarksImage marks;
    marks.setPen(QPen(Qt::cyan, 2, Qt::SolidLine, Qt::RoundCap));
    QImage screen(window, QImage::Format_RGB32);
    timing::Turns frames, plain;
    for (auto _ : state) {
        marks.forget();
        marks.forgetMarks();
        frames.add(timing::secondsOf([&] {
            QPainter painter(&screen);
            marks.paintAtOnce(painter, marks.orderOf(members, shown.order()));
        }));
        plain.add(timing::secondsOf([&] { plainPicture(shown.order()); }));
    }
    state.counters["frame_ms"] = 1e3 * frames.fastest();
    state.counters["ratio"] = frames.ratioTo(plain);
}
BENCHMARK(highlight)->Arg(20000)->Arg(200000)->Iterations(9)->Unit(benchmark::kMillisecond);

// Somewhere else in the window for each number.
QPointF placeOf(const View& view, int number) {
    return view.toDrawing({std::fmod(number * 97.3, 1600), std::fmod(number * 61.7, 1000)});
}

void pick(benchmark::State& state) {
    Shown shown;
    for (int i = 0; i < state.range(0); ++i)
        shown.view.zoomAt({800, 500}, 4);
    double slowest = 0;
    int number = 0, found = 0;
    const double scale = shown.view.scale();
    for (auto _ : state) {
        const QPointF at = placeOf(shown.view, ++number);
        const double time =
            millisecondsOf([&] { found += !itemAt(shown.list, at, 4 / scale, scale).isNull(); });
        slowest = std::max(slowest, time);
    }
    if (found == 0)
        state.SkipWithError("nothing was found anywhere");
    state.counters["worst_ms"] = slowest;
}
BENCHMARK(pick)->Arg(0)->Arg(2)->Iterations(500)->Unit(benchmark::kMillisecond);

// The whole drawing in groups of so many members.
std::string bytesInGroupsOf(int members) {
    const OdDbDatabasePtr drawing = OdDbDatabase::readBytes(largeBytes());
    const auto groups =
        odrxCast<OdDbDictionary>(drawing->getGroupDictionaryId(true).safeOpenObject(OdDb::kForWrite));
    const auto space = odrxCast<OdDbBlockTableRecord>(drawing->getModelSpaceId().safeOpenObject());
    const OdDbObjectIdArray ids = space->entityIds();
    for (auto from = ids.begin(); from < ids.end(); from += members) {
        const OdDbGroupPtr group(new OdDbGroup);
        groups->setAt(OdString(L"G") + std::to_wstring(from - ids.begin()).c_str(), group.get());
        group->append(OdDbObjectIdArray(from, from + members));
    }
    return drawing->writeBytes();
}

// A document's selection that finds its objects as the canvas does.
struct Clicked : Shown {
    explicit Clicked(const std::string& bytes) : Shown(OdDbDatabase::readBytes(bytes)) {
        selection.objectsAt = [this](const OdGePoint3d& point) {
            const double scale = view.scale();
            const OdDbObjectId found = itemAt(list, {point.x, point.y}, 4 / scale, scale);
            return found.isNull() ? OdDbObjectIdArray() : OdDbObjectIdArray{found};
        };
    }
    std::size_t click(const QPointF& at) {
        const OdDbObjectIdArray found = selection.pickedAt({at.x(), at.y(), 0});
        selection.add(found);
        return found.size();
    }
    Console console;
    EditorSelection selection{OdDbDatabasePtr(&list.database()), console};
};

// range(0): members of a group; a click that hits an object takes a whole group.
void click(benchmark::State& state) {
    Clicked clicked(bytesInGroupsOf(static_cast<int>(state.range(0))));
    const auto whole = static_cast<std::size_t>(state.range(0));
    double slowest = 0;
    int number = 0, hits = 0;
    for (auto _ : state) {
        clicked.selection.clearSelection();
        std::size_t found = 0;
        const double time = millisecondsOf([&] { found = clicked.click(placeOf(clicked.view, ++number)); });
        if (found != 0 && found != whole)
            return state.SkipWithError("a click took something else than a group");
        hits += found == whole;
        slowest = std::max(slowest, time);
    }
    if (hits == 0)
        state.SkipWithError("nothing was found anywhere");
    state.counters["worst_ms"] = slowest;
}
BENCHMARK(click)->Arg(10)->Arg(1000)->Iterations(500)->Unit(benchmark::kMillisecond);

// Everything is in one block, whose reference is placed, picked and turned.
struct Placed {
    Placed() : drawing(OdDbDatabase::readBytes(largeBytes())), reference(new OdDbBlockReference) {
        reference->setBlockTableRecord(drawing->getModelSpaceId());
    }
    OdDbDatabasePtr drawing;
    OdDbBlockReferencePtr reference;
};

// range(0): 0 moves the reference, 1 turns it.
void follow(benchmark::State& state) {
    Placed placed;
    ShownReference tracker(placed.reference);
    OpenPrompt prompt;
    prompt.kind = state.range(0) == 0 ? OpenPrompt::Point : OpenPrompt::Angle;
    prompt.tracker = &tracker;
    if (state.range(0) == 1)
        prompt.base = OdGePoint3d(2500, 1600, 0);
    View view;
    view.resize(window);
    view.fit({0, 0, 5000, 3200});
    QPixmap screen(window);
    QPainter painter(&screen);
    const double start = timing::cpuSeconds();
    TrackerPicture picture(prompt, placed.drawing);
    picture.paint(painter, view, Qt::white);
    const double first = (timing::cpuSeconds() - start) * 1e3;
    double slowest = 0;
    int step = 0;
    for (auto _ : state) {
        ++step;
        const double time = millisecondsOf([&] {
            picture.setCursor(QPointF(2500 + 40 * (step % 20), 1600 + 25 * (step % 13)));
            picture.paint(painter, view, Qt::white);
        });
        slowest = std::max(slowest, time);
    }
    state.counters["first_ms"] = first;
    state.counters["worst_ms"] = slowest;
}
BENCHMARK(follow)->Arg(0)->Arg(1)->Iterations(100)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) { return runBenchmarks(argc, argv); }
