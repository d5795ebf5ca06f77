// Commands about the open drawings as a whole.
#include "workbench/commands/commands.h"

#include "standin/console/command_loop.h"
#include "standin/console/console.h"
#include "standin/documents/document_manager.h"

#include <QCoreApplication>

using namespace standin;

namespace workbench {

namespace {

QString tr(const char* text) { return QCoreApplication::translate("DrawingCommands", text); }

void closeCurrent(Console& console, DocumentManager& documents) {
    if (Document* current = documents.currentOne())
        documents.close(current);
    else
        console.print(tr("No drawing is open."));
}

void listDrawings(Console& console, const DocumentManager& documents) {
    for (const Document* document : documents.all())
        console.print((document == documents.currentOne() ? QStringLiteral("* ") : QStringLiteral("  ")) +
                      document->displayName());
    if (documents.all().empty())
        console.print(tr("No drawing is open."));
}

} // namespace

void addDrawingCommands(const CommandScope& scope) {
    Console& console = scope.console;
    DocumentManager& documents = scope.documents;
    scope.loop.add({"NEW", tr("Opens an empty drawing."), [&documents] { documents.openEmpty(); }});
    scope.loop.add({"CLOSE", tr("Closes the current drawing."),
                    [&console, &documents] { closeCurrent(console, documents); }});
    scope.loop.add({"DRAWINGS", tr("Lists the open drawings; a star marks the current one."),
                    [&console, &documents] { listDrawings(console, documents); }});
}

} // namespace workbench
