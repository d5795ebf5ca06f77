// Asks the host for its current document each time, so that no pointer to it is kept.
#include "dwgprops/current_drawing.h"

#include "host/documents.h"
#include "host/text.h"

namespace {
HostDocument* currentDocument() {
    HostDocumentManager* const manager = HostDocManager();
    return manager ? manager->currentDocument() : nullptr;
}
} // namespace

OdDbDatabasePtr currentDrawing() {
    HostDocument* const document = currentDocument();
    return document ? document->database() : OdDbDatabasePtr();
}

QString currentTitle() {
    HostDocument* const document = currentDocument();
    return document ? hostqt::qString(document->title()) : QString();
}
