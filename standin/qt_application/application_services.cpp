// The interfaces of the Qt application, answered from the current document.
#include "standin/qt_application/host_application.h"

#include "host/documents.h"
#include "sdk/db/database.h"
#include "standin/sysvars/read_context.h"

namespace standin {

namespace {

OdSmartPtr<OdDbDatabase> currentDatabaseObject() {
    HostDocument* document = currentDocument();
    return document ? document->database() : OdSmartPtr<OdDbDatabase>();
}

} // namespace

ConsoleExtension::ConsoleExtension(QObject* parent) : QObject(parent) {}
ConsoleExtension::~ConsoleExtension() = default;

// The document keeps the database alive for the caller.
OdRxObject* ConsoleExtension::currentDatabase() { return currentDatabaseObject().get(); }

OdRxObjectPtr ApplicationServices::newContext(int, int) {
    return OdRxObjectPtr(new ReadContext(currentDatabaseObject()));
}

OdSmartPtr<OdDbDatabase> ApplicationServices::readFile(const OdString& path, int, int, int, const OdString&) {
    return OdDbDatabase::readFile(path);
}

} // namespace standin
