// The one list of new definitions, kept between the dialog and the attaching.
#include "xref/new_definitions.h"

#include "sdk/db/block_table.h"

#include <unordered_set>

namespace {

std::unordered_set<OdDbObjectId>& newDefinitions() {
    static std::unordered_set<OdDbObjectId> ids;
    return ids;
}

} // namespace

void noteNewDefinition(OdDbObjectId id) { newDefinitions().insert(id); }

bool isNewDefinition(OdDbObjectId id) { return newDefinitions().count(id) != 0; }

void eraseUnusedDefinitions() {
    for (const OdDbObjectId id : newDefinitions()) {
        const auto record = odrxQuery<OdDbBlockTableRecord>(id.openObject(OdDb::kForWrite).get());
        if (!record.isNull())
            record->erase(true); // one that is used refuses
    }
}

NewDefinitionsScope::NewDefinitionsScope() { newDefinitions().clear(); }

NewDefinitionsScope::~NewDefinitionsScope() { newDefinitions().clear(); }
