// The block table, and the comparison of the paths that blocks refer to.
#include "xref/xref_blocks.h"

#include "host/text.h"

#include <QDir>
#include <QFileInfo>

OdDbBlockTablePtr blockTableOf(const OdDbDatabasePtr& database) {
    return odrxCast<OdDbBlockTable>(database->getBlockTableId().safeOpenObject());
}

bool isSameFile(const OdString& path, const QString& native) {
    const QString other = QDir::toNativeSeparators(hostqt::qString(path));
    if (other == native)
        return true;
    const bool differInCase = other.compare(native, Qt::CaseInsensitive) == 0;
    return differInCase && !(QFileInfo::exists(other) && QFileInfo::exists(native));
}
