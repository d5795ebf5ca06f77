#include "standin/documents/document_manager.h"

#include "host/text.h"
#include "sdk/db/database.h"
#include "sdk/db/xref_man.h"
#include "standin/console/console.h"
#include "standin/registry.h"
#include "standin/sysvars/read_context.h"

#include <QFileInfo>
#include <algorithm>

namespace standin {

DocumentManager::DocumentManager(Console& console, SysVarTable variables)
    : io(console),
      variableService(std::move(variables), [this](OdRxObject* context) { return drawingVars(context); }) {
    registry().documents = this;
}

DocumentManager::~DocumentManager() {
    if (registry().documents == this)
        registry().documents = nullptr;
}

HostCommandIO* DocumentManager::fallbackIO() { return &io; }

std::vector<Document*> DocumentManager::all() const {
    std::vector<Document*> result;
    for (const auto& document : documents)
        result.push_back(document.get());
    return result;
}

Document* DocumentManager::adopt(std::unique_ptr<Document> document) {
    documents.push_back(std::move(document));
    activate(documents.back().get());
    return current;
}

// What was found while reading is told once, here, whoever opens the drawing.
Document* DocumentManager::adoptOpened(std::unique_ptr<Document> document) {
    Document* opened = adopt(std::move(document));
    for (const OdString& notice : opened->database()->readWarnings())
        io.print(hostqt::qString(notice));
    emit documentOpened(opened);
    return opened;
}

Document* DocumentManager::openEmpty() {
    const QString title = tr("Drawing%1").arg(++emptyCount);
    return adopt(std::make_unique<Document>(OdDbDatabase::createEmpty(), io, title));
}

Document* DocumentManager::openFile(const QString& path) {
    const QString absolute = QFileInfo(path).absoluteFilePath();
    auto database = OdDbDatabase::readFile(hostqt::odString(absolute));
    OdDbXRefMan::loadAll(database.get());
    auto document = std::make_unique<Document>(std::move(database), io, QString());
    document->setPath(absolute);
    return adoptOpened(std::move(document));
}

Document* DocumentManager::openCopy(const QString& path, const QString& title) {
    auto database = OdDbDatabase::readFile(hostqt::odString(QFileInfo(path).absoluteFilePath()));
    OdDbXRefMan::loadAll(database.get()); // while it still knows where it lies
    database->setFilename(OdString());
    auto copy = std::make_unique<Document>(std::move(database), io, title);
    copy->setOrigin(path);
    return adoptOpened(std::move(copy));
}

void DocumentManager::write(Document* document, OdDbDatabase& drawing, const QString& path) {
    emit beforeSave(document, path);
    try {
        emit beforeWrite(document, &drawing);
        drawing.writeFile(hostqt::odString(path));
    } catch (...) {
        emit afterSave(false);
        throw;
    }
    emit afterSave(true);
}

void DocumentManager::save(Document* document, const QString& path) {
    write(document, *document->database(), path);
    if (document->path() == path)
        return;
    document->setPath(path);
    emit documentRenamed();
}

Document* DocumentManager::saveInstead(Document* document, const OdDbDatabasePtr& drawing,
                                       const QString& path) {
    write(document, *drawing, path);
    const bool hadSteps = document->database()->hasUndo() || document->database()->hasRedo();
    Document* opened = openFile(path);
    if (hadSteps)
        io.print(tr("%1 is a new drawing: the steps before it can't be undone any more.")
                     .arg(opened->displayName()));
    close(document);
    return opened;
}

void DocumentManager::activate(Document* document) {
    if (document == current)
        return;
    current = document;
    emit currentChanged();
}

void DocumentManager::close(Document* document) {
    const auto found = std::find_if(documents.begin(), documents.end(),
                                    [&](const auto& open) { return open.get() == document; });
    if (found == documents.end())
        return;
    const std::unique_ptr<Document> closing = std::move(*found);
    const auto after = documents.erase(found);
    if (current == document) {
        const auto next = after == documents.begin() ? after : std::prev(after);
        activate(documents.empty() ? nullptr : next->get());
    }
    emit documentClosed(closing->displayName());
}

Document* DocumentManager::documentOf(const OdRxObject* database) const {
    const auto found = std::find_if(documents.begin(), documents.end(),
                                    [&](const auto& open) { return open->database().get() == database; });
    return found == documents.end() ? nullptr : found->get();
}

Document* DocumentManager::documentOfFile(const QString& path) const {
    const QFileInfo wanted(path);
    const auto found = std::find_if(documents.begin(), documents.end(), [&](const auto& open) {
        return !open->path().isEmpty() && QFileInfo(open->path()) == wanted;
    });
    return found == documents.end() ? nullptr : found->get();
}

// Without a context, or with one that no open document belongs to, the current document counts.
DrawingVars* DocumentManager::drawingVars(OdRxObject* context) const {
    const OdRxObject* database = databaseOf(context);
    Document* document = database ? documentOf(database) : nullptr;
    return document ? document : current;
}

} // namespace standin

#include "moc_document_manager.cpp"
