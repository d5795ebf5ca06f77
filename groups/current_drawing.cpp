#include "groups/current_drawing.h"

#include "host/qt_application.h"

HostCommandIO* currentIO() {
    HostDocument* const document = currentDocument();
    return document ? document->commandIO() : HostDocManager()->fallbackIO();
}

HostEditorSelection* currentEditor() {
    HostDocument* const document = currentDocument();
    return document ? document->selection() : nullptr;
}

OdDbDatabasePtr currentDatabase() {
    HostDocument* const document = currentDocument();
    return document ? document->database() : OdDbDatabasePtr();
}

OdDbDatabasePtr consoleDatabase() { return odrxQuery<OdDbDatabase>(qtCurrentDatabaseObject()); }

OdDbDictionaryPtr openGroupDictionary(const OdDbDatabasePtr& database, OdDb::OpenMode mode) {
    if (database.isNull())
        return {};
    return odrxCast<OdDbDictionary>(database->getGroupDictionaryId(true).openObject(mode));
}

OdDbGroupPtr groupByName(const OdDbDictionaryPtr& dictionary, const OdString& name, OdDb::OpenMode mode) {
    return odrxCast<OdDbGroup>(dictionary->getAt(name, mode));
}
