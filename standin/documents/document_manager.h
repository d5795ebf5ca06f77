// The open documents and which of them is the current one.
#pragma once

#include "standin/documents/document.h"

#include <QObject>
#include <vector>

namespace standin {

// Registers itself as HostDocManager() for its lifetime.
class DocumentManager : public QObject, public HostDocumentManager {
    Q_OBJECT
public:
    DocumentManager(Console& console, SysVarTable variables);
    ~DocumentManager() override;

    HostDocument* currentDocument() override { return current; }
    HostCommandIO* fallbackIO() override;
    HostVarService* varService() override { return &variableService; }
    VarService& variables() { return variableService; }

    Document* currentOne() const { return current; }
    std::vector<Document*> all() const;
    // Both make the new document the current one. An empty one is titled Drawing1, Drawing2 and so on.
    Document* openEmpty();
    Document* openFile(const QString& path); // throws OdError
    // Opens what a file holds as a drawing that was never saved, so that the file stays as it is.
    Document* openCopy(const QString& path, const QString& title); // throws OdError
    // Writes the drawing, which has the file's name from then on. Throws OdError.
    void save(Document* document, const QString& path);
    // Writes `drawing` instead and opens the file in place of the document, which is closed. Throws OdError,
    // and the document stays open.
    Document* saveInstead(Document* document, const OdSmartPtr<OdDbDatabase>& drawing, const QString& path);
    void activate(Document* document);
    void close(Document* document);                         // the one opened before it becomes current
    Document* documentOf(const OdRxObject* database) const; // null when it is none of the open ones'
    Document* documentOfFile(const QString& path) const;    // likewise

signals:
    void currentChanged();
    void documentOpened(standin::Document* document); // from a file; it is the current one by now
    // The file, if there is one, still is as it was before.
    void beforeSave(standin::Document* document, const QString& path);
    // After that. `drawing` is what is written: the document's, or the one that takes its place.
    void beforeWrite(standin::Document* document, OdDbDatabase* drawing);
    void afterSave(bool saved); // false: the file is as it was before
    void documentRenamed();     // it was saved under another name
    void documentClosed(const QString& title);

private:
    Document* adopt(std::unique_ptr<Document> document);
    void write(Document* document, OdDbDatabase& drawing, const QString& path);
    Document* adoptOpened(std::unique_ptr<Document> document);
    DrawingVars* drawingVars(OdRxObject* context) const;

    Console& io;
    VarService variableService;
    std::vector<std::unique_ptr<Document>> documents;
    Document* current = nullptr;
    int emptyCount = 0;
};

} // namespace standin
