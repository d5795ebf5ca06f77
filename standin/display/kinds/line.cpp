// Lines.
#include "sdk/db/curves.h"
#include "standin/display/kinds.h"

void standin::draw::line(const OdDbEntity& entity, const Pencil& pencil) {
    if (const auto* line = dynamic_cast<const OdDbLine*>(&entity))
        pencil.path({line->startPoint(), line->endPoint()}, pencil.world());
}
