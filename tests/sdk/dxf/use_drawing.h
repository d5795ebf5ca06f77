// Asks a drawing everything that can be asked, for drawings that are damaged: nothing of it may crash or
// hang.
#pragma once

#include "sdk/db/block_reference.h"
#include "sdk/db/block_table.h"
#include "sdk/db/dictionary.h"
#include "sdk/db/group.h"
#include "sdk/db/summary_info.h"
#include "sdk/db/thumbnail.h"
#include "sdk/db/xref_graph.h"

inline void useTable(OdDbObjectId table) {
    const auto records = odrxQuery<OdDbSymbolTable>(table.openObject().get());
    if (records.isNull())
        return;
    for (OdDbSymbolTableIterator it = records->newIterator(); !it.done(); it.step())
        if (const auto record = odrxQuery<OdDbSymbolTableRecord>(it.getRecordId().openObject().get());
            !record.isNull())
            record->getName();
}

inline void useEntity(const OdDbEntity& entity) {
    OdGeExtents3d box;
    entity.getGeomExtents(box);
    entity.layerId();
    entity.colorIndex();
    entity.trueColor();
    entity.linetype();
    entity.extensionDictionary();
    entity.ownerId();
}

inline void useBlocks(OdDbDatabase& database) {
    const auto blocks = odrxQuery<OdDbBlockTable>(database.getBlockTableId().openObject().get());
    for (OdDbSymbolTableIterator it = blocks->newIterator(); !it.done(); it.step()) {
        const auto block = odrxQuery<OdDbBlockTableRecord>(it.getRecordId().openObject().get());
        if (block.isNull())
            continue;
        block->extents();
        block->pathName();
        block->isFromExternalReference();
        for (OdDbObjectIterator entity = block->newIterator(); !entity.done(); entity.step())
            useEntity(*entity.entity());
    }
}

inline void useGroups(OdDbDatabase& database) {
    const auto groups = odrxQuery<OdDbDictionary>(database.getGroupDictionaryId().openObject().get());
    if (groups.isNull())
        return;
    for (auto it = groups->newIterator(1); !it->done(); it->next()) {
        const auto group = odrxQuery<OdDbGroup>(it->getObject().get());
        if (group.isNull())
            continue;
        OdDbObjectIdArray members;
        group->allEntityIds(members);
        group->name();
        group->description();
    }
}

inline void useEverything(OdDbDatabase& database) {
    useBlocks(database);
    useGroups(database);
    for (const OdDbObjectId table : {database.getLayerTableId(), database.getLinetypeTableId(),
                                     database.getTextStyleTableId(), database.getViewportTableId()})
        useTable(table);
    oddbGetSummaryInfo(&database);
    database.currentSpaceId();
    database.activeViewportId();
    database.getTDCREATE();
    database.getTDINDWG();
}
