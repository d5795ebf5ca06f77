// The drawing properties with many custom properties: opening beside a bare table in a window that shows the
// same items ("ratio", limit 1.2), OK per entry (linear: the time of one entry stays the same from 1,000 to
// 10,000 entries), and OK after all of them were deleted. Opening on a drawing of many entities beside
// opening on an empty one ("ratio", limit 1.2).
#include "dwgprops/dwg_props.h"
#include "benchmarks/run.h"
#include "benchmarks/timing.h"
#include "tests/support/fixture_host.h"

#include <QDialog>
#include <QHeaderView>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>
#include <benchmark/benchmark.h>
#include <functional>
#include <memory>

namespace {

using Entries = std::vector<std::pair<OdString, OdString>>;

Entries numberedEntries(int count) {
    Entries entries;
    for (int i = 0; i < count; ++i)
        entries.emplace_back(L"Name " + std::to_wstring(i), L"some value " + std::to_wstring(i));
    return entries;
}

OdDbDatabasePtr drawingWith(const Entries& entries) {
    const OdDbDatabasePtr drawing = OdDbDatabase::createEmpty();
    const OdDbDatabaseSummaryInfoPtr info = oddbGetSummaryInfo(drawing.get());
    for (const auto& [key, value] : entries)
        info->setCustomSummaryInfo(info->numCustomInfo(), key, value);
    oddbPutSummaryInfo(info.get());
    return drawing;
}

// A drawing file of `count` lines, about 100 bytes each.
std::string fileOfLines(int count) {
    std::string bytes = "0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\nAC1032\n0\nENDSEC\n0\nSECTION\n2\nENTITIES\n";
    for (int i = 0; i < count; ++i) {
        const std::string n = std::to_string(i);
        bytes += "0\nLINE\n100\nAcDbEntity\n8\n0\n100\nAcDbLine\n10\n" + n + ".5\n20\n1.25\n30\n0.0\n11\n" +
                 n + ".75\n21\n7.5\n31\n0.0\n";
    }
    return bytes + "0\nENDSEC\n0\nEOF\n";
}

void showFully(QDialog& dialog) {
    dialog.show();
    QCoreApplication::processEvents();
}

double openDialog() {
    std::unique_ptr<dwgProps> dialog;
    return timing::secondsOf([&] {
        dialog = std::make_unique<dwgProps>(nullptr);
        showFully(*dialog);
    });
}

// The peer: nothing but a table, with the texts at hand.
double openBareTable(const Entries& entries) {
    QDialog dialog;
    return timing::secondsOf([&] {
        auto* const table = new QTableWidget(&dialog);
        table->setColumnCount(2);
        table->setRowCount(static_cast<int>(entries.size()));
        for (int row = 0; row < table->rowCount(); ++row) {
            const auto& [key, value] = entries[static_cast<std::size_t>(row)];
            table->setItem(row, 0, new QTableWidgetItem(QString::fromStdWString(key.wide())));
            table->setItem(row, 1, new QTableWidgetItem(QString::fromStdWString(value.wide())));
        }
        (new QVBoxLayout(&dialog))->addWidget(table);
        showFully(dialog);
    });
}

// Peer and subject in turn. Each turn gives one ratio, so that what slows the machine for a while slows both
// parts of it, and the middle one of all counts.
void compareRuns(benchmark::State& state, const std::function<double()>& peer,
                 const std::function<double()>& ours) {
    peer();
    ours();
    std::vector<double> peerTimes, ourTimes, ratios;
    for (auto _ : state) {
        peerTimes.push_back(peer());
        ourTimes.push_back(ours());
        ratios.push_back(ourTimes.back() / peerTimes.back());
        state.SetIterationTime(ourTimes.back());
    }
    state.counters["ratio"] = timing::median(ratios);
    state.counters["peer_ms"] = timing::median(peerTimes) * 1e3;
    state.counters["ms"] = timing::median(ourTimes) * 1e3;
}

void openWithProperties(benchmark::State& state) {
    FixtureHost host;
    const Entries entries = numberedEntries(static_cast<int>(state.range(0)));
    host.openDocument(drawingWith(entries));
    compareRuns(
        state, [&] { return openBareTable(entries); }, openDialog);
    host.closeDocument();
}

void openOnALargeDrawing(benchmark::State& state) {
    FixtureHost host;
    const OdDbDatabasePtr empty = OdDbDatabase::createEmpty();
    const OdDbDatabasePtr large = OdDbDatabase::readBytes(fileOfLines(static_cast<int>(state.range(0))));
    const auto openOn = [&host](const OdDbDatabasePtr& drawing) {
        host.openDocument(drawing);
        return openDialog();
    };
    compareRuns(
        state, [&] { return openOn(empty); }, [&] { return openOn(large); });
    host.closeDocument();
}

void pressOk(benchmark::State& state, bool deleteFirst) {
    FixtureHost host;
    const Entries entries = numberedEntries(static_cast<int>(state.range(0)));
    double total = 0;
    for (auto _ : state) {
        host.openDocument(drawingWith(entries));
        dwgProps dialog(nullptr);
        if (deleteFirst) {
            auto* const page = dialog.findChild<QWidget*>(QStringLiteral("customTab"));
            page->findChild<QTableWidget*>(QStringLiteral("table"))->clearContents();
        }
        const double now = timing::secondsOf([&] { dialog.onOK(); });
        total += now;
        state.SetIterationTime(now);
    }
    state.counters["us_per_entry"] = total * 1e6 / static_cast<double>(state.iterations() * state.range(0));
    host.closeDocument();
}

void deleteAllRows(benchmark::State& state) {
    FixtureHost host;
    const Entries entries = numberedEntries(static_cast<int>(state.range(0)));
    host.openDocument(drawingWith(entries));
    for (auto _ : state) {
        dwgProps dialog(nullptr);
        auto* const page = dialog.findChild<QWidget*>(QStringLiteral("customTab"));
        page->findChild<QTableWidget*>(QStringLiteral("table"))->selectAll();
        state.SetIterationTime(timing::secondsOf(
            [&] { page->findChild<QPushButton*>(QStringLiteral("deleteButton"))->click(); }));
    }
    host.closeDocument();
}

void okUnchanged(benchmark::State& state) { pressOk(state, false); }
void okAfterDeletingAll(benchmark::State& state) { pressOk(state, true); }

BENCHMARK(openWithProperties)->Arg(10000)->Iterations(40)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(openOnALargeDrawing)->Arg(450000)->Iterations(40)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(okUnchanged)->Arg(1000)->Arg(10000)->Iterations(10)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(okAfterDeletingAll)
    ->Arg(1000)
    ->Arg(10000)
    ->Iterations(5)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(deleteAllRows)
    ->Arg(1000)
    ->Arg(10000)
    ->Iterations(2)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) { return runBenchmarks(argc, argv); }
