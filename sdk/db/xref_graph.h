// The tree of a drawing and its external references.
#pragma once

#include "sdk/db/xref_man.h"

#include <set>

enum OdDbXrefStatus { kXrfNotAnXref = 0, kXrfResolved = 1, kXrfUnloaded = 2, kXrfFileNotFound = 4 };

struct OdDbXrefGraphNode {
    enum Flag { kOverlay = 0x08, kReference = 0x10, kNested = 0x20 };
    OdString name; // block name; the drawing's file for the host
    OdString path;
    OdDbObjectId btrId;         // of the drawing that holds the reference
    int status = kXrfNotAnXref; // 0 for the host alone
    int flags = 0;
    std::vector<std::size_t> children; // positions in the graph

    bool isNested() const { return flags & kNested; }
};

class OdDbXrefGraph {
public:
    // Rebuilds the graph. The host comes first, then each reference in table order with those it brings
    // along; a drawing that several refer to brings its own along once.
    static OdResult getFrom(OdDbDatabase* database, OdDbXrefGraph& graph, bool includeGhosts = false);
    std::size_t numNodes() const { return nodes.size(); }
    const OdDbXrefGraphNode& node(std::size_t index) const { return nodes.at(index); }
    const OdDbXrefGraphNode& hostDwg() const { return nodes.at(0); }
    // By block name, ignoring case; null when there is none.
    const OdDbXrefGraphNode* xrefNode(const OdString& name) const;

private:
    void addReferences(OdDbDatabase& database, std::size_t parent);
    std::vector<OdDbXrefGraphNode> nodes;
    std::set<const OdDbDatabase*> followed;
};
