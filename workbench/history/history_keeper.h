// The file history of the workbench: keeps the former file on each save, and answers who asks for it.
#pragma once

#include "standin/history/file_history.h"
#include "standin/history/version_store.h"

#include <QObject>

namespace standin {
class Console;
class Document;
class DocumentManager;
} // namespace standin

namespace workbench {

class FileQuestions;

class HistoryKeeper : public QObject {
    Q_OBJECT
public:
    // All but the root directory must outlive the keeper.
    HistoryKeeper(standin::DocumentManager& documentManager, standin::Console& console,
                  const FileQuestions& fileQuestions, const QString& rootDir, standin::StoreIo storeIo);

    // The oldest first; none for a drawing that was never saved.
    std::vector<standin::FileVersion> versionsOf(const standin::Document& document) const;
    // Opens a copy without a name, so that saving it asks for one. Throws OdError.
    void open(const standin::Document& document, const standin::FileVersion& version);

private:
    void keepFormer(standin::Document* document, const QString& path);
    void settleFormer(bool saved);
    QString reasonFor(const standin::Document& document, const QString& path) const;
    QString typedReason(const QString& path, const QString& otherwise) const;

    standin::DocumentManager& documents;
    standin::Console& io;
    const FileQuestions& files;
    standin::VersionStore store;
    std::optional<standin::KeptVersion> kept; // while the file is being written
    standin::RegisteredFileHistory registered;
};

// How a version is called to the user.
QString reasonText(const standin::FileVersion& version);
QString timeText(const standin::FileVersion& version);

} // namespace workbench
