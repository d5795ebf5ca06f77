// The one way to the document that a command works on.
#include "host/documents.h"

HostDocument* currentDocument() {
    HostDocumentManager* const manager = HostDocManager();
    return manager ? manager->currentDocument() : nullptr;
}
