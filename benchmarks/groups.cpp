// The group commands over drawings of many groups and groups of many members. The dialog stands beside a bare
// table of the same rows; "ratio" compares the two within one run.
// The bare table is filled by plain calls; the dialog keeps its model from telling of each cell.
#include "benchmarks/run.h"
#include "benchmarks/timing.h"
#include "groups/command_line_from_selection.h"
#include "groups/dialog_parts.h"
#include "groups/group_dlg.h"
#include "groups/group_listing.h"
#include "groups/group_names.h"
#include "groups/highlight.h"
#include "groups/local_undo.h"
#include "host/text.h"
#include "sdk/db/block_table.h"
#include "sdk/db/curves.h"
#include "tests/support/fixture_host.h"
#include "tests/support/scripted_io.h"

#include <QHeaderView>
#include <QTableWidget>
#include <QVBoxLayout>
#include <benchmark/benchmark.h>

namespace {

OdDbDictionaryPtr groupsOf(const OdDbDatabasePtr& database) {
    return odrxCast<OdDbDictionary>(database->getGroupDictionaryId(true).safeOpenObject(OdDb::kForWrite));
}

OdDbObjectIdArray addLines(const OdDbDatabasePtr& database, int count) {
    const auto space =
        odrxCast<OdDbBlockTableRecord>(database->getModelSpaceId().safeOpenObject(OdDb::kForWrite));
    OdDbObjectIdArray ids;
    for (int i = 0; i < count; ++i)
        ids.push_back(space->appendOdDbEntity(OdDbLinePtr(new OdDbLine).get()));
    return ids;
}

OdDbDatabasePtr drawingOfGroups(int count, const std::wstring& prefix = L"Group") {
    const OdDbDatabasePtr database = OdDbDatabase::createEmpty();
    const OdDbObjectIdArray lines = addLines(database, 2);
    const OdDbDictionaryPtr dictionary = groupsOf(database);
    for (int i = 1; i <= count; ++i) {
        const OdDbGroupPtr group(new OdDbGroup);
        dictionary->setAt(prefix + std::to_wstring(i), group.get());
        group->append(lines);
    }
    return database;
}

// The same rows in the same table, from names that are at hand, filled in the same way.
void showBareTable(const std::vector<OdString>& names) {
    QDialog dialog;
    auto* const table = new QTableWidget(&dialog);
    group_dialogs::setUpTable(*table, {"Group name", "Selectable"});
    (new QVBoxLayout(&dialog))->addWidget(table);
    dialog.setFixedSize(380, 420);
    table->setRowCount(static_cast<int>(names.size()));
    table->verticalHeader()->setUpdatesEnabled(false);
    int row = 0;
    for (const OdString& name : names) {
        table->setItem(row, 0, new QTableWidgetItem(hostqt::qString(name)));
        table->setItem(row, 1, new QTableWidgetItem("Yes"));
        table->setRowHeight(row++, 22);
    }
    table->verticalHeader()->setUpdatesEnabled(true);
    dialog.show();
    QCoreApplication::processEvents();
}

void showDialog(const OdDbDatabasePtr& database) {
    GroupData data;
    CGroupDlg dialog(nullptr, database->getGroupDictionaryId(true), data);
    dialog.show();
    QCoreApplication::processEvents();
}

void openDialogOf(benchmark::State& state, const OdDbDatabasePtr& database) {
    std::vector<OdString> names;
    for (const auto entry = groupsOf(database)->newIterator(1); !entry->done(); entry->next())
        names.push_back(entry->name());
    timing::Turns bare, full;
    for (auto _ : state) {
        full.add(timing::secondsOf([&] { showDialog(database); }));
        state.PauseTiming();
        bare.add(timing::secondsOf([&] { showBareTable(names); }));
        state.ResumeTiming();
    }
    state.counters["ratio"] = full.ratioTo(bare);
}

void openDialog(benchmark::State& state) {
    const FixtureHost host;
    openDialogOf(state, drawingOfGroups(static_cast<int>(state.range(0))));
}
BENCHMARK(openDialog)->Arg(1000)->Arg(100000)->Unit(benchmark::kMillisecond);

// The groups are read from the file's tags each time, as nobody has changed them.
void openDialogOverAFile(benchmark::State& state) {
    const FixtureHost host;
    openDialogOf(state,
                 OdDbDatabase::readBytes(drawingOfGroups(static_cast<int>(state.range(0)))->writeBytes()));
}
BENCHMARK(openDialogOverAFile)->Arg(1000)->Arg(100000)->Unit(benchmark::kMillisecond);

// What Cancel takes back: ten new groups, ten new names, ten descriptions, ten exploded groups.
void cancelDialogRun(benchmark::State& state) {
    const FixtureHost host;
    const OdDbDatabasePtr database = drawingOfGroups(static_cast<int>(state.range(0)));
    const OdDbDictionaryPtr dictionary = groupsOf(database);
    const auto groupOf = [&](const wchar_t* prefix, int number) {
        return odrxCast<OdDbGroup>(dictionary->getAt(prefix + std::to_wstring(number), OdDb::kForWrite));
    };
    for (auto _ : state) {
        state.PauseTiming();
        HostLocalUndo undo(database);
        for (int i = 1; i <= 10; ++i) {
            dictionary->setAt(L"New" + std::to_wstring(i), OdDbGroupPtr(new OdDbGroup).get());
            groupOf(L"Group", i)->setName(L"Renamed" + std::to_wstring(i));
            groupOf(L"Group", i + 20)->setDescription(L"Described");
            groupOf(L"Group", i + 40)->erase(true);
        }
        state.ResumeTiming();
        undo.takeBack();
    }
}
BENCHMARK(cancelDialogRun)->Arg(1000)->Arg(100000)->Unit(benchmark::kMicrosecond);

void nextName(benchmark::State& state) {
    const FixtureHost host;
    const OdDbDatabasePtr database = drawingOfGroups(static_cast<int>(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(nextGroupName(database));
    state.SetComplexityN(state.range(0));
}
BENCHMARK(nextName)->Range(1000, 100000)->Complexity(benchmark::oN)->Unit(benchmark::kMillisecond);

void listAll(benchmark::State& state) {
    const FixtureHost host;
    const OdDbDatabasePtr database = drawingOfGroups(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        ScriptedIO io;
        io.answer(enter());
        HelpGroupName(io, database);
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(listAll)->Range(1000, 100000)->Complexity(benchmark::oN)->Unit(benchmark::kMillisecond);

void groupFromSelection(benchmark::State& state) {
    FixtureHost host;
    const OdDbDatabasePtr database = drawingOfGroups(static_cast<int>(state.range(0)), L"Table");
    const OdDbObjectIdArray lines = addLines(database, 10);
    ScriptedIO io;
    ScriptedSelection selection(io);
    FixtureDocument& document = host.openDocument(database);
    document.io = &io;
    document.editorSelection = &selection;
    for (auto _ : state) {
        state.PauseTiming();
        database->startUndoRecord();
        selection.select(lines);
        const auto command = Ref<CGroupCmd>::share(new CCommandLineGroupFromSelection);
        state.ResumeTiming();
        command->Run(nullptr);
    }
}
BENCHMARK(groupFromSelection)->Arg(1000)->Arg(100000)->Unit(benchmark::kMillisecond);

struct BigGroup {
    explicit BigGroup(int count)
        : database(OdDbDatabase::createEmpty()), members(addLines(database, count)), group(new OdDbGroup) {
        groupsOf(database)->setAt(L"BIG", group.get());
        group->append(members);
    }
    OdDbDatabasePtr database;
    OdDbObjectIdArray members;
    OdDbGroupPtr group;
};

void reverseMembers(benchmark::State& state) {
    BigGroup big(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        big.database->startUndoRecord();
        big.group->reverse();
    }
}
BENCHMARK(reverseMembers)->Arg(1000000)->Unit(benchmark::kMillisecond);

void transferMembers(benchmark::State& state) {
    BigGroup big(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        big.database->startUndoRecord();
        big.group->transfer(0, static_cast<unsigned>(state.range(0)) - 10, 10);
    }
}
BENCHMARK(transferMembers)->Arg(1000000)->Unit(benchmark::kMillisecond);

void highlightMembersOfBig(benchmark::State& state) {
    const BigGroup big(static_cast<int>(state.range(0)));
    for (auto _ : state)
        setObjectsHighlight(big.members, true);
    state.SetComplexityN(state.range(0));
}
BENCHMARK(highlightMembersOfBig)
    ->Range(10000, 1000000)
    ->Complexity(benchmark::oN)
    ->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) { return runBenchmarks(argc, argv); }
