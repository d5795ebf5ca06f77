// The places, in the order in which they count.
#include "standin/references/reference_files.h"

#include "host/text.h"
#include "sdk/db/database.h"
#include "standin/documents/document_manager.h"

#include <QDir>
#include <QFileInfo>

namespace standin {

namespace {

// That of a copy is the file that it was made of.
QString fileOf(const OdDbDatabase& drawing) {
    const QString own = hostqt::qString(drawing.getFilename());
    const auto* const manager = dynamic_cast<DocumentManager*>(HostDocManager());
    const Document* const document = manager && own.isEmpty() ? manager->documentOf(&drawing) : nullptr;
    return document ? document->origin() : own;
}

} // namespace

CXStringW ReferenceFiles::startFolder(OdDbDatabase* drawing) {
    const QString file = drawing ? fileOf(*drawing) : QString();
    const QString own = file.isEmpty() ? QDir::homePath() : QFileInfo(file).absolutePath();
    return hostqt::cxStringW(last.isEmpty() ? own : last);
}

} // namespace standin
