// Shapes of shape files, which drawings only name: the box that their size gives.
#include "standin/display/kinds.h"

#include <cmath>

void standin::draw::shape(const OdDbEntity& entity, const Pencil& pencil) {
    const DxfTagList& tags = entity.tags();
    constexpr std::string_view marker = "AcDbShape";
    const double degree = M_PI / 180;
    const double high = tags.real(marker, 40, 1), wide = high * tags.real(marker, 41, 1);
    const double slant = high * std::tan(tags.real(marker, 51) * degree);
    const OdGeMatrix3d matrix = pencil.plane(entity) *
                                OdGeMatrix3d::translation(tags.point(marker, 10).asVector()) *
                                OdGeMatrix3d::rotation(tags.real(marker, 50) * degree, OdGeVector3d::kZAxis);
    pencil.path({{0, 0, 0}, {wide, 0, 0}, {wide + slant, high, 0}, {slant, high, 0}, {0, 0, 0}}, matrix);
}
