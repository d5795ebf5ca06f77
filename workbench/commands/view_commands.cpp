// ZOOM: what part of the drawing is shown.
#include "workbench/commands/commands.h"

#include "host/text.h"
#include "standin/console/command_loop.h"
#include "standin/console/console.h"
#include "workbench/canvas/canvas.h"

#include <QCoreApplication>

using namespace standin;

namespace workbench {

namespace {

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

void zoom(const CommandScope& scope) {
    const QString prompt = tr("Specify corner of window, enter a scale factor (n or nx), or [%s] <Extents>:");
    OdGePoint3d corner;
    OdString text;
    const int answer = scope.console.getPoint(nullptr, &corner, prompt.toStdWString().c_str(),
                                              L"Extents Window _ Extents Window", kAnyText, &text, nullptr);
    if (answer == kInputPicked)
        zoomToSecondCorner(scope, corner);
    else if (answer == kInputTyped)
        zoomScale(scope, hostqt::qString(text));
    else if (answer == kInputNone || answer == kInputKeyword)
        scope.canvas.zoomExtents();
    else if (answer == kInputKeyword + 1)
        zoomWindow(scope);
}

} // namespace

void addViewCommands(const CommandScope& scope) {
    scope.menus.addEntry({Menu::View, tr("Zoom &extents"), "ZOOM\nExtents"});
    scope.loop.add({"ZOOM", tr("Changes what part of the drawing is shown."), withDrawing(scope, zoom)});
}

} // namespace workbench
