// Building option rows up to the first paint, beside a plain loop that makes the same widgets with the same
// style sheets in the order in which one writes them down. "ratio" compares the two within one run.
#include "benchmarks/plain_row.h"
#include "benchmarks/run.h"
#include "benchmarks/timing.h"
#include "options/pages/rows/clickable_label.h"
#include "options/pages/rows/int_spin_box.h"
#include "options/pages/rows/line_edit.h"
#include "options/pages/rows/pref_widget.h"
#include "options/store/tree_item.h"
#include "tests/support/fixture_host.h"

#include <QCheckBox>
#include <QDialog>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <benchmark/benchmark.h>
#include <malloc.h>

namespace {

const int kGroupSize = 20;

enum RowParent { DialogAsParent, ViewportAsParent };

// A window with a tree: root, groups below it, rows below each group.
class Window : public QDialog {
public:
    Window() : tree(new QTreeWidget(this)) {
        (new QVBoxLayout(this))->addWidget(tree);
        tree->setHeaderHidden(true);
        resize(700, 650);
    }

    template <class MakeRow> void fill(int rows, MakeRow makeRow) {
        TreeItem* root = new TreeItem(tree, QStringList("Options"));
        root->setExpanded(true);
        TreeItem* group = nullptr;
        for (int i = 0; i < rows; ++i) {
            const bool startsGroup = i % kGroupSize == 0;
            TreeItem* item = startsGroup ? new TreeItem(root) : new TreeItem(group);
            if (startsGroup)
                group = item;
            item->setText(0, QString("Option row number %1").arg(i));
            tree->setItemWidget(item, 0, makeRow(item, startsGroup ? 0 : 1 + i % 3));
        }
    }

    void paintFirst() {
        show();
        QCoreApplication::processEvents();
        grab();
    }

    QTreeWidget* tree;
};

QWidget* plainOption(Window& window, TreeItem* item, int kind) {
    QWidget* editor = nullptr;
    if (kind == 1)
        editor = new QCheckBox(&window);
    else if (kind == 2)
        editor = new QLineEdit("text", &window);
    else if (kind == 3)
        editor = new QSpinBox(&window);
    QWidget* const row = plainRow(item->text(0).trimmed(), editor, kind == 1, &window);
    item->setText(0, QString());
    return row;
}

QWidget* optionRow(Window& window, TreeItem* item, int kind, RowParent rowParent) {
    QWidget* editor = nullptr;
    if (kind == 1)
        editor = new QCheckBox(&window);
    else if (kind == 2)
        editor = new LineEdit(item, window.tree, "text", &window);
    else if (kind == 3)
        editor = new IntSpinBox(item, window.tree, &window);
    QWidget* parent = rowParent == DialogAsParent ? static_cast<QWidget*>(&window) : window.tree->viewport();
    return new QPrefWidget(item, kind == 0 ? 2 : kind == 1 ? 0 : 1, editor, false, 1, parent);
}

struct Cost {
    double seconds;
    double bytes;
};

// Until the first paint; taking the window down again is not counted.
template <class MakeRow> Cost open(int rows, MakeRow makeRow) {
    const std::size_t before = mallinfo2().uordblks;
    const double start = timing::cpuSeconds();
    Window window;
    window.fill(rows, [&](TreeItem* item, int kind) { return makeRow(window, item, kind); });
    window.paintFirst();
    return {timing::cpuSeconds() - start, static_cast<double>(mallinfo2().uordblks - before)};
}

void optionRows(benchmark::State& state, RowParent rowParent) {
    const int rows = static_cast<int>(state.range(0));
    FixtureHost host;
    timing::Turns plain, option;
    double bytes = 0;
    for (auto _ : state) {
        plain.add(open(rows, plainOption).seconds);
        const Cost cost = open(rows, [rowParent](Window& window, TreeItem* item, int kind) {
            return optionRow(window, item, kind, rowParent);
        });
        option.add(cost.seconds);
        bytes = cost.bytes;
        state.SetIterationTime(cost.seconds);
    }
    state.counters["ratio"] = option.ratioTo(plain);
    state.counters["us_per_row"] = option.fastest() * 1e6 / rows;
    state.counters["KiB_per_row"] = bytes / 1024 / rows;
}

void sizes(benchmark::internal::Benchmark* subject) {
    subject->Arg(300)->Arg(1000)->Arg(10000)->UseManualTime()->MinTime(1)->Unit(benchmark::kMillisecond);
}

BENCHMARK_CAPTURE(optionRows, below_the_dialog, DialogAsParent)->Apply(sizes);
BENCHMARK_CAPTURE(optionRows, below_the_viewport, ViewportAsParent)->Apply(sizes);

} // namespace

int main(int argc, char** argv) { return runBenchmarks(argc, argv); }
