// Where a reference was found, and the forms in which its path is saved.
#include "xref/xref_paths.h"

#include "host/app.h"
#include "host/text.h"
#include "sdk/db/file_dependency.h"
#include "sdk/db/xref_man.h"
#include "xref/attach_host.h"

#include <QDir>
#include <QFileInfo>

QString relativeBase(const OdDbDatabasePtr& database) {
    const Ref<IAttachServices> services = appService<IAttachServices>();
    QString base = services ? hostqt::qString(services->basePath(database.get())) : QString();
    if (!base.isEmpty() && !base.endsWith(QLatin1Char('/')))
        base += QLatin1Char('/');
    return base;
}

bool relativeFilePath(const QString& base, const QString& target, QString& out) {
    if (!QFile::exists(base) || !QFile::exists(target))
        return false;
    out = QDir::toNativeSeparators(QDir(base).relativeFilePath(target));
    return true;
}

bool siblingFilePath(const QString& path, const QString& fileName, QString& out) {
    if (!QFile::exists(path))
        return false;
    out = QDir::toNativeSeparators(QDir(QFileInfo(path).path()).filePath(fileName));
    if (QFile::exists(out))
        return true;
    out.clear();
    return false;
}

// Made absolute only with an entry: a saved path that no entry tells of comes back as it stands.
OdString resolveXRefPath(const OdDbBlockTableRecordPtr& record) {
    const OdDbDatabasePtr database = attach::database();
    const OdString saved = record->pathName();
    OdFileDependencyInfo entry;
    if (database->fileDependencyManager()->getEntry(kOdDbXrefFeature, saved, entry) == 0) {
        const OdDbDatabasePtr loaded = record->xrefDatabase(false);
        return loaded.isNull() ? saved : loaded->getFilename();
    }
    const OdString found = entry.foundPath.isEmpty() ? entry.fullFileName : entry.foundPath + entry.fileName;
    return hostqt::odString(QFileInfo(hostqt::qString(found)).absoluteFilePath());
}

QString savedFormOfPath(const OdDbDatabasePtr& database, const QString& path, int pathType) {
    QString saved = path;
    if (pathType == kRelativePath)
        relativeFilePath(relativeBase(database), path, saved);
    if (pathType == kFileNameOnly)
        saved = QFileInfo(path).fileName();
    return saved;
}
