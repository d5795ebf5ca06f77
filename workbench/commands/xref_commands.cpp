// Runs the plug-in's attach command, lists the references of the drawing and reads them anew.
#include "workbench/commands/xref_commands.h"

#include "host/attach_files.h"
#include "host/text.h"
#include "sdk/db/block_table.h"
#include "sdk/db/xref_man.h"
#include "standin/console/command_loop.h"
#include "standin/console/console.h"
#include "standin/documents/document_manager.h"
#include "workbench/canvas/canvas.h"
#include "workbench/commands/commands.h"
#include "workbench/commands/file_questions.h"
#include "workbench/module_loader.h"

#include <QCoreApplication>

using namespace standin;
using hostqt::odString;
using hostqt::qString;

namespace workbench {

namespace {

QString tr(const char* text) { return QCoreApplication::translate("XrefCommands", text); }

using References = std::vector<OdDbBlockTableRecordPtr>;

References referencesOf(const OdDbDatabasePtr& drawing) {
    References found;
    const auto blocks = odrxCast<OdDbBlockTable>(drawing->getBlockTableId().safeOpenObject());
    for (OdDbSymbolTableIterator it = blocks->newIterator(); !it.done(); it.step()) {
        const auto block = odrxCast<OdDbBlockTableRecord>(it.getRecord());
        if (block->isFromExternalReference())
            found.push_back(block);
    }
    return found;
}

// Where the drawing of a reference was read from, or where it would be; empty when there is no such file.
QString foundPath(const OdDbBlockTableRecord& reference) {
    const OdDbDatabasePtr loaded = reference.xrefDatabase();
    return qString(loaded.isNull() ? OdDbXRefMan::findFile(*reference.database(), reference.pathName())
                                   : loaded->getFilename());
}

QString statusText(const OdDbBlockTableRecord& reference) {
    if (!reference.xrefDatabase().isNull())
        return tr("loaded");
    return foundPath(reference).isEmpty() ? tr("not found") : tr("not loaded");
}

void print(Console& console, const OdDbBlockTableRecord& reference) {
    const QString kind = reference.isFromOverlayReference() ? tr("overlay") : tr("attachment");
    const QString found = foundPath(reference);
    console.print(tr("%1: %2, %3").arg(qString(reference.getName()), kind, statusText(reference)));
    console.print(tr("    saved path  %1").arg(qString(reference.pathName())));
    console.print(tr("    found at    %1").arg(found.isEmpty() ? tr("nowhere") : found));
}

// Prints at its end what reading references has left out of a drawing since its begin.
class LeftOutNotices {
public:
    explicit LeftOutNotices(const CommandScope& scope)
        : console(scope.console), drawing(scope.documents.currentOne()->database()),
          before(drawing->readWarnings().size()) {}
    ~LeftOutNotices() {
        for (std::size_t i = before; i < drawing->readWarnings().size(); ++i)
            console.print(qString(drawing->readWarnings()[i]));
    }
    LeftOutNotices(const LeftOutNotices&) = delete;
    LeftOutNotices& operator=(const LeftOutNotices&) = delete;

private:
    Console& console;
    const OdDbDatabasePtr drawing;
    const std::size_t before;
};

// What is loaded stays as it is unless it is unloaded first.
void reload(Console& console, const OdDbBlockTableRecordPtr& reference) {
    OdDbXRefMan::unload(reference.get());
    const OdResult result = OdDbXRefMan::load(reference.get());
    const QString name = qString(reference->getName());
    if (result == eOk)
        return console.print(tr("%1 is read anew from %2.").arg(name, foundPath(*reference)));
    console.print(tr("%1 can't be loaded from %2: %3")
                      .arg(name, qString(reference->pathName()), qString(OdError(result).description())));
}

void reloadNamed(const CommandScope& scope, const References& references, const QString& name) {
    bool any = false;
    const LeftOutNotices notices(scope);
    for (const OdDbBlockTableRecordPtr& reference : references) {
        if (name != QLatin1String("*") && reference->getName().iCompare(odString(name)) != 0)
            continue;
        reload(scope.console, reference);
        any = true;
    }
    if (!any)
        return scope.console.print(tr("There is no reference %1.").arg(name));
    scope.canvas.regenerate();
}

// The star is in no name of a block.
void listReferences(const CommandScope& scope) {
    const References references = referencesOf(scope.documents.currentOne()->database());
    for (const OdDbBlockTableRecordPtr& reference : references)
        print(scope.console, *reference);
    if (references.empty())
        return scope.console.print(tr("The drawing has no external references."));
    const std::wstring prompt = tr("Enter name of reference to reload, or * for all <none>:").toStdWString();
    OdString name;
    if (scope.console.getInput(prompt.c_str(), nullptr, kTextWithBlanks | kAnyText, &name, 0) == kInputTyped)
        reloadNamed(scope, references, qString(name).trimmed());
}

void attach(const CommandScope& scope, const LoadedModule& module) {
    const Ref<ICmdProcess> command = module.command("OdQCmd_hostAttachExternalReferenceCommand");
    if (!scope.documents.currentOne())
        return scope.console.print(tr("No drawing is open."));
    if (!command)
        return scope.console.print(tr("The plug-in can't attach references."));
    const LeftOutNotices notices(scope);
    command->Run(nullptr);
    scope.canvas.regenerate();
}

void printMissing(Console& console, const OdDbDatabasePtr& drawing) {
    for (const OdDbBlockTableRecordPtr& reference : referencesOf(drawing))
        if (reference->xrefDatabase().isNull())
            console.print(tr("Reference %1: %2 is %3.")
                              .arg(qString(reference->getName()), qString(reference->pathName()),
                                   statusText(*reference)));
}

class AttachFiles : public CKWUnknownImpl<IAttachFiles> {
public:
    AttachFiles(const DocumentManager& openDocuments, const FileQuestions& questions)
        : documents(openDocuments), ask(questions) {}
    bool askForFiles(std::vector<OdString>& files) override {
        const auto typed = ask.filesToAttach(folderOfCurrent(documents));
        for (const QString& file : typed.value_or(QStringList()))
            files.push_back(odString(file));
        return typed.has_value();
    }

private:
    const DocumentManager& documents;
    const FileQuestions& ask;
};

} // namespace

Ref<IKWUnknown> attachFilesFor(const CommandScope& scope) {
    return Ref<IKWUnknown>::share(new AttachFiles(scope.documents, scope.files));
}

void addXrefCommands(const CommandScope& scope, const LoadedModule& module) {
    scope.loop.add({"XATTACH", tr("Attaches drawings as external references."),
                    [scope, &module] { attach(scope, module); }});
    scope.loop.add({"XREFS", tr("Lists the external references and reads them anew."),
                    withDrawing(scope, listReferences)});
    scope.menus.addEntry({Menu::Insert, tr("E&xternal reference..."), "XATTACH", QStringLiteral("imp_exp")});
    scope.menus.addEntry({Menu::Insert, tr("&List of references"), "XREFS"});
    QObject::connect(
        &scope.documents, &DocumentManager::documentOpened, &scope.documents,
        [&console = scope.console](Document* document) { printMissing(console, document->database()); });
}

} // namespace workbench
