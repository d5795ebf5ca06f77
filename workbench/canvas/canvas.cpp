// What the canvas shows, and of which drawing; its mouse is in canvas_mouse.cpp, its painting in
// canvas_paint.cpp.
#include "workbench/canvas/canvas.h"

#include "sdk/db/progress.h"
#include "standin/console/command_loop.h"
#include "standin/console/console.h"
#include "standin/display/flat.h"
#include "standin/display/picking.h"
#include "standin/display/tracker_picture.h"
#include "standin/documents/document_manager.h"
#include "standin/registry.h"
#include "standin/selection/editor_selection.h"
#include "standin/sysvars/read_variable.h"

using namespace standin;

namespace workbench {

namespace {

const int smallestPickBox = 3; // pixels

} // namespace

Canvas::Canvas(Console& console, const CommandLoop& commandLoop, DocumentManager& documentManager,
               QWidget* parent)
    : QWidget(parent), io(console), loop(commandLoop), documents(documentManager) {
    setObjectName(QStringLiteral("canvas"));
    setMouseTracking(true);
    setMinimumSize(240, 160);
    setCursor(Qt::BlankCursor);
    setAttribute(Qt::WA_OpaquePaintEvent);
    connectSignals();
    showCurrent();
}

Canvas::~Canvas() {
    registry().updateDisplay = nullptr;
    registry().zoomObject = nullptr;
    for (const auto& each : sheets) {
        each.second->document.editor().objectsAt = nullptr;
        each.second->document.editor().objectsIn = nullptr;
    }
}

void Canvas::connectSignals() {
    registry().updateDisplay = [this] { refresh(); };
    registry().zoomObject = [this](const OdDbObjectId& id) { zoomTo(id); };
    connect(&documents, &DocumentManager::currentChanged, this, &Canvas::showCurrent);
    connect(&documents, &DocumentManager::documentClosed, this, &Canvas::forgetClosed);
    connect(&loop, &CommandLoop::commandEnded, this, &Canvas::promptChanged);
    connect(&io, &Console::promptChanged, this, &Canvas::promptChanged);
    connect(&loop, &CommandLoop::commandStarted, this, [this] {
        windowCorner.reset();
        update();
    });
    connect(&loop, &CommandLoop::commandEnded, this, &Canvas::refresh);
    for (LivePicture* picture : {&scene, static_cast<LivePicture*>(&marks)})
        connect(picture, &LivePicture::improved, this, [this] {
            tellWhatIsLeftOut();
            update();
        });
}

void Canvas::apply(const Settings& settings) {
    background = settings.canvasBack;
    rubberBand = settings.rubberBand;
    cursorLook = settings.cursor;
    update();
}

// Once for each drawing.
void Canvas::tellWhatIsLeftOut() {
    if (!sheet || sheet->isCutTold || !scene.isCut() || !isPictureFinished())
        return;
    sheet->isCutTold = true;
    io.print(tr("There is more to paint than can be shown at once: in views like this one, later objects are "
                "dots."));
}

void Canvas::showCurrent() {
    Document* current = documents.currentOne();
    sheet = nullptr;
    if (current) {
        auto& own = sheets[current];
        if (!own)
            own = makeSheet(*current);
        sheet = own.get();
        sheet->resize(size());
    }
    windowCorner.reset();
    scene.forget();
    marks.forget();
    refresh();
    promptChanged();
}

std::unique_ptr<Sheet> Canvas::makeSheet(Document& document) {
    auto made = std::make_unique<Sheet>(document);
    Sheet* shown = made.get();
    shown->list.changed = [this] { refresh(); };
    document.editor().objectsAt = [this, shown](const OdGePoint3d& point) {
        return objectsAt(*shown, point);
    };
    document.editor().objectsIn = [shown](const OdGePoint3d& first, const OdGePoint3d& second,
                                          bool crossing) {
        shown->list.refresh();
        return itemsIn(shown->list, boxOf(flat(first), flat(second)), crossing, shown->view().scale());
    };
    return made;
}

const DisplayList* Canvas::listOf(const OdDbDatabase& drawing) {
    const Document* document = documents.documentOf(&drawing);
    const auto found = sheets.find(document);
    if (found == sheets.end())
        return nullptr;
    found->second->list.refresh();
    return &found->second->list;
}

void Canvas::forgetClosed() {
    const std::vector<Document*> open = documents.all();
    for (auto it = sheets.begin(); it != sheets.end();)
        it = std::find(open.begin(), open.end(), it->first) == open.end() ? sheets.erase(it) : std::next(it);
}

int Canvas::pickBox() {
    const OdResBufPtr value = readVariable(L"PICKBOX");
    return std::max(smallestPickBox, value.isNull() ? 0 : int(value->getInt16()));
}

OdDbObjectIdArray Canvas::objectsAt(const Sheet& shown, const OdGePoint3d& point) const {
    const double scale = shown.view().scale();
    const OdDbObjectId found = itemAt(shown.list, flat(point), pickBox() / scale, scale);
    return found.isNull() ? OdDbObjectIdArray() : OdDbObjectIdArray{found};
}

EditorSelection& Canvas::editor() const { return sheet->document.editor(); }

void Canvas::refresh() {
    marks.forgetMarks();
    update();
    emit marksChanged();
}

// Before it is painted. What takes long shows its progress, for which painting has no room.
void Canvas::keepUpToDate() {
    if (sheet->list.tookLong() && sheet->list.isBehind()) {
        QMetaObject::invokeMethod(this, &Canvas::bringUpToDate, Qt::QueuedConnection);
        return;
    }
    OdDbProgressMeter* const meter = odDbProgressMeter();
    odDbSetProgressMeter(nullptr);
    sheet->list.refresh();
    odDbSetProgressMeter(meter);
}

void Canvas::bringUpToDate() {
    if (!sheet)
        return;
    sheet->list.refresh();
    printUnshown(sheet->document);
    update();
}

void Canvas::regenerate() {
    if (sheet)
        sheet->list.forgetAll();
    bringUpToDate();
}

void Canvas::printUnshown(const Document& document) {
    const auto found = sheets.find(&document);
    if (found == sheets.end())
        return;
    Sheet& shown = *found->second;
    QStringList notices = shown.list.unshown().notices();
    if (shown.list.isCancelled())
        notices << tr("Only a part of the drawing is shown, since preparing the picture was cancelled. REGEN "
                      "prepares it again.");
    for (const QString& notice : notices)
        if (!shown.told.contains(notice))
            io.print(notice);
    shown.told = notices;
}

// A tracker lasts as long as its prompt. What it showed stays in sight at the prompts without one that
// follow, up to the end of the command.
void Canvas::promptChanged() {
    const OpenPrompt* prompt = sheet ? pointPrompt() : nullptr;
    if (tracked && tracked->prompt() && tracked->prompt() != prompt)
        tracked->leaveTracker();
    if (!sheet || !loop.isRunning())
        tracked.reset();
    if (prompt && prompt->tracker && !(tracked && tracked->prompt())) {
        tracked = std::make_unique<TrackerPicture>(*prompt, sheet->document.database());
        showWholeOf(*tracked);
        const bool isHere = rect().contains(cursorAt);
        tracked->setCursor(sheet->view().toDrawing(isHere ? cursorAt : rect().center()));
    }
    update();
}

// In an empty drawing nobody has chosen a view yet: the first thing to be placed is shown whole, with room
// around it.
void Canvas::showWholeOf(const TrackerPicture& picture) {
    const Box box = picture.box();
    sheet->list.refresh();
    if (picture.hasBase() || box.isEmpty() || !sheet->list.extents().isEmpty())
        return;
    sheet->change().fit(box);
    sheet->change(true).zoomAt(QPointF(width() / 2.0, height() / 2.0), 0.5);
}

void Canvas::viewChanged() {
    update();
    if (sheet && rect().contains(cursorAt))
        emit cursorMoved(sheet->view().toDrawing(cursorAt));
}

void Canvas::zoomExtents() {
    if (!sheet)
        return;
    sheet->change();
    sheet->showAll();
    viewChanged();
}

void Canvas::zoomWindow(const OdGePoint3d& first, const OdGePoint3d& second) {
    if (!sheet)
        return;
    sheet->change().fit(boxOf(flat(first), flat(second)));
    viewChanged();
}

void Canvas::zoomBy(double factor) {
    if (!sheet)
        return;
    sheet->change().zoomAt(QPointF(width() / 2.0, height() / 2.0), factor);
    viewChanged();
}

void Canvas::zoomToScale(double pixelsPerUnit) {
    if (!sheet)
        return;
    sheet->change().setScale(pixelsPerUnit);
    viewChanged();
}

bool Canvas::zoomPrevious() {
    const bool done = sheet && sheet->previous();
    viewChanged();
    return done;
}

void Canvas::zoomTo(const OdDbObjectId& id) {
    if (!sheet)
        return;
    sheet->list.refresh();
    if (const Item* item = sheet->list.find(id))
        sheet->change().fit(item->box);
    viewChanged();
}

QRect Canvas::placeOfMarks() const {
    Box box;
    if (sheet)
        for (const OdDbObjectId& id : sheet->list.highlighted())
            if (const Item* item = sheet->list.find(id))
                box.add(item->box);
    if (box.isEmpty())
        return {};
    const View& view = sheet->view();
    const QRect place = QRectF(view.toPixel({box.left, box.top}), view.toPixel({box.right, box.bottom}))
                            .intersected(QRectF(rect()))
                            .toAlignedRect();
    return place.translated(mapToGlobal({0, 0}));
}

void Canvas::escape() {
    if (windowCorner)
        windowCorner.reset();
    else if (sheet && !loop.isRunning())
        editor().clearSelection();
    refresh();
}

} // namespace workbench

#include "moc_canvas.cpp"
