// Rays, and construction lines, which are two of them.
#include "standin/display/kinds.h"

namespace standin {

namespace {

OdGePoint3d start(const OdDbEntity& entity) { return entity.tags().point(entity.tags().own(), 10); }
OdGeVector3d direction(const OdDbEntity& entity) {
    return entity.tags().point(entity.tags().own(), 11).asVector();
}

} // namespace

void draw::ray(const OdDbEntity& entity, const Pencil& pencil) {
    pencil.endless(start(entity), direction(entity), pencil.world());
}

void draw::xline(const OdDbEntity& entity, const Pencil& pencil) {
    pencil.endless(start(entity), direction(entity), pencil.world());
    pencil.endless(start(entity), -direction(entity), pencil.world());
}

} // namespace standin
