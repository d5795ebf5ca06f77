// What part of the drawing is shown, and the picture of it.
#include "workbench/commands/commands.h"

#include "host/text.h"
#include "standin/console/command_loop.h"
#include "standin/console/console.h"
#include "workbench/canvas/canvas.h"

#include <QCoreApplication>

using namespace standin;

namespace workbench {

namespace {

const double zoomStep = 2;

QString tr(const char* text) { return QCoreApplication::translate("ViewCommands", text); }

bool getCorner(Console& console, const OdGePoint3d* base, const QString& prompt, OdGePoint3d* point) {
    const int flags = base ? kRectangle : 0;
    return console.getPoint(base, point, prompt.toStdWString().c_str(), nullptr, flags, nullptr, nullptr) ==
           kInputPicked;
}

void zoomToSecondCorner(const CommandScope& scope, const OdGePoint3d& first) {
    OdGePoint3d second;
    if (getCorner(scope.console, &first, tr("Specify opposite corner:"), &second))
        scope.canvas.zoomWindow(first, second);
}

void zoomWindow(const CommandScope& scope) {
    OdGePoint3d first;
    if (getCorner(scope.console, nullptr, tr("Specify first corner:"), &first))
        zoomToSecondCorner(scope, first);
}

// "2x" is twice as large as now, "2" two pixels for a drawing unit.
void zoomScale(const CommandScope& scope, QString text) {
    const bool relative = text.endsWith(QLatin1Char('x'), Qt::CaseInsensitive);
    if (relative)
        text.chop(1);
    bool isNumber = false;
    const double factor = text.toDouble(&isNumber);
    if (!isNumber || factor <= 0)
        return scope.console.print(tr("A positive number is needed, or one with an x behind it."));
    if (relative)
        scope.canvas.zoomBy(factor);
    else
        scope.canvas.zoomToScale(factor);
}

void zoomPrevious(const CommandScope& scope) {
    if (!scope.canvas.zoomPrevious())
        scope.console.print(tr("There is no view before this one."));
}

void zoomBy(const CommandScope& scope, int keyword) {
    switch (keyword) {
    case 0:
        return scope.canvas.zoomExtents();
    case 1:
        return zoomWindow(scope);
    case 2:
        return zoomPrevious(scope);
    case 3:
        return scope.canvas.zoomBy(zoomStep);
    default:
        return scope.canvas.zoomBy(1 / zoomStep);
    }
}

void zoom(const CommandScope& scope) {
    const QString prompt = tr("Specify corner of window, enter a scale factor (n or nx), or [%s] <Extents>:");
    const QString words =
        tr("Extents Window Previous In Out") + QStringLiteral(" _ Extents Window Previous In Out");
    OdGePoint3d corner;
    OdString text;
    const int answer = scope.console.getPoint(nullptr, &corner, prompt.toStdWString().c_str(),
                                              words.toStdWString().c_str(), kAnyText, &text, nullptr);
    if (answer == kInputPicked)
        zoomToSecondCorner(scope, corner);
    else if (answer == kInputTyped)
        zoomScale(scope, hostqt::qString(text));
    else if (answer == kInputNone || answer >= kInputKeyword)
        zoomBy(scope, answer == kInputNone ? 0 : answer - kInputKeyword);
}

} // namespace

void addViewCommands(const CommandScope& scope) {
    scope.menus.addEntry({Menu::View, tr("Zoom &extents"), "ZOOM\nExtents", "zoom_extents"});
    scope.menus.addEntry({Menu::View, tr("Zoom &window"), "ZOOM\nWindow"});
    scope.menus.addEntry({Menu::View, tr("Zoom &previous"), "ZOOM\nPrevious"});
    scope.menus.addEntry({Menu::View, tr("Zoom &in"), "ZOOM\nIn", {}, QKeySequence::ZoomIn});
    scope.menus.addEntry({Menu::View, tr("Zoom &out"), "ZOOM\nOut", {}, QKeySequence::ZoomOut});
    scope.loop.add({"ZOOM", tr("Changes what part of the drawing is shown."), withDrawing(scope, zoom)});
    scope.loop.add({"REGEN", tr("Prepares the picture of the drawing anew."),
                    withDrawing(scope, [](const CommandScope& own) { own.canvas.regenerate(); })});
}

} // namespace workbench
