// The list pages of the Options dialog: making a page's rows beside a plain loop that makes the same rows
// from data at hand ("ratio", limit 1.1), and Apply of the papers down to the file (limit 20 ms and one
// write).
#include "benchmarks/run.h"
#include "benchmarks/timing.h"
#include "host/text.h"
#include "host/typed_reads.h"
#include "options/pages/directories/std_dir_list.h"
#include "options/pages/directories/std_dirs_page.h"
#include "options/pages/papers/paper_format.h"
#include "options/pages/papers/paper_page.h"
#include "options/pages/raster/raster_format.h"
#include "options/pages/raster/raster_page.h"
#include "options/window/preferences.h"
#include "standin/params/application.h"
#include "tests/support/fixture_host.h"

#include <QCheckBox>
#include <QIcon>
#include <QTreeWidget>
#include <benchmark/benchmark.h>
#include <functional>

namespace {

Ref<IParam> sectionOf(IParam& parent, const QByteArray& path) {
    return Ref<IParam>::take(parent.openSection(path, 1));
}

template <class T> void set(const Ref<IParam>& section, const char* name, const T& value) {
    CKWVariant variant;
    variant = value;
    section->setValue(name, &variant);
}

void addPapers(IParam& papers, int count) {
    for (int i = 1; i <= count; ++i) {
        const Ref<IParam> paper = sectionOf(papers, "Paper" + QByteArray::number(i).rightJustified(8, '0'));
        set(paper, "Name", ("Sheet " + QString::number(i)).toStdWString().c_str());
        set(paper, "Size", tagRSIZE{100.0 + i, 200.0 + i});
        set(paper, "Units", "mm");
        set(paper, "Used", 1);
    }
}

void addFormats(IParam& store, int count) {
    for (int i = 1; i <= count; ++i) {
        const QByteArray name = "f" + QByteArray::number(i);
        set(sectionOf(store, "Raster"), "Format" + QByteArray::number(i), name.constData());
        set(sectionOf(store, "Formats\\" + name), "Description", QString(name).toStdWString().c_str());
    }
}

void addPaths(FixtureHost& host, int count) {
    set(sectionOf(host.plain(), "StdDirsDescriptions\\Support"), "Name", L"Support files");
    std::vector<std::wstring> paths;
    for (int i = 1; i <= count; ++i)
        paths.push_back(L"/usr/share/cad/support/" + std::to_wstring(i));
    host.stdDirs().set("Support", paths);
}

// What each page shows, known in advance, for the plain loop.
struct Texts {
    QStringList rows;
    bool checked;
};

void plainLoop(Preferences& preferences, TreeItem* parent, const Texts& texts) {
    const QIcon icon = parent->icon(0);
    for (const QString& text : texts.rows) {
        auto* item = new TreeItem(parent);
        item->setText(0, text);
        item->setIcon(0, icon);
        preferences.makeRow(texts.checked ? 0 : 2, item, texts.checked ? new QCheckBox : nullptr,
                            !texts.checked, 1);
    }
}

// Times `fill` on a fresh item below the root, and takes the rows away again outside the time.
double timeFill(Preferences& preferences, const std::function<void(TreeItem*)>& fill) {
    auto* parent = new TreeItem(preferences.tree->topLevelItem(0));
    parent->setIcon(0, preferences.tree->topLevelItem(0)->icon(0));
    const double seconds = timing::secondsOf([&] { fill(parent); });
    preferences.forgetItem(parent);
    delete parent;
    preferences.releasePages();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return seconds;
}

void comparePage(benchmark::State& state, const std::function<void(FixtureHost&, int)>& addData,
                 const std::function<void(Preferences&, TreeItem*)>& load,
                 const std::function<Texts(Preferences&)>& textsOf) {
    FixtureHost host;
    sectionOf(host.config(), "PrefTree");
    addData(host, int(state.range(0)));
    Preferences preferences(nullptr);
    Texts texts;
    timeFill(preferences, [&](TreeItem* parent) {
        load(preferences, parent);
        texts = textsOf(preferences);
    });
    timing::Turns plain, page;
    for (auto _ : state) {
        plain.add(timeFill(preferences, [&](TreeItem* parent) { plainLoop(preferences, parent, texts); }));
        page.add(timeFill(preferences, [&](TreeItem* parent) { load(preferences, parent); }));
        state.SetIterationTime(page.last());
    }
    state.counters["ratio"] = page.ratioTo(plain);
}

void papersOpen(benchmark::State& state) {
    comparePage(
        state, [](FixtureHost& host, int count) { addPapers(host.papers(), count); }, loadPaperFormats,
        [](Preferences& preferences) {
            Texts texts{{}, true};
            for (const PaperFormat* paper : preferences.paperFormats)
                texts.rows << paper->rowText();
            return texts;
        });
}

void rasterFormatsOpen(benchmark::State& state) {
    comparePage(
        state, [](FixtureHost& host, int count) { addFormats(host.ioParams(), count); }, loadRasterFormats,
        [](Preferences& preferences) {
            Texts texts{{}, true};
            for (const RasterFormat* format : preferences.rasterFormats)
                texts.rows << hostqt::qString(format->description);
            return texts;
        });
}

void directoriesOpen(benchmark::State& state) {
    comparePage(state, addPaths, loadStdDirs, [](Preferences& preferences) {
        Texts texts{{}, false};
        for (const CStdDirItem& section : preferences.stdDirs)
            for (const Ref<IStdDirInfo>& info : elementsOf(section.list))
                texts.rows << hostqt::qString(info->GetPath());
        return texts;
    });
}

// Into the store of the workbench, and from there into its file.
void papersApply(benchmark::State& state) {
    const QTemporaryDir root;
    const QTemporaryDir data;
    int writes = 0;
    standin::ApplicationSetup setup;
    setup.dataDir = data.path();
    setup.rootDir = root.path();
    setup.io.newSaveFile = [&writes](const QString& path) {
        ++writes;
        return std::make_unique<QSaveFile>(path);
    };
    standin::Application application(setup);
    const Ref<IStdPapersParam> store = appService<IStdPapersParam>();
    addPapers(*store, int(state.range(0)));
    application.flush();
    std::vector<std::unique_ptr<PaperFormat>> records;
    std::vector<PaperFormat*> papers;
    for (const std::string& name : childNames(store.get())) {
        const auto copy = Ref<IParam>::take(new_MemParam());
        Param_CopyTo(openChild(store.get(), name.c_str()).get(), copy.get());
        records.push_back(std::make_unique<PaperFormat>());
        records.back()->readFrom(copy);
        papers.push_back(records.back().get());
    }
    writes = 0;
    timing::Turns stored, applied;
    for (auto _ : state) {
        papers[0]->used = !papers[0]->used;
        stored.add(timing::secondsOf([&] { storePaperFormats(theOnlyIApp, papers); }));
        applied.add(stored.last() + timing::secondsOf([&] { application.flush(); }));
    }
    state.counters["store_ms"] = stored.fastest() * 1e3;
    state.counters["apply_ms"] = applied.fastest() * 1e3;
    state.counters["writes"] = writes / static_cast<double>(state.iterations());
}

BENCHMARK(papersOpen)->Arg(1000)->Iterations(20)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(rasterFormatsOpen)->Arg(1000)->Iterations(20)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(directoriesOpen)->Arg(1000)->Iterations(20)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(papersApply)->Arg(1000)->Iterations(30)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) { return runBenchmarks(argc, argv); }
