// Loads referenced drawings, each once, and stops where one contains itself.
#include "sdk/db/xref_man.h"

#include "sdk/db/database_impl.h"
#include "sdk/db/xref_opening.h"
#include "sdk/rx/wide_text.h"

#include <QDir>
#include <QFileInfo>

namespace {

QString qt(const OdString& text) { return odQString(text.wide()); }
OdString od(const QString& text) { return text.toStdWString(); }

void noteDependency(OdDbDatabase& database, const OdString& savedPath, const QFileInfo& found) {
    OdFileDependencyInfo info;
    info.feature = kOdDbXrefFeature;
    info.fullFileName = savedPath;
    info.fileName = od(found.fileName());
    info.foundPath = od(found.absolutePath() + QLatin1Char('/'));
    database.fileDependencyManager()->createEntry(info);
}

// References that a reference brings with it: attached ones only.
void loadNested(OdDbDatabase& database) {
    const auto blocks = odrxCast<OdDbBlockTable>(database.getBlockTableId().safeOpenObject());
    for (OdDbSymbolTableIterator it = blocks->newIterator(); !it.done(); it.step()) {
        const auto block = odrxCast<OdDbBlockTableRecord>(it.getRecordId().openObject());
        if (block->isFromExternalReference() && !block->isFromOverlayReference())
            OdDbXRefMan::load(block.get());
    }
}

bool isLoadedFrom(const OdDbBlockTableRecord& record, const QFileInfo& file) {
    const OdDbDatabasePtr loaded = record.xrefDatabase();
    return !loaded.isNull() && loaded->impl().fileStamp == odFileStamp(od(file.filePath())) &&
           QFileInfo(qt(loaded->getFilename())).canonicalFilePath() == file.canonicalFilePath();
}

void takeUnits(OdDbBlockTableRecord& record, const OdDbDatabase& loaded) {
    if (record.blockInsertUnits() == loaded.getINSUNITS())
        return;
    const bool wasWritable = record.isWriteEnabled();
    record.upgradeOpen();
    record.setBlockInsertUnits(loaded.getINSUNITS());
    if (!wasWritable)
        record.downgradeOpen();
}

// A drawing that is only being shown has changed nothing by it, and there is nothing to undo.
enum class Loading { IsAChange, OnlyShows };

// The drawing of a file, which one opening reads once.
OdDbDatabasePtr loadedFrom(OdDbXrefOpening& opening, const QFileInfo& file, OdResult& result) {
    const QString path = file.canonicalFilePath();
    OdDbDatabasePtr loaded = opening.known(path);
    result = loaded.isNull() ? opening.enter(path) : eOk;
    if (!loaded.isNull() || result != eOk)
        return loaded;
    const OdDbXrefOpening::OnTheWay guard(opening);
    loaded = OdDbDatabase::readFile(od(file.absoluteFilePath()));
    loadNested(*loaded);
    opening.keep(loaded);
    return loaded;
}

OdResult loadFile(OdDbBlockTableRecord& record, const QFileInfo& file, Loading loading) {
    OdDbDatabase& host = *record.database();
    OdDbXrefOpening opening(host);
    OdDbDatabasePtr loaded = record.xrefDatabase();
    const bool isThere = isLoadedFrom(record, file);
    if (!isThere) {
        OdResult result = eOk;
        loaded = loadedFrom(opening, file, result);
        if (result != eOk)
            return result;
        noteDependency(host, record.pathName(), file);
    }
    if (loading == Loading::IsAChange)
        takeUnits(record, *loaded);
    if (isThere)
        return eOk;
    OdDbStub& block = *record.objectId().getStub();
    if (loading == Loading::IsAChange)
        host.impl().setXrefDatabase(block, loaded);
    else
        host.impl().blocks[&block].xrefDatabase = loaded;
    return eOk;
}

std::function<std::vector<OdString>()>& searchFolders() {
    static std::function<std::vector<OdString>()> folders;
    return folders;
}

// A path as it counts from a folder, or else its name alone there; empty when there is no such file.
OdString fileIn(const QDir& folder, const QString& path) {
    for (const QString& candidate : {folder.filePath(path), folder.filePath(QFileInfo(path).fileName())})
        if (QFileInfo(candidate).isFile())
            return od(QFileInfo(candidate).absoluteFilePath());
    return {};
}

OdResult loadRecord(OdDbBlockTableRecord* record, Loading loading) {
    if (!record || !record->database())
        return eNullObjectPointer;
    const OdString savedPath = record->pathName();
    if (savedPath.isEmpty())
        return eInvalidInput;
    const OdString found = OdDbXRefMan::findFile(*record->database(), savedPath);
    if (found.isEmpty())
        return eCantOpenFile;
    try {
        return loadFile(*record, QFileInfo(qt(found)), loading);
    } catch (const OdError& error) {
        return error.code();
    }
}

} // namespace

OdDbObjectId OdDbXRefManExt::addNewXRefDefBlock(OdDbDatabase* database, const OdString& path,
                                                const OdString& name, bool overlay, const OdString&,
                                                OdDbHandle) {
    const auto blocks = odrxCast<OdDbBlockTable>(database->getBlockTableId().safeOpenObject(OdDb::kForWrite));
    OdDbBlockTableRecordPtr record(new OdDbBlockTableRecord);
    record->setName(name);
    const OdDbObjectId id = blocks->add(record.get());
    record->setBlockFlags(OdDbBlockTableRecord::kXref);
    record->setPathName(path);
    OdDbXRefMan::setOverlaid(record.get(), overlay);
    return id;
}

OdResult OdDbXRefMan::load(OdDbBlockTableRecord* record) { return loadRecord(record, Loading::IsAChange); }

void OdDbXRefMan::unload(OdDbBlockTableRecord* record) {
    if (record->database())
        record->database()->impl().setXrefDatabase(*record->objectId().getStub(), {});
}

void OdDbXRefMan::setOverlaid(OdDbBlockTableRecord* record, bool overlaid) {
    const int flags = record->blockFlags();
    const int wanted = overlaid ? flags | OdDbBlockTableRecord::kXref | OdDbBlockTableRecord::kOverlay
                                : (flags | OdDbBlockTableRecord::kXref) & ~OdDbBlockTableRecord::kOverlay;
    if (wanted == flags)
        return;
    const bool wasWritable = record->isWriteEnabled();
    record->upgradeOpen();
    record->setBlockFlags(wanted);
    if (!wasWritable)
        record->downgradeOpen();
}

OdDbObjectIdArray OdDbXRefMan::loadAll(OdDbDatabase* database) {
    OdDbObjectIdArray failed;
    const OdDbXrefOpening opening(*database);
    const auto blocks = odrxCast<OdDbBlockTable>(database->getBlockTableId().safeOpenObject());
    for (OdDbSymbolTableIterator it = blocks->newIterator(); !it.done(); it.step()) {
        const auto block = odrxCast<OdDbBlockTableRecord>(it.getRecordId().openObject());
        if (block->isFromExternalReference() && loadRecord(block.get(), Loading::OnlyShows) != eOk)
            failed.push_back(it.getRecordId());
    }
    return failed;
}

void OdDbXRefMan::setSearchFolders(std::function<std::vector<OdString>()> folders) {
    searchFolders() = std::move(folders);
}

OdString OdDbXRefMan::findFile(const OdDbDatabase& database, const OdString& savedPath) {
    const QString path = qt(savedPath).replace(QLatin1Char('\\'), QLatin1Char('/'));
    const QString drawing = qt(database.getFilename());
    // Without a drawing's folder a relative path counts from the working folder.
    if ((QFileInfo(path).isAbsolute() || drawing.isEmpty()) && QFileInfo(path).isFile())
        return od(QFileInfo(path).absoluteFilePath());
    const OdString beside = drawing.isEmpty() ? OdString() : fileIn(QFileInfo(drawing).absoluteDir(), path);
    if (!beside.isEmpty() || !searchFolders())
        return beside;
    for (const OdString& folder : searchFolders()()) {
        const OdString found = fileIn(QDir(qt(folder)), path);
        if (!found.isEmpty())
            return found;
    }
    return {};
}
