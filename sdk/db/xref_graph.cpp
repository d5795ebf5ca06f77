// Collects the references of a drawing, with those that they bring along.
#include "sdk/db/xref_graph.h"

namespace {

OdDbXrefGraphNode nodeOf(const OdDbDatabase& database, const OdDbBlockTableRecord& block) {
    OdDbXrefGraphNode node;
    node.name = block.getName();
    node.path = block.pathName();
    node.btrId = block.objectId();
    node.flags = OdDbXrefGraphNode::kReference;
    if (block.isFromOverlayReference())
        node.flags |= OdDbXrefGraphNode::kOverlay;
    const bool isLoaded = !block.xrefDatabase().isNull();
    const bool isThere = !OdDbXRefMan::findFile(database, node.path).isEmpty();
    node.status = isLoaded ? kXrfResolved : isThere ? kXrfUnloaded : kXrfFileNotFound;
    return node;
}

} // namespace

OdResult OdDbXrefGraph::getFrom(OdDbDatabase* database, OdDbXrefGraph& graph, bool) {
    graph.nodes.clear();
    graph.followed.clear();
    if (!database)
        return eNullObjectPointer;
    OdDbXrefGraphNode host;
    host.name = host.path = database->getFilename();
    graph.nodes.push_back(host);
    graph.addReferences(*database, 0);
    return eOk;
}

// Loading stops at cycles; what several share would multiply if it were followed from each of them.
void OdDbXrefGraph::addReferences(OdDbDatabase& database, std::size_t parent) {
    const auto blocks = odrxCast<OdDbBlockTable>(database.getBlockTableId().safeOpenObject());
    for (OdDbSymbolTableIterator it = blocks->newIterator(); !it.done(); it.step()) {
        const auto block = odrxCast<OdDbBlockTableRecord>(it.getRecordId().openObject());
        const bool hidden = parent != 0 && block->isFromOverlayReference(); // overlays are not carried on
        if (!block->isFromExternalReference() || hidden)
            continue;
        const std::size_t position = nodes.size();
        nodes.push_back(nodeOf(database, *block));
        if (parent != 0)
            nodes.back().flags |= OdDbXrefGraphNode::kNested;
        nodes[parent].children.push_back(position);
        const OdDbDatabasePtr loaded = block->xrefDatabase();
        if (!loaded.isNull() && followed.insert(loaded.get()).second)
            addReferences(*loaded, position);
    }
}

const OdDbXrefGraphNode* OdDbXrefGraph::xrefNode(const OdString& name) const {
    for (std::size_t i = 1; i < nodes.size(); ++i)
        if (nodes[i].name.iCompare(name) == 0)
            return &nodes[i];
    return nullptr;
}
