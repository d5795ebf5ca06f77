// Asks the host for its current document each time, so that no pointer to it is kept.
#include "dwgprops/current_drawing.h"

#include "host/documents.h"
#include "host/text.h"

OdDbDatabasePtr currentDrawing() {
    HostDocument* const document = currentDocument();
    return document ? document->database() : OdDbDatabasePtr();
}

QString currentTitle() {
    HostDocument* const document = currentDocument();
    return document ? hostqt::qString(document->title()) : QString();
}
