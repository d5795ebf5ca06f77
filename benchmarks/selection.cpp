// Selecting and listing many objects. SELECT All of 200,000 objects ("worst_ms", limit 300) and of half as
// many stands beside a plain loop that opens them and puts them into a set; the picture of what is selected,
// of long lines, beside the picture of the same lines; LIST of objects of many large groups beside a plain
// loop that opens them and makes a line of text for each. "ratio" compares the two within one run, "growth"
// is the time for twice as much (limit 2.6). All figures are processor time of the thread that works.
#include "benchmarks/run.h"
#include "benchmarks/timing.h"
#include "sdk/db/block_table.h"
#include "sdk/db/curves.h"
#include "sdk/db/dictionary.h"
#include "sdk/db/group.h"
#include "standin/console/console.h"
#include "standin/display/marks_image.h"
#include "standin/selection/editor_selection.h"
#include "tests/support/plain_picture.h"
#include "workbench/commands/object_text.h"

#include <benchmark/benchmark.h>
#include <unordered_set>

namespace {

using namespace standin;

const QSize window(1600, 1000);
const double side = 10000; // of the drawing

OdDbObjectIdArray idsOf(const OdDbDatabasePtr& drawing) {
    return odrxCast<OdDbBlockTableRecord>(drawing->getModelSpaceId().safeOpenObject())->entityIds();
}

// From one side of the drawing to the other.
OdDbDatabasePtr drawingOfLines(int count) {
    const OdDbDatabasePtr drawing = OdDbDatabase::createEmpty();
    const auto space =
        odrxCast<OdDbBlockTableRecord>(drawing->getModelSpaceId().safeOpenObject(OdDb::kForWrite));
    for (int i = 0; i < count; ++i) {
        const OdDbLinePtr line(new OdDbLine);
        const double from = side * (i * 7919 % count) / count, to = side * (i * 104729 % count) / count;
        line->setStartPoint(i % 2 == 0 ? OdGePoint3d(from, 0, 0) : OdGePoint3d(0, from, 0));
        line->setEndPoint(i % 2 == 0 ? OdGePoint3d(to, side, 0) : OdGePoint3d(side, to, 0));
        space->appendOdDbEntity(line.get());
    }
    return drawing;
}

std::size_t plainWalk(const OdDbDatabasePtr& drawing) {
    std::unordered_set<OdDbObjectId> taken;
    for (const OdDbObjectId& id : idsOf(drawing))
        if (!odrxQuery<OdDbEntity>(id.openObject().get()).isNull())
            taken.insert(id);
    return taken.size();
}

void selectAll(const OdDbDatabasePtr& drawing) {
    Console console;
    EditorSelection editor(drawing, console);
    console.enterLine("All");
    console.enterLine("");
    hostSelectionSetPtr set;
    editor.selectObjects(&set, 0, L"Select objects:", nullptr, 0, 0, 0, 0, 0);
    if (set.isNull() || static_cast<std::size_t>(set->count()) != idsOf(drawing).size())
        std::abort();
}

// With a list that is told of each highlighted object, as in the window.
void selectEverything(benchmark::State& state) {
    const OdDbDatabasePtr half = drawingOfLines(static_cast<int>(state.range(0)) / 2);
    const OdDbDatabasePtr whole = drawingOfLines(static_cast<int>(state.range(0)));
    DisplayList halfList(half), wholeList(whole);
    halfList.refresh();
    wholeList.refresh();
    timing::Turns selecting, selectingHalf, plain;
    double worst = 0;
    for (auto _ : state) {
        selecting.add(timing::secondsOf([&] { selectAll(whole); }));
        selectingHalf.add(timing::secondsOf([&] { selectAll(half); }));
        plain.add(timing::secondsOf([&] { benchmark::DoNotOptimize(plainWalk(whole)); }));
        worst = std::max(worst, selecting.last());
    }
    state.counters["worst_ms"] = 1e3 * worst;
    state.counters["ratio"] = selecting.ratioTo(plain);
    state.counters["growth"] = selecting.ratioTo(selectingHalf);
}
BENCHMARK(selectEverything)->Arg(200000)->Iterations(7)->Unit(benchmark::kMillisecond);

struct MarkedLines {
    explicit MarkedLines(int count) : drawing(drawingOfLines(count)), list(drawing) {
        list.refresh();
        scene.list = &list;
        scene.view.resize(window);
        scene.view.fit(list.extents());
        MarksImage image;
        image.setPen(QPen(Qt::cyan, 2, Qt::SolidLine, Qt::RoundCap));
        marks = image.orderOf(idsOf(drawing), scene);
    }
    OdDbDatabasePtr drawing;
    DisplayList list;
    PictureOrder scene, marks;
};

void markLongLines(benchmark::State& state) {
    MarkedLines half(static_cast<int>(state.range(0)) / 2), whole(static_cast<int>(state.range(0)));
    timing::Turns marking, markingHalf, plain;
    for (auto _ : state) {
        marking.add(timing::secondsOf([&] { plainPicture(whole.marks); }));
        markingHalf.add(timing::secondsOf([&] { plainPicture(half.marks); }));
        plain.add(timing::secondsOf([&] { plainPicture(whole.scene); }));
    }
    state.counters["picture_ms"] = 1e3 * marking.fastest();
    state.counters["ratio"] = marking.ratioTo(plain);
    state.counters["growth"] = marking.ratioTo(markingHalf);
}
BENCHMARK(markLongLines)->Arg(20000)->Iterations(3)->Unit(benchmark::kMillisecond);

// Each object is in as many groups as it takes for groups of a tenth of all.
OdDbDatabasePtr drawingOfGroups(int objects, int groups) {
    const OdDbDatabasePtr drawing = drawingOfLines(objects);
    const OdDbObjectIdArray ids = idsOf(drawing);
    const auto dictionary =
        odrxCast<OdDbDictionary>(drawing->getGroupDictionaryId(true).safeOpenObject(OdDb::kForWrite));
    const std::size_t size = ids.size() / 10;
    for (int i = 0; i < groups; ++i) {
        const OdDbGroupPtr group(new OdDbGroup);
        dictionary->setAt(L"G" + std::to_wstring(i), group.get());
        OdDbObjectIdArray members;
        for (std::size_t member = 0; member < size; ++member)
            members.push_back(ids[(static_cast<std::size_t>(i) * 37 + member * 3) % ids.size()]);
        group->append(members);
    }
    return drawing;
}

std::size_t listed(const OdDbDatabasePtr& drawing) {
    const OdDbObjectIdArray ids = idsOf(drawing);
    const workbench::GroupNames groups(*drawing, ids);
    std::size_t lines = 0;
    for (const OdDbObjectId& id : ids)
        lines += static_cast<std::size_t>(workbench::objectText(id, groups).size());
    return lines;
}

// The text without the groups, and a walk through their members.
std::size_t plainlyListed(const OdDbDatabasePtr& drawing) {
    const OdDbDatabasePtr nothing = OdDbDatabase::createEmpty();
    const workbench::GroupNames none(*nothing, {});
    std::size_t lines = 0;
    for (const OdDbObjectId& id : idsOf(drawing))
        lines += static_cast<std::size_t>(workbench::objectText(id, none).size());
    const auto groups = odrxCast<OdDbDictionary>(drawing->getGroupDictionaryId().safeOpenObject());
    OdDbObjectIdArray members;
    QString names;
    for (const auto it = groups->newIterator(); !it->done(); it->next()) {
        odrxCast<OdDbGroup>(it->getObject())->allEntityIds(members);
        for (std::size_t i = 0; i < members.size(); ++i)
            names += QStringLiteral("G123, ");
    }
    return lines + static_cast<std::size_t>(names.size());
}

void listObjectsOfGroups(benchmark::State& state) {
    const int objects = static_cast<int>(state.range(0)), groups = static_cast<int>(state.range(1));
    const OdDbDatabasePtr half = drawingOfGroups(objects / 2, groups),
                          whole = drawingOfGroups(objects, groups);
    timing::Turns listing, listingHalf, plain;
    for (auto _ : state) {
        listing.add(timing::secondsOf([&] { benchmark::DoNotOptimize(listed(whole)); }));
        listingHalf.add(timing::secondsOf([&] { benchmark::DoNotOptimize(listed(half)); }));
        plain.add(timing::secondsOf([&] { benchmark::DoNotOptimize(plainlyListed(whole)); }));
    }
    state.counters["list_ms"] = 1e3 * listing.fastest();
    state.counters["ratio"] = listing.ratioTo(plain);
    state.counters["growth"] = listing.ratioTo(listingHalf);
}
BENCHMARK(listObjectsOfGroups)->Args({20000, 500})->Iterations(5)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) { return runBenchmarks(argc, argv); }
