// The file history as the drawing properties ask for it: an extension of the class of the database, over the
// former versions that are kept below the root directory.
#pragma once

#include "host/file_history.h"
#include "sdk/rx/smart_ptr.h"

namespace standin {

class Document;
class DocumentManager;
class VersionStore;

class KWFileHistoryPE : public HostFileHistory {
public:
    // Both must outlive the extension.
    KWFileHistoryPE(const DocumentManager& documentManager, const VersionStore& versionStore)
        : documents(documentManager), store(versionStore) {}
    int query(wchar_t* document, std::vector<std::pair<OdString, OdString>>& out) override;

private:
    const Document* documentTitled(const wchar_t* title) const;

    const DocumentManager& documents;
    const VersionStore& store;
};

// Hangs an extension on the class of the database while it lives.
class RegisteredFileHistory {
public:
    explicit RegisteredFileHistory(OdSmartPtr<HostFileHistory> extension);
    ~RegisteredFileHistory();
    RegisteredFileHistory(const RegisteredFileHistory&) = delete;
    RegisteredFileHistory& operator=(const RegisteredFileHistory&) = delete;

private:
    OdSmartPtr<HostFileHistory> own;
};

} // namespace standin
