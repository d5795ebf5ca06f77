// Commands about the open drawings as a whole.
#include "workbench/commands/drawing_commands.h"

#include "host/text.h"
#include "sdk/db/block_table.h"
#include "sdk/db/newer_version.h"
#include "standin/console/command_loop.h"
#include "standin/console/console.h"
#include "standin/documents/document_manager.h"
#include "workbench/canvas/canvas.h"
#include "workbench/commands/commands.h"
#include "workbench/commands/file_questions.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

using namespace standin;

namespace workbench {

namespace {

QString tr(const char* text) { return QCoreApplication::translate("DrawingCommands", text); }

bool isEmpty(const OdDbDatabase& drawing) {
    for (const OdDbObjectId& space : {drawing.getModelSpaceId(), drawing.getPaperSpaceId()})
        if (!space.isNull() && !odrxCast<OdDbBlockTableRecord>(space.safeOpenObject())->entityIds().empty())
            return false;
    return true;
}

bool isUntouched(Document& document) {
    const OdDbDatabase& drawing = *document.database();
    return document.path().isEmpty() && !drawing.isModified() && !drawing.hasUndo() && !drawing.hasRedo() &&
           isEmpty(drawing);
}

// A drawing that is open already is brought to the front.
void openDrawing(const CommandScope& scope) {
    const auto path = scope.files.fileToOpen(folderOfCurrent(scope.documents));
    if (!path)
        return;
    if (Document* open = scope.documents.documentOfFile(*path))
        return scope.documents.activate(open);
    openInPlaceOfUntouched(scope.documents, [&] { scope.documents.openFile(*path); });
}

void closeCurrent(const CommandScope& scope) {
    if (settleChanges(scope.documents, *scope.documents.currentOne(), scope.files))
        scope.documents.close(scope.documents.currentOne());
}

void save(const CommandScope& scope) {
    if (saveDrawing(scope.documents, *scope.documents.currentOne(), scope.files))
        scope.console.print(tr("Saved as %1.").arg(scope.documents.currentOne()->path()));
}

void saveAs(const CommandScope& scope) {
    if (saveDrawingAs(scope.documents, *scope.documents.currentOne(), scope.files))
        scope.console.print(tr("Saved as %1.").arg(scope.documents.currentOne()->path()));
}

void listDrawings(Console& console, const DocumentManager& documents) {
    for (const Document* document : documents.all())
        console.print((document == documents.currentOne() ? QStringLiteral("* ") : QStringLiteral("  ")) +
                      document->displayName());
    if (documents.all().empty())
        console.print(tr("No drawing is open."));
}

bool mayWrite(Document& document, const QString& path, const FileQuestions& files) {
    const bool isOwn = QFileInfo(path) == QFileInfo(document.path());
    return !isOwn || !document.database()->isFileChangedByOthers() || files.mayOverwriteChanged(path);
}

bool writeNewer(DocumentManager& documents, Document& document, const QString& path,
                const FileQuestions& files) {
    std::vector<OdString> missed;
    const OdDbDatabasePtr newer = odDbInNewerVersion(*document.database(), missed);
    QStringList leftOut;
    for (const OdString& what : missed)
        leftOut << hostqt::qString(what);
    if (!files.mayMakeNewer(document.displayName(), leftOut))
        return false;
    documents.saveInstead(&document, newer, path);
    return true;
}

bool writeIfAllowed(DocumentManager& documents, Document& document, const QString& path,
                    const FileQuestions& files) {
    const Document* holder = documents.documentOfFile(path);
    if (holder && holder != &document)
        throw OdError(tr("%1 is open in another tab: close it first.").arg(path).toStdWString());
    if (!mayWrite(document, path, files))
        return false;
    if (odDbNeedsNewerVersion(*document.database()))
        return writeNewer(documents, document, path, files);
    documents.save(&document, path);
    return true;
}

// The error goes on to the console, as that of any command.
bool write(DocumentManager& documents, Document& document, const QString& path, const FileQuestions& files) {
    try {
        return writeIfAllowed(documents, document, path, files);
    } catch (const OdError& error) {
        files.tellNotSaved(document.displayName(), hostqt::qString(error.description()));
        throw;
    }
}

} // namespace

void openInPlaceOfUntouched(DocumentManager& documents, const std::function<void()>& open) {
    Document* const former = documents.currentOne();
    open();
    if (former && isUntouched(*former))
        documents.close(former);
}

QString folderOfCurrent(const DocumentManager& documents) {
    const Document* current = documents.currentOne();
    return current && !current->path().isEmpty() ? QFileInfo(current->path()).absolutePath() : QString();
}

bool saveDrawing(DocumentManager& documents, Document& document, const FileQuestions& files) {
    if (document.path().isEmpty())
        return saveDrawingAs(documents, document, files);
    return write(documents, document, document.path(), files);
}

bool saveDrawingAs(DocumentManager& documents, Document& document, const FileQuestions& files) {
    const QString suggested = document.path().isEmpty()
                                  ? QDir::current().filePath(document.displayName() + QStringLiteral(".dxf"))
                                  : document.path();
    const auto path = files.fileToSave(suggested, document.path());
    return path && write(documents, document, *path, files);
}

bool settleChanges(DocumentManager& documents, Document& document, const FileQuestions& files) {
    if (!document.database()->isModified())
        return true;
    documents.activate(&document); // so that one sees what the question is about
    switch (files.whatOfChanges(document.displayName())) {
    case Unsaved::Save:
        return saveDrawing(documents, document, files);
    case Unsaved::Discard:
        return true;
    default:
        return false;
    }
}

bool settleAllChanges(DocumentManager& documents, const FileQuestions& files) {
    for (Document* document : documents.all())
        if (!settleChanges(documents, *document, files))
            return false;
    return true;
}

std::function<void()> withDrawing(const CommandScope& scope, void (*command)(const CommandScope&)) {
    return [scope, command] {
        if (scope.documents.currentOne())
            command(scope);
        else
            scope.console.print(tr("No drawing is open."));
    };
}

static void addFileEntries(MenuSink& menus) {
    menus.addEntry({Menu::File, tr("&New drawing"), "NEW", "template", QKeySequence::New});
    menus.addEntry({Menu::File, tr("&Open..."), "OPEN", "folders", QKeySequence::Open});
    menus.addEntry({Menu::File, tr("&Save"), "SAVE", "save", QKeySequence::Save, true});
    menus.addEntry(
        {Menu::File, tr("Save &as..."), "SAVEAS", {}, QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_S)});
    menus.addEntry({Menu::File, tr("&Close drawing"), "CLOSE", {}, QKeySequence::Close});
}

void addDrawingCommands(const CommandScope& scope) {
    QObject::connect(&scope.documents, &DocumentManager::documentOpened, &scope.documents,
                     [scope](Document* document) { scope.canvas.printUnshown(*document); });
    Console& console = scope.console;
    DocumentManager& documents = scope.documents;
    addFileEntries(scope.menus);
    scope.loop.add({"NEW", tr("Opens an empty drawing."), [&documents] { documents.openEmpty(); }});
    scope.loop.add({"OPEN", tr("Opens a drawing from a file."), [scope] { openDrawing(scope); }});
    scope.loop.add({"SAVE", tr("Saves the current drawing."), withDrawing(scope, save)});
    scope.loop.add({"SAVEAS", tr("Saves the current drawing in another file."), withDrawing(scope, saveAs)});
    scope.loop.add({"CLOSE", tr("Closes the current drawing."), withDrawing(scope, closeCurrent)});
    scope.loop.add({"DRAWINGS", tr("Lists the open drawings; a star marks the current one."),
                    [&console, &documents] { listDrawings(console, documents); }});
}

} // namespace workbench
