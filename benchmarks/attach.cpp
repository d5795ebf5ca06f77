// Attaching 100 files of 1 MB beside reading them ("ratio", limit 1.2; linear: the time of one file stays the
// same from 10 to 100 files), and the attach dialog beyond the reading of its file's preview ("beyond_ms",
// limit 100), also in a drawing that has 2,000 references already. Placing a reference of 200,000 entities:
// the first picture ("first_ms"), then the slowest one that follows the cursor ("worst_ms", limit 33 for 30
// pictures a second). All figures are processor time of the one thread that works.
#include "benchmarks/run.h"
#include "benchmarks/timing.h"
#include "sdk/db/xref_man.h"
#include "standin/console/console.h"
#include "standin/display/tracker_picture.h"
#include "tests/support/fixture_host.h"
#include "tests/xref/xref_io.h"
#include "xref/attach_dialog.h"
#include "xref/attach_reference.h"
#include "xref/create_xref_reference.h"
#include "xref/new_definitions.h"
#include "xref/xref_tracker.h"

#include <QFile>
#include <QPainter>
#include <algorithm>
#include <benchmark/benchmark.h>

namespace {

// A drawing file of about 1 MB.
QByteArray drawingOfOneMegabyte() {
    QByteArray bytes = "0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\nAC1032\n0\nENDSEC\n0\nSECTION\n2\nENTITIES\n";
    while (bytes.size() < 1000000)
        bytes +=
            "0\nLINE\n100\nAcDbEntity\n8\n0\n100\nAcDbLine\n10\n10.5\n20\n1.25\n30\n0.0\n11\n11.75\n21\n7.5\n"
            "31\n0.0\n";
    return bytes + "0\nENDSEC\n0\nEOF\n";
}

using timing::secondsOf;

// A host with an empty drawing, and files to attach.
class Site {
public:
    explicit Site(int files) {
        host.openDocument(drawing);
        host.document.io = &io;
        drawing->setFilename(hostqt::odString(folder.filePath(QStringLiteral("site.dxf"))));
        host.document.path = drawing->getFilename();
        const QByteArray bytes = drawingOfOneMegabyte();
        for (int i = 0; i < files; ++i) {
            QFile file(folder.filePath(QStringLiteral("part%1.dxf").arg(i)));
            if (file.open(QIODevice::WriteOnly))
                file.write(bytes);
            paths.push_back(hostqt::odString(file.fileName()));
        }
    }
    bool attachAll() const {
        return std::all_of(paths.begin(), paths.end(), [](const OdString& path) {
            return attachReference(path, {}, OdGeScale3d(1), false, false, false, false, false, 0, false, 0);
        });
    }
    // The drawings stay, as they do when they are attached.
    void readAll() {
        for (const OdString& path : paths)
            read.push_back(OdDbDatabase::readFile(path));
    }

    FixtureHost host;
    XRefIO io;
    OdDbDatabasePtr drawing = OdDbDatabase::createEmpty();
    QTemporaryDir folder;
    std::vector<OdString> paths;
    std::vector<OdDbDatabasePtr> read;
    NewDefinitionsScope newDefinitions;
};

void attachFiles(benchmark::State& state) {
    const int count = static_cast<int>(state.range(0));
    double attaching = 1e9, reading = 1e9;
    for (auto _ : state) {
        Site site(count);
        reading = std::min(reading, secondsOf([&] { site.readAll(); }));
        site.read.clear();
        bool attached = false;
        const double seconds = secondsOf([&] { attached = site.attachAll(); });
        attaching = std::min(attaching, seconds);
        state.SetIterationTime(seconds);
        if (!attached)
            state.SkipWithError("a file was not attached");
    }
    state.counters["ms_per_file"] = attaching / count * 1e3;
    state.counters["ratio"] = attaching / reading;
}
BENCHMARK(attachFiles)->Arg(10)->Arg(100)->Iterations(3)->UseManualTime()->Unit(benchmark::kMillisecond);

void openDialog(benchmark::State& state) {
    double opening = 1e9, preview = 1e9;
    for (auto _ : state) {
        Site site(1);
        for (int i = 0; i < state.range(0); ++i)
            OdDbXRefManExt::addNewXRefDefBlock(site.drawing.get(), L"/nowhere/r.dxf",
                                               OdString(L"r") + std::to_wstring(i).c_str(), false);
        const QString path = hostqt::qString(site.paths[0]);
        preview = std::min(preview, secondsOf([&] { loadPreviewImage(path); }));
        const Ref<IParam> params = Ref<IParam>::take(new_MemParam());
        const CKWVariant value(hostqt::cxStringW(path));
        params->setValue("PATH", &value);
        const double seconds = secondsOf([&] {
            hostInsertExternalReferenceDialog dialog(nullptr, params.get());
            dialog.show();
            QCoreApplication::processEvents();
        });
        opening = std::min(opening, seconds);
        state.SetIterationTime(seconds);
    }
    state.counters["beyond_ms"] = (opening - preview) * 1e3;
}
BENCHMARK(openDialog)->Arg(0)->Arg(2000)->Iterations(5)->UseManualTime()->Unit(benchmark::kMillisecond);

// `count` lines in a square of 5,000 by 5,000.
QByteArray drawingOfLines(int count) {
    QByteArray bytes = "0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\nAC1032\n9\n$LTSCALE\n40\n1."
                       "0\n0\nENDSEC\n0\nSECTION\n2\nENTITIES\n";
    for (int i = 0; i < count; ++i) {
        const int x = i % 500 * 10, y = i / 500 * 12;
        bytes +=
            QStringLiteral(
                "0\nLINE\n100\nAcDbEntity\n8\n0\n62\n%1\n100\nAcDbLine\n10\n%2\n20\n%3\n11\n%4\n21\n%5\n")
                .arg(i % 7 + 1)
                .arg(x)
                .arg(y)
                .arg(x + 8)
                .arg(y + i % 11)
                .toLatin1();
    }
    return bytes + "0\nENDSEC\n0\nEOF\n";
}

// The definition and the reference as the attach command has them while its insertion prompt is open.
void placeReference(benchmark::State& state) {
    Site site(0);
    QFile file(site.folder.filePath(QStringLiteral("large.dxf")));
    if (file.open(QIODevice::WriteOnly))
        file.write(drawingOfLines(200000));
    file.close();
    QString name;
    OdDbBlockReferencePtr reference;
    bool hadDefinition = false;
    OdDbObjectId block;
    if (!createXRefReference(file.fileName(), name, false, reference, hadDefinition, block))
        return state.SkipWithError("the file was not attached");
    XRefTracker tracker(reference, kTrackPosition, nullptr, nullptr, {});
    standin::OpenPrompt prompt;
    prompt.kind = standin::OpenPrompt::Point;
    prompt.tracker = &tracker;
    standin::View view;
    view.resize({1600, 1000});
    view.fit({0, 0, 5000, 5000});
    QPixmap screen(1600, 1000);
    QPainter painter(&screen);
    std::unique_ptr<standin::TrackerPicture> picture;
    state.counters["first_ms"] = 1e3 * secondsOf([&] {
                                     picture =
                                         std::make_unique<standin::TrackerPicture>(prompt, site.drawing);
                                     picture->paint(painter, view, Qt::white);
                                 });
    double worst = 0;
    int step = 0;
    for (auto _ : state) {
        ++step;
        const double seconds = secondsOf([&] {
            picture->setCursor(QPointF(2500 + 40 * (step % 20), 1600 + 25 * (step % 13)));
            picture->paint(painter, view, Qt::white);
        });
        worst = std::max(worst, seconds);
    }
    state.counters["worst_ms"] = worst * 1e3;
}
BENCHMARK(placeReference)->Iterations(100)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) { return runBenchmarks(argc, argv); }
