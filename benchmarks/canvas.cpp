// A drawing of 200,000 mixed entities on the canvas, 1600 by 1000 pixels: from the parsed file to the first
// picture ("show_ms", limit 2000), the same zoomed in, picking at the worst of many places ("worst_ms", limit
// 50), a click that takes the group of what lies there ("worst_ms", limit 50), and a reference of it all that
// follows the cursor ("worst_ms", limit 33 for 30 pictures a second). All figures are processor time of the
// one thread that works.
#include "benchmarks/run.h"
#include "benchmarks/timing.h"
#include "sdk/db/block_reference.h"
#include "sdk/db/block_table.h"
#include "sdk/db/curves.h"
#include "sdk/db/dictionary.h"
#include "sdk/db/group.h"
#include "sdk/db/polyline.h"
#include "sdk/db/text.h"
#include "standin/console/console.h"
#include "standin/display/picking.h"
#include "standin/display/scene_image.h"
#include "standin/display/tracker_picture.h"
#include "standin/selection/editor_selection.h"
#include "tests/support/shown_reference.h"

#include <QPainter>
#include <benchmark/benchmark.h>
#include <cmath>

namespace {

using namespace standin;

const int entityCount = 200000;
const int columns = 500;
const QSize window(1600, 1000);
const double ratio = 1; // of device pixels

template <class Work> double millisecondsOf(Work work) { return timing::secondsOf(work) * 1e3; }

OdSmartPtr<OdDbEntity> polylineAt(const OdGePoint3d& place) {
    const OdDbPolylinePtr polyline(new OdDbPolyline);
    const auto corner = [&](double x, double y) { return OdGePoint3d(place.x + x, place.y + y, 0); };
    polyline->setVertices({{corner(0, 0), 0}, {corner(6, 0), 0.5}, {corner(6, 5), 0}, {corner(0, 5), -0.4}});
    polyline->setClosed(true);
    return polyline;
}

// Half of them lines, then circles, polylines with bulges, arcs and texts.
OdDbEntityPtr entityAt(int number) {
    const OdGePoint3d place(number % columns * 10.0, number / columns * 8.0, 0);
    const int kind = number % 20;
    if (kind < 10) {
        const OdDbLinePtr line(new OdDbLine);
        line->setStartPoint(place);
        line->setEndPoint({place.x + 9, place.y + 7, 0});
        return line;
    }
    if (kind < 14) {
        const OdDbCirclePtr circle(new OdDbCircle);
        circle->setCenter(place);
        circle->setRadius(3 + number % 3);
        return circle;
    }
    if (kind < 17)
        return polylineAt(place);
    if (kind < 19) {
        const OdDbArcPtr arc(new OdDbArc);
        arc->setCenter(place);
        arc->setRadius(4);
        arc->setEndAngle(2);
        return arc;
    }
    const OdDbTextPtr text(new OdDbText);
    text->setPosition(place);
    text->setHeight(2.5);
    text->setTextString(OdString(L"No. ") + std::to_wstring(number % 1000).c_str());
    return text;
}

std::string largeDrawing(int count) {
    const OdDbDatabasePtr drawing = OdDbDatabase::createEmpty();
    const auto space =
        odrxCast<OdDbBlockTableRecord>(drawing->getModelSpaceId().safeOpenObject(OdDb::kForWrite));
    for (int i = 0; i < count; ++i) {
        const OdDbEntityPtr entity = entityAt(i);
        entity->setColorIndex(i % 7 + 1);
        space->appendOdDbEntity(entity.get());
    }
    return drawing->writeBytes();
}

const std::string& largeBytes() {
    static const std::string bytes = largeDrawing(entityCount);
    return bytes;
}

View fitted(const DisplayList& list) {
    View view;
    view.resize(window);
    view.fit(list.extents());
    return view;
}

void showAll(benchmark::State& state) {
    double slowest = 0;
    for (auto _ : state) {
        const OdDbDatabasePtr drawing = OdDbDatabase::readBytes(largeBytes());
        const double time = millisecondsOf([&] {
            DisplayList list(drawing);
            list.refresh();
            SceneImage().of(list, fitted(list), ratio);
        });
        state.SetIterationTime(time / 1e3);
        slowest = std::max(slowest, time);
    }
    state.counters["show_ms"] = slowest;
}
BENCHMARK(showAll)->Iterations(3)->UseManualTime()->Unit(benchmark::kMillisecond);

// A list that is ready, as while the user looks around.
struct Shown {
    explicit Shown(const std::string& bytes = largeBytes()) : list(OdDbDatabase::readBytes(bytes)) {
        list.refresh();
        view = fitted(list);
    }
    DisplayList list;
    View view;
};

// range(0): how many times the view is zoomed in by 4.
void paintView(benchmark::State& state) {
    Shown shown;
    for (int i = 0; i < state.range(0); ++i)
        shown.view.zoomAt({800, 500}, 4);
    SceneImage scene;
    for (auto _ : state) {
        scene.forget();
        scene.of(shown.list, shown.view, ratio);
    }
}
BENCHMARK(paintView)->Arg(0)->Arg(1)->Arg(2)->Arg(3)->Unit(benchmark::kMillisecond);

void pan(benchmark::State& state) {
    Shown shown;
    SceneImage scene;
    scene.of(shown.list, shown.view, ratio);
    int step = 7;
    for (auto _ : state) {
        shown.view.panBy(QPointF(step, step / 2));
        scene.of(shown.list, shown.view, ratio);
        step = -step;
    }
}
BENCHMARK(pan)->Unit(benchmark::kMillisecond);

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
    explicit Clicked(const std::string& bytes) : Shown(bytes) {
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
