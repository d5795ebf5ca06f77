// A drawing as callers see it: reading, writing, its tables and spaces.
#include "sdk/db/database.h"

#include "sdk/db/block_table.h"
#include "sdk/db/database_impl.h"
#include "sdk/db/dictionary.h"
#include "sdk/db/drawing_reader.h"
#include "sdk/db/drawing_writer.h"
#include "sdk/db/empty_drawing.h"
#include "sdk/db/layer_table.h"
#include "sdk/db/save_stamp.h"
#include "sdk/rx/file_bytes.h"

#include <algorithm>

ODRX_DEFINE_CLASS(OdDbDatabase, OdRxObject)

OdDbDatabase::OdDbDatabase() : parts(std::make_unique<OdDbDatabaseImpl>(*this)) {
    OdResBufPtr pickStyle = OdResBuf::newRb(OdResBuf::kDxfInt8);
    pickStyle->setInt8(1);
    parts->sessionVariables[L"PICKSTYLE"] = pickStyle;
}

OdDbDatabase::~OdDbDatabase() = default;

OdDbDatabasePtr OdDbDatabase::createEmpty() {
    OdDbDatabasePtr database = readBytes(odDbEmptyDrawingText(), L"new drawing");
    odDbStampCreation(*database);
    return database;
}

OdDbDatabasePtr OdDbDatabase::readBytes(std::string bytes, const OdString& name) {
    OdDbDatabasePtr database(new OdDbDatabase);
    OdDbDrawingReader(*database->parts, name).read(std::move(bytes));
    // Loaded at once, so that the numbers of its anonymous groups are taken.
    const auto groups = odrxQuery<OdDbDictionary>(database->getGroupDictionaryId().openObject().get());
    if (!groups.isNull())
        groups->numEntries();
    return database;
}

OdDbDatabasePtr OdDbDatabase::readFile(const OdString& path) {
    const OdFileStamp stamp = odFileStamp(path);
    OdDbDatabasePtr database = readBytes(odReadFile(path), path);
    database->parts->filename = path;
    database->parts->fileStamp = stamp;
    return database;
}

bool OdDbDatabase::isFileChangedByOthers() const {
    if (parts->fileStamp == OdFileStamp())
        return false;
    const OdFileStamp present = odFileStamp(parts->filename);
    return present != OdFileStamp() && present != parts->fileStamp;
}

const std::vector<OdString>& OdDbDatabase::readWarnings() const { return parts->warnings; }

void OdDbDatabase::writeFile(const OdString& path) {
    if (isModified())
        odDbStampSave(*this);
    OdDbDrawingWriter writer(*parts);
    odWriteFile(path, writer.pieces());
    parts->filename = path;
    parts->fileStamp = odFileStamp(path);
    parts->savedState = parts->log.state();
    parts->headerSaved();
}

std::string OdDbDatabase::writeBytes() const {
    OdDbDrawingWriter writer(*parts);
    std::string bytes;
    for (const std::string_view piece : writer.pieces())
        bytes += piece;
    return bytes;
}

OdString OdDbDatabase::getFilename() const { return parts->filename; }
void OdDbDatabase::setFilename(const OdString& path) {
    if (path != parts->filename)
        parts->fileStamp = {};
    parts->filename = path;
}

OdString OdDbDatabase::versionName() const {
    return OdString(L"AC") + OdString(std::to_wstring(parts->version));
}

bool OdDbDatabase::isModified() const {
    return parts->log.state() != parts->savedState || parts->headerModified;
}

namespace {

// The viewport with number 1, which stands for the layout itself.
OdDbObjectId layoutViewport(OdDbObjectId space) {
    const auto block = odrxCast<OdDbBlockTableRecord>(space.safeOpenObject());
    for (OdDbObjectIterator it = block->newIterator(); !it.done(); it.step()) {
        const auto viewport = odrxQuery<OdDbViewport>(it.entity().get());
        if (!viewport.isNull() && viewport->number() == 1)
            return it.objectId();
    }
    return {};
}

constexpr const wchar_t* kGroups = L"ACAD_GROUP";

OdDbObjectId tableId(const OdDbDatabaseImpl& impl, const char* name) {
    return OdDbObjectId(impl.tables.at(name).record);
}

} // namespace

OdDbObjectId OdDbDatabase::getBlockTableId() const { return tableId(*parts, "BLOCK_RECORD"); }
OdDbObjectId OdDbDatabase::getLayerTableId() const { return tableId(*parts, "LAYER"); }
OdDbObjectId OdDbDatabase::getLinetypeTableId() const { return tableId(*parts, "LTYPE"); }
OdDbObjectId OdDbDatabase::getTextStyleTableId() const { return tableId(*parts, "STYLE"); }
OdDbObjectId OdDbDatabase::getDimStyleTableId() const { return tableId(*parts, "DIMSTYLE"); }
OdDbObjectId OdDbDatabase::getViewportTableId() const { return tableId(*parts, "VPORT"); }
OdDbObjectId OdDbDatabase::getModelSpaceId() const { return OdDbObjectId(parts->modelSpace); }
OdDbObjectId OdDbDatabase::getPaperSpaceId() const { return OdDbObjectId(parts->paperSpace); }

OdDbObjectId OdDbDatabase::getNamedObjectsDictionaryId() const {
    if (!parts->rootDictionary) {
        OdDbDictionaryPtr root(new OdDbDictionary);
        parts->rootDictionary = &parts->addUnwritten(*root, nullptr);
    }
    return OdDbObjectId(parts->rootDictionary);
}

// One that is created is no change: it enters the drawing with the first thing in it.
OdDbObjectId OdDbDatabase::getGroupDictionaryId(bool createIfNotFound) {
    const auto root = odrxCast<OdDbDictionary>(getNamedObjectsDictionaryId().safeOpenObject());
    const OdDbObjectId id = root->getAt(kGroups);
    const bool isThere = id.isValid() && id.objectClass()->isDerivedFrom(OdDbDictionary::desc());
    if (isThere || !createIfNotFound)
        return isThere ? id : OdDbObjectId();
    if (!parts->waitingGroups) {
        OdDbDictionaryPtr groups(new OdDbDictionary);
        parts->waitingGroups = &parts->addUnwritten(*groups, root->objectId().getStub());
    }
    return OdDbObjectId(parts->waitingGroups);
}

void OdDbDatabaseImpl::enterGroups() {
    const auto root = odrxCast<OdDbDictionary>(self.getNamedObjectsDictionaryId().safeOpenObject());
    const bool wasWritable = root->isWriteEnabled();
    root->upgradeOpen();
    root->remove(kGroups); // a damaged file has something else under this name
    setWritten(*waitingGroups);
    root->setAt(kGroups, load(*waitingGroups).get());
    if (!wasWritable)
        root->downgradeOpen();
}

OdDbObjectId OdDbDatabase::currentSpaceId() const {
    const bool inModelSpace = parts->header.integer("$TILEMODE", 1) != 0;
    return inModelSpace ? getModelSpaceId() : getPaperSpaceId();
}

OdDbObjectId OdDbDatabase::activeViewportId() const {
    if (parts->activeViewport && !parts->activeViewport->has(OdDbStub::kErased))
        return OdDbObjectId(parts->activeViewport);
    const OdDbObjectId space = currentSpaceId();
    if (space == getModelSpaceId()) {
        const auto& viewports = parts->tables.at("VPORT").entries;
        return viewports.empty() ? OdDbObjectId() : OdDbObjectId(viewports.front());
    }
    return layoutViewport(space);
}

void OdDbDatabase::setActiveViewportId(OdDbObjectId id) { parts->activeViewport = id.getStub(); }

OdDbObjectId OdDbDatabase::getOdDbObjectId(OdDbHandle handle) const {
    OdDbStub* stub = parts->handles.find(handle.number());
    return stub && !stub->has(OdDbStub::kStructure) ? OdDbObjectId(stub) : OdDbObjectId();
}

OdDbObjectId OdDbDatabase::addOdDbObject(OdDbObject* object, OdDbObjectId owner) {
    return OdDbObjectId(&parts->add(*object, owner.getStub()));
}

OdFileDependencyManager* OdDbDatabase::fileDependencyManager() { return &parts->dependencies; }

void OdDbDatabase::addReactor(OdDbDatabaseReactor* reactor) { parts->reactors.push_back(reactor); }

void OdDbDatabase::removeReactor(OdDbDatabaseReactor* reactor) {
    auto& list = parts->reactors;
    list.erase(std::remove(list.begin(), list.end(), reactor), list.end());
}
