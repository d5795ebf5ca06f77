#include "workbench/commands/left_highlight.h"

#include "sdk/db/entity.h"

namespace workbench {

LeftHighlight::LeftHighlight(OdDbDatabasePtr watched) : drawing(std::move(watched)) {
    drawing->addReactor(this);
}

// Erased objects too: UNDO would bring them back as they are.
LeftHighlight::~LeftHighlight() {
    drawing->removeReactor(this);
    for (const OdDbObjectId& id : changed) {
        const auto entity = odrxQuery<OdDbEntity>(id.openObject(OdDb::kForRead, true).get());
        if (!entity.isNull() && entity->isHighlighted())
            entity->highlight(false);
    }
}

// On and off again is no change.
void LeftHighlight::highlightChanged(OdDbObjectId id) {
    if (!changed.insert(id).second)
        changed.erase(id);
}

} // namespace workbench
