// A search from Return to the painted result, beside a peer that matches every label and description once and
// makes the same calls to show, hide, expand and mark on the same tree. "ratio" compares the two within one
// run.
#include "benchmarks/run.h"
#include "benchmarks/timing.h"
#include "options/pages/rows/clickable_label.h"
#include "options/pages/rows/pref_widget.h"
#include "options/pages/search/collapse_widget.h"
#include "options/pages/search/search_expression.h"
#include "options/pages/search/search_marks.h"
#include "options/pages/search/searching_line_edit.h"
#include "options/store/tree_item.h"
#include "tests/support/fixture_host.h"

#include <QDialog>
#include <QPushButton>
#include <QTest>
#include <QTextEdit>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <benchmark/benchmark.h>
#include <vector>

namespace {

const QString kWord = "autosave";

class Window : public QDialog {
public:
    // Branches of `depth` rows each, one below the other; every `hitEvery`th row matches, none with 0.
    Window(int rows, int hitEvery, int depth)
        : tree(new QTreeWidget(this)), description(new QTextEdit(this)),
          searchEdit(new SearchingLineEdit(tree, description, this, "green", "white")) {
        root = new TreeItem(tree, QStringList("Options"));
        root->setExpanded(true);
        setRow(root);
        fill(rows, hitEvery, depth);
        collapse = new CollapseWidget(tree, searchEdit, this);
        auto* box = new QVBoxLayout(this);
        const QList<QWidget*> widgets{tree,
                                      description,
                                      searchEdit->statusLabel,
                                      searchEdit,
                                      collapse->collapseButton,
                                      collapse->expandButton};
        for (QWidget* widget : widgets)
            box->addWidget(widget);
        resize(700, 650);
        show();
        paint();
    }

    void paint() {
        QCoreApplication::processEvents();
        grab();
    }

    void endSearch() {
        searchEdit->setText(kWord);
        searchEdit->clear();
        tree->collapseAll();
        root->setExpanded(true);
        paint();
        searchEdit->setText(kWord);
        paint();
    }

    QTreeWidget* tree;
    QTextEdit* description;
    SearchingLineEdit* searchEdit;
    CollapseWidget* collapse = nullptr;
    TreeItem* root = nullptr;

private:
    void setRow(TreeItem* item) {
        tree->setItemWidget(item, 0, new QPrefWidget(item, 2, nullptr, false, 1, tree->viewport()));
    }

    void fill(int rows, int hitEvery, int depth) {
        TreeItem* parent = root;
        for (int i = 0; i < rows; ++i) {
            if (i % depth == 0)
                parent = root;
            const bool hit = hitEvery > 0 && i % hitEvery == hitEvery - 1;
            auto* item = new TreeItem(
                parent, QStringList(QString("Option %1 %2").arg(hit ? "of autosave" : "of display").arg(i)));
            item->description = QString("What option number %1 does to the drawing when it is on.").arg(i);
            setRow(item);
            if (depth > 20 || i % depth == 0) // long branches are chains, short ones are flat groups
                parent = item;
        }
    }
};

// The peer: each text matched once, then the calls of the search in the order of the search.
class Peer {
public:
    explicit Peer(Window& searched) : window(searched), expression(buildSearchExpression(kWord)) {}

    void search() {
        matchBelow(window.root);
        next = 0;
        showBelow(window.root);
        for (TreeItem* branch : keptBranches)
            unhideBelow(branch);
        window.tree->setCurrentItem(window.root);
        window.searchEdit->statusLabel->setText(keptBranches.empty() ? "No matches!!!" : "");
    }

private:
    struct Match {
        QLabel* label;
        bool labelHit;
        bool kept;
    };

    bool matchBelow(TreeItem* parent) {
        bool kept = false;
        for (int i = 0; i < parent->childCount(); ++i) {
            TreeItem* child = parent->childItem(i);
            QLabel* label = window.tree->itemWidget(child, 0)->findChild<QLabel*>();
            const bool labelHit = expression.match(label->text()).hasMatch();
            const bool hit = expression.match(child->description).hasMatch() || labelHit;
            const std::size_t index = matches.size();
            matches.push_back({label, labelHit, hit});
            matches[index].kept |= matchBelow(child);
            kept |= matches[index].kept;
        }
        return kept;
    }

    void showBelow(TreeItem* parent) {
        for (int i = 0; i < parent->childCount(); ++i) {
            TreeItem* child = parent->childItem(i);
            const Match& match = matches[next++];
            child->setHidden(!match.kept);
            if (match.kept)
                parent->setExpanded(true);
            if (match.labelHit)
                match.label->setText(mark.aroundMatches(match.label->text(), expression));
            if (match.kept && parent == window.root)
                keptBranches.push_back(child);
            showBelow(child);
        }
    }

    void unhideBelow(TreeItem* item) {
        for (int i = 0; i < item->childCount(); ++i) {
            item->child(i)->setHidden(false);
            unhideBelow(item->childItem(i));
        }
    }

    Window& window;
    const QRegularExpression expression;
    const SearchMark mark{"green", "white"};
    std::vector<Match> matches;
    std::vector<TreeItem*> keptBranches;
    std::size_t next = 0;
};

template <class Search> double seconds(Window& window, Search search) {
    window.endSearch();
    return timing::secondsOf([&] {
        search();
        window.paint();
    });
}

void searchTree(benchmark::State& state) {
    const int rows = static_cast<int>(state.range(0));
    FixtureHost host;
    Window window(rows, static_cast<int>(state.range(1)), static_cast<int>(state.range(2)));
    seconds(window, [&] { Peer(window).search(); }); // loads fonts and the like
    timing::Turns box, peer;
    for (auto _ : state) {
        peer.add(seconds(window, [&] { Peer(window).search(); }));
        box.add(seconds(window, [&] { QTest::keyClick(window.searchEdit, Qt::Key_Return); }));
        state.SetIterationTime(box.last());
    }
    state.counters["ratio"] = box.ratioTo(peer);
    state.counters["us_per_row"] = box.fastest() * 1e6 / rows;
}

void search(benchmark::internal::Benchmark* subject, int turns, std::initializer_list<int> rowCounts) {
    subject->ArgNames({"rows", "hit_every", "depth"})->UseManualTime()->Unit(benchmark::kMillisecond);
    subject->Iterations(turns);
    for (const int rows : rowCounts)
        for (const int hitEvery : {100, 2, 0})
            subject->Args({rows, hitEvery, 20});
}

void smallTrees(benchmark::internal::Benchmark* subject) { search(subject, 60, {300, 1000}); }

void largeTree(benchmark::internal::Benchmark* subject) { search(subject, 7, {10000}); }

void chains(benchmark::internal::Benchmark* subject) { // the same rows as chains
    search(subject, 7, {});
    for (const int depth : {50, 200})
        subject->Args({10000, 0, depth});
}

BENCHMARK(searchTree)->Apply(smallTrees);
BENCHMARK(searchTree)->Apply(largeTree);
BENCHMARK(searchTree)->Apply(chains);

} // namespace

int main(int argc, char** argv) { return runBenchmarks(argc, argv); }
