// Objects of other programs, by their frame and what they are called.
#include "standin/display/kinds.h"
#include "standin/display/kinds/frame.h"

void standin::draw::ole(const OdDbEntity& entity, const Pencil& pencil) {
    const DxfTagList& tags = entity.tags();
    constexpr std::string_view marker = "AcDbOle2Frame";
    const OdGePoint3d a = tags.point(marker, 10), b = tags.point(marker, 11);
    const OdString name = entity.textValue(marker, 3);
    drawFrame({a, {b.x, a.y, a.z}, b, {a.x, b.y, a.z}}, name.isEmpty() ? entity.dxfName() : name, pencil);
}
