// Commands that take changes back, select objects and tell about them.
#include "workbench/commands/commands.h"

#include "host/text.h"
#include "sdk/db/database.h"
#include "sdk/db/progress.h"
#include "standin/console/command_loop.h"
#include "standin/console/console.h"
#include "standin/documents/document_manager.h"
#include "standin/selection/editor_selection.h"
#include "workbench/commands/object_text.h"

#include <QCoreApplication>
#include <algorithm>

using namespace standin;

namespace workbench {

namespace {

QString tr(const char* text) { return QCoreApplication::translate("EditCommands", text); }

// What was changed outside of a command has no name.
QString told(const QString& named, const QString& nameless, const OdString& name) {
    return name.isEmpty() ? nameless : named.arg(hostqt::qString(name));
}

void undo(const CommandScope& scope) {
    OdDbDatabase& drawing = *scope.documents.currentOne()->database();
    const OdString name = drawing.undoName();
    scope.console.print(drawing.undo() ? told(tr("Undone: %1."), tr("The last change was undone."), name)
                                       : tr("There is nothing to undo."));
    HostUpdateDisplay();
}

void redo(const CommandScope& scope) {
    OdDbDatabase& drawing = *scope.documents.currentOne()->database();
    const OdString name = drawing.redoName();
    scope.console.print(drawing.redo()
                            ? told(tr("Done again: %1."), tr("The last change was done again."), name)
                            : tr("There is nothing to redo."));
    HostUpdateDisplay();
}

// The prompt makes what it collects the selection.
int selectObjects(const CommandScope& scope, hostSelectionSetPtr* set) {
    return scope.documents.currentOne()->editor().selectObjects(
        set, 0, tr("Select objects:").toStdWString().c_str(), nullptr, 0, 0, 0, 0, 0);
}

void select(const CommandScope& scope) {
    hostSelectionSetPtr set;
    selectObjects(scope, &set);
}

// Printed in parts: a line at a time, the console takes longer than all the rest.
void listObjects(const CommandScope& scope, const OdDbObjectIdArray& ids) {
    const std::size_t most = 500;
    const GroupNames groups(*scope.documents.currentOne()->database(), ids);
    for (std::size_t from = 0; from < ids.size(); from += most) {
        const std::size_t to = std::min(from + most, ids.size());
        QStringList lines;
        for (std::size_t i = from; i < to; ++i)
            lines += objectText(ids[i], groups);
        scope.console.print(lines.join(QLatin1Char('\n')));
        odDbReportProgress(OdDbProgressMeter::kListing, to, ids.size());
    }
}

// What is selected already is taken without asking.
void list(const CommandScope& scope) {
    hostSelectionSetPtr set = scope.documents.currentOne()->editor().getSelection();
    if ((set.isNull() || set->count() == 0) && selectObjects(scope, &set) != kInputPicked)
        return;
    OdDbObjectIdArray ids;
    set->objectIds(ids);
    listObjects(scope, ids);
}

} // namespace

void addEditCommands(const CommandScope& scope) {
    scope.menus.addEntry({Menu::Edit, tr("&Undo"), "UNDO", "undo", QKeySequence::Undo});
    scope.menus.addEntry({Menu::Edit, tr("&Redo"), "REDO", "redo", QKeySequence(Qt::CTRL + Qt::Key_Y)});
    scope.menus.addEntry({Menu::Edit, tr("Select &all"), "SELECT\nAll\n", {}, QKeySequence::SelectAll, true});
    scope.menus.addEntry({Menu::Edit, tr("&List selected objects"), "LIST"});
    scope.loop.add({"UNDO", tr("Takes the last command's changes back."), withDrawing(scope, undo)});
    scope.loop.add({"REDO", tr("Does again what UNDO took back."), withDrawing(scope, redo)});
    scope.loop.add({"SELECT", tr("Selects objects."), withDrawing(scope, select)});
    scope.loop.add({"LIST", tr("Tells about the selected objects."), withDrawing(scope, list)});
    DocumentManager& documents = scope.documents;
    QObject::connect(&scope.loop, &CommandLoop::commandStarted, &documents,
                     [&documents](const QString& name) {
                         if (Document* current = documents.currentOne()) {
                             current->database()->startUndoRecord();
                             current->database()->nameUndoSteps(hostqt::odString(name));
                         }
                     });
}

} // namespace workbench
