// The three places, in the order in which they count.
#include "standin/references/reference_files.h"

#include "host/text.h"
#include "sdk/db/database.h"

#include <QDir>
#include <QFileInfo>

namespace standin {

CXStringW ReferenceFiles::startFolder(OdDbDatabase* drawing) {
    const QString file = drawing ? hostqt::qString(drawing->getFilename()) : QString();
    const QString own = file.isEmpty() ? QDir::homePath() : QFileInfo(file).absolutePath();
    return hostqt::cxStringW(last.isEmpty() ? own : last);
}

} // namespace standin
