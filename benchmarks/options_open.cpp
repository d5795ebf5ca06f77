// Opening the Options dialog up to its first paint, beside a plain loop that makes the same tree, rows and
// editors with the same style sheets and knows nothing of option data. "ratio" compares the two within one
// run.
#include "benchmarks/plain_row.h"
#include "benchmarks/run.h"
#include "benchmarks/timing.h"
#include "options/window/preferences.h"
#include "tests/options/option_tree_writer.h"
#include "tests/support/fixture_host.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <benchmark/benchmark.h>
#include <limits>
#include <malloc.h>

namespace {

const int kGroupSize = 20;
const wchar_t* const kKinds[] = {L"Check", L"Edit", L"EditInt", L"EditReal", L"Combo", L"Color"};
const int kKindCount = 6;

QByteArray nameOf(const char* kind, int number) { return kind + QByteArray::number(number); }

void writeOption(const OptionTreeWriter& node, int number) {
    const wchar_t* const kind = kKinds[number % kKindCount];
    node.set("Name", (L"Option row number " + std::to_wstring(number)).c_str());
    node.set("Description", L"What this option does, told in a sentence of the usual length.");
    node.type(kind).set("Key", nameOf("Key", number).constData());
    if (number % kKindCount == 4)
        for (const char* choice : {"first", "second", "third"})
            node.node("Choices").set("Hidden", 1).node(choice).set("Name", L"A choice");
}

// Groups of options below the root; every group counts as a row too.
void writeOptions(FixtureHost& host, int rows) {
    const OptionTreeWriter tree(Ref<IParam>::take(host.config().openSection("PrefTree", 1)));
    for (int i = 0; i < rows; i += kGroupSize) {
        const OptionTreeWriter group = tree.node(nameOf("Group", i));
        group.set("Image", 5).set("Section", "Bench").set("IFace", "IProfile");
        for (int k = i + 1; k < std::min(rows, i + kGroupSize); ++k)
            writeOption(group.node(nameOf("Option", k)), k);
    }
}

QWidget* plainEditor(int kind, QWidget* parent) {
    switch (kind) {
    case 0:
        return new QCheckBox(parent);
    case 1:
        return new QLineEdit(parent);
    case 2:
        return new QSpinBox(parent);
    case 3:
        return new QDoubleSpinBox(parent);
    case 4: {
        auto* const box = new QComboBox(parent);
        box->setFixedWidth(200);
        for (int i = 0; i < 3; ++i)
            box->addItem("A choice");
        return box;
    }
    default:
        auto* const swatch = new QToolButton(parent);
        swatch->setStyleSheet("background-color: #000000; border: 1px solid black; min-width: 12px; "
                              "min-height: 12px; max-width: 12px; max-height: 12px;");
        return swatch;
    }
}

QWidget* plainOption(const QString& text, int kind, QWidget* parent) {
    return plainRow(text, kind < 0 ? nullptr : plainEditor(kind, parent), kind == 0 || kind == 5, parent);
}

// What anyone would write who wants such a window.
class PlainWindow : public QDialog {
public:
    explicit PlainWindow(int rows) : tree(new QTreeWidget(this)) {
        (new QVBoxLayout(this))->addWidget(tree);
        tree->setHeaderHidden(true);
        setMinimumSize(700, 650);
        auto* root = new QTreeWidgetItem(tree);
        tree->setItemWidget(root, 0, plainOption("Application preferences", -1, this));
        root->setExpanded(true);
        QTreeWidgetItem* group = root;
        for (int i = 0; i < rows; ++i) {
            const bool startsGroup = i % kGroupSize == 0;
            auto* item = new QTreeWidgetItem(startsGroup ? root : group);
            if (startsGroup)
                group = item;
            tree->setItemWidget(
                item, 0,
                plainOption(QString("Option row number %1").arg(i), startsGroup ? -1 : i % kKindCount, this));
        }
    }
    QTreeWidget* tree;
};

class PaintWatch : public QObject {
public:
    bool eventFilter(QObject*, QEvent* event) override {
        painted = painted || event->type() == QEvent::Paint;
        return false;
    }
    bool painted = false;
};

struct Cost {
    double seconds;
    double bytes;
};

// Until the first paint of the tree; taking the window down again is not counted.
template <class Window, class... Arguments> Cost open(Arguments... arguments) {
    const std::size_t before = mallinfo2().uordblks;
    const double start = timing::cpuSeconds();
    Window window(arguments...);
    PaintWatch watch;
    window.tree->viewport()->installEventFilter(&watch);
    window.show();
    while (!watch.painted)
        QCoreApplication::processEvents();
    return {timing::cpuSeconds() - start, static_cast<double>(mallinfo2().uordblks - before)};
}

void openOptions(benchmark::State& state) {
    const int rows = static_cast<int>(state.range(0));
    FixtureHost host;
    writeOptions(host, rows);
    open<PlainWindow>(rows); // fonts and style are loaded for both
    timing::Turns plain, options;
    double bytes = 0;
    for (auto _ : state) {
        plain.add(open<PlainWindow>(rows).seconds);
        const Cost now = open<Preferences>(nullptr);
        options.add(now.seconds);
        bytes = now.bytes;
        state.SetIterationTime(now.seconds);
    }
    state.counters["ratio"] = options.ratioTo(plain);
    state.counters["us_per_row"] = options.fastest() * 1e6 / rows;
    state.counters["KiB_per_row"] = bytes / 1024 / rows;
}

// The same dialog with ten times the rows, in turns with the smaller one; "growth" is to stay at most 11.
// Beside it stands the growth of the plain loop.
void growTenfold(benchmark::State& state) {
    const int rows = static_cast<int>(state.range(0));
    // Memory that was fetched from the system once stays with the process: the small tree would find it
    // there, and only the large one would pay for fetching it again.
    mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
    FixtureHost smallHost;
    writeOptions(smallHost, rows);
    timing::Turns small, large, plainSmall, plainLarge;
    for (auto _ : state) {
        plainSmall.add(open<PlainWindow>(rows).seconds);
        small.add(open<Preferences>(nullptr).seconds);
        FixtureHost largeHost;
        writeOptions(largeHost, rows * 10);
        plainLarge.add(open<PlainWindow>(rows * 10).seconds);
        large.add(open<Preferences>(nullptr).seconds);
        state.SetIterationTime(large.last());
    }
    state.counters["growth"] = large.ratioTo(small);
    state.counters["plain_growth"] = plainLarge.ratioTo(plainSmall);
}

BENCHMARK(openOptions)->Arg(300)->Arg(1000)->UseManualTime()->Iterations(15)->Unit(benchmark::kMillisecond);
BENCHMARK(openOptions)->Arg(10000)->UseManualTime()->Iterations(5)->Unit(benchmark::kMillisecond);
BENCHMARK(growTenfold)->Arg(1000)->UseManualTime()->Iterations(7)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) { return runBenchmarks(argc, argv); }
