// The search for a definition of the same file, the making of a new one, and the checks of what it refers to.
#include "xref/create_xref_reference.h"

#include "host/text.h"
#include "sdk/db/xref_graph.h"
#include "sdk/db/xref_man.h"
#include "xref/attach_host.h"
#include "xref/block_name.h"
#include "xref/new_definitions.h"
#include "xref/xref_blocks.h"
#include "xref/xref_paths.h"

#include <QDir>
#include <QFileInfo>

namespace {

QString canonical(const OdString& path) { return QFileInfo(hostqt::qString(path)).canonicalFilePath(); }

// The external reference whose path, as stored or as found, is the given one; null when there is none.
OdDbBlockTableRecordPtr recordOfPath(const OdDbBlockTablePtr& table, const QString& path) {
    const QString native = QDir::toNativeSeparators(path);
    for (OdDbSymbolTableIterator it = table->newIterator(); !it.done(); it.step()) {
        const auto record = odrxCast<OdDbBlockTableRecord>(it.getRecord());
        if (record->isFromExternalReference() &&
            (isSameFile(record->pathName(), native) || isSameFile(resolveXRefPath(record), native)))
            return record;
    }
    return {};
}

// The given name, or one from the file, as the table can take it; empty when there is none.
OdString freeName(const OdDbBlockTablePtr& table, const QString& given, const QFileInfo& file) {
    QString wanted = legalBlockName(given);
    if (wanted.isEmpty() && !blockNameFromFile(file.fileName(), 0, wanted))
        return {};
    const OdString name = hostqt::odString(wanted);
    return table->has(name) ? uniqueBlockName(table, name) : name;
}

// A drawing comes back to the current one when it attaches it, at any depth; overlays are not carried on. One
// that has no file yet can't be attached by anybody.
bool comesBackTo(const OdDbDatabase& current, OdDbDatabase* loaded) {
    const QString target = canonical(current.getFilename());
    if (target.isEmpty())
        return false;
    OdDbXrefGraph graph;
    OdDbXrefGraph::getFrom(loaded, graph, false);
    for (std::size_t i = 1; i < graph.numNodes(); ++i) {
        const OdDbXrefGraphNode& node = graph.node(i);
        const bool carried = !(node.flags & OdDbXrefGraphNode::kOverlay) && node.btrId.database();
        if (carried && canonical(OdDbXRefMan::findFile(*node.btrId.database(), node.path)) == target)
            return true;
    }
    return false;
}

void requireReadable(const OdDbBlockTableRecordPtr& record) {
    const OdResult result = OdDbXRefMan::load(record.get());
    if (result != eOk)
        throw OdError(result);
    if (comesBackTo(*record->database(), record->xrefDatabase(false).get()))
        throw OdError(eSelfReference);
}

void eraseRecord(const OdDbBlockTableRecordPtr& record) {
    record->upgradeOpen();
    record->erase(true);
}

OdDbBlockTableRecordPtr newDefinition(const OdDbDatabasePtr& database, const OdString& path,
                                      const OdString& name, bool overlay) {
    const OdDbObjectId id =
        OdDbXRefManExt::addNewXRefDefBlock(database.get(), path, name, overlay, OdString(), OdDbHandle());
    noteNewDefinition(id);
    return odrxCast<OdDbBlockTableRecord>(id.safeOpenObject());
}

// What can't be read leaves no new definition behind.
void requireReadableOrErase(const OdDbBlockTableRecordPtr& record, bool isNew) {
    try {
        requireReadable(record);
    } catch (...) {
        if (isNew)
            eraseRecord(record);
        throw;
    }
}

} // namespace

bool createXRefReference(const QString& path, QString& blockName, bool overlay,
                         OdDbBlockReferencePtr& reference, bool& hadDefinition, OdDbObjectId& blockId) {
    const QFileInfo file(path);
    const OdString pathText = hostqt::odString(path);
    const OdDbDatabasePtr database = attach::database();
    if (database.isNull() || path.isEmpty())
        return false;
    const bool attachPhase = blockName.isEmpty();
    if (attachPhase && !file.isFile() && OdDbXRefMan::findFile(*database, pathText).isEmpty())
        throw OdError(eCantOpenFile, pathText);
    const OdDbBlockTablePtr table = blockTableOf(database);
    OdDbBlockTableRecordPtr record = recordOfPath(table, path);
    const bool reused = !record.isNull();
    if (!reused) {
        const OdString name = freeName(table, blockName, file);
        if (name.isEmpty())
            return false;
        record = newDefinition(database, pathText, name, overlay);
    }
    if (attachPhase)
        requireReadableOrErase(record, !reused);
    hadDefinition = reused && !isNewDefinition(record->objectId());
    blockId = record->objectId();
    reference = OdDbBlockReferencePtr(new OdDbBlockReference);
    reference->setBlockTableRecord(blockId);
    blockName = hostqt::qString(record->getName());
    return true;
}

void eraseNewXRef(const OdDbBlockReferencePtr& reference) {
    const auto record =
        odrxQuery<OdDbBlockTableRecord>(reference->blockTableRecord().openObject(OdDb::kForWrite).get());
    if (!record.isNull()) {
        record->upgradeOpen();
        record->erase(true);
        reference->upgradeOpen();
    }
    reference->erase(true);
}
