// Filled triangles and quadrangles.
#include "standin/display/kinds.h"

// The corners come in the order of a Z; the fourth may be missing or the same as the third.
void standin::draw::solid(const OdDbEntity& entity, const Pencil& pencil) {
    std::vector<OdGePoint3d> corners;
    for (const int code : {10, 11, 13, 12})
        if (entity.tags().find(code) != DxfTagList::npos)
            corners.push_back(entity.tags().point(entity.tags().own(), code));
    pencil.fill(corners, pencil.plane(entity));
}
