// Answers for the document with the title that is asked for.
#include "standin/history/file_history.h"

#include "host/text.h"
#include "sdk/db/database.h"
#include "standin/documents/document_manager.h"
#include "standin/history/version_store.h"

namespace standin {

// Drawings of different folders may share a title; the current one comes first.
const Document* KWFileHistoryPE::documentTitled(const wchar_t* title) const {
    const QString wanted = hostqt::qString(title);
    const Document* current = documents.currentOne();
    if (current && current->displayName() == wanted)
        return current;
    for (const Document* document : documents.all())
        if (document->displayName() == wanted)
            return document;
    return nullptr;
}

int KWFileHistoryPE::query(wchar_t* document, std::vector<std::pair<OdString, OdString>>& out) {
    const Document* found = documentTitled(document);
    if (!found || found->path().isEmpty())
        return 0;
    const std::vector<FileVersion> versions = store.versionsOf(found->path());
    for (const FileVersion& version : versions)
        out.emplace_back(hostqt::odString(version.file), hostqt::odString(version.reason));
    return static_cast<int>(versions.size());
}

RegisteredFileHistory::RegisteredFileHistory(OdSmartPtr<HostFileHistory> extension)
    : own(std::move(extension)) {
    OdDbDatabase::desc()->addX(OdRxObject::desc(), own.get());
}

// One that another module has put in its place stays.
RegisteredFileHistory::~RegisteredFileHistory() {
    if (OdDbDatabase::desc()->getX(OdRxObject::desc()).get() == own.get())
        OdDbDatabase::desc()->delX(OdRxObject::desc());
}

} // namespace standin
