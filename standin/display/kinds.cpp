#include "standin/display/kinds.h"

#include <unordered_map>

namespace standin {

namespace {

const bool missed = true; // without a picture, and a user would like to know

const std::vector<Kind> table{
    {"3DFACE", draw::face},
    {"3DSOLID", nullptr, missed},
    {"ACAD_PROXY_ENTITY", draw::proxy, missed, draw::canDrawProxy},
    {"ACAD_TABLE", draw::table},
    {"ARC", draw::arc},
    {"ARCALIGNEDTEXT", nullptr, missed},
    {"ARC_DIMENSION", draw::dimension, missed, draw::canDrawDimension},
    {"ATTDEF", draw::attributeDefinition},
    {"ATTRIB", draw::text},
    {"BLOCK"}, // the marks around a block
    {"BODY", nullptr, missed},
    {"CIRCLE", draw::circle},
    {"COORDINATION_MODEL", nullptr, missed},
    {"DGNUNDERLAY", draw::underlay},
    {"DIMENSION", draw::dimension, missed, draw::canDrawDimension},
    {"DWFUNDERLAY", draw::underlay},
    {"ELLIPSE", draw::ellipse},
    {"ENDBLK"},
    {"EXTRUDEDSURFACE", nullptr, missed},
    {"GEOPOSITIONMARKER", nullptr, missed},
    {"HATCH", draw::hatch},
    {"HELIX", draw::helix},
    {"IMAGE", draw::image},
    {"INSERT", draw::reference},
    {"LARGE_RADIAL_DIMENSION", draw::dimension, missed, draw::canDrawDimension},
    {"LEADER", draw::leader},
    {"LIGHT", nullptr, missed},
    {"LINE", draw::line},
    {"LOFTEDSURFACE", nullptr, missed},
    {"LWPOLYLINE", draw::polyline},
    {"MESH", draw::mesh},
    {"MLEADER", draw::multiLeader, missed, draw::canDrawMultiLeader},
    {"MLINE", draw::mline},
    {"MPOLYGON", draw::hatch},
    {"MTEXT", draw::mtext},
    {"MULTILEADER", draw::multiLeader, missed, draw::canDrawMultiLeader},
    {"NURBSURFACE", nullptr, missed},
    {"OLE2FRAME", draw::ole},
    {"OLEFRAME", nullptr, missed},
    {"PDFUNDERLAY", draw::underlay},
    {"PLANESURFACE", nullptr, missed},
    {"POINT", draw::point},
    {"POINTCLOUD", nullptr, missed},
    {"POINTCLOUDEX", nullptr, missed},
    {"POLYLINE", draw::polyline},
    {"RAY", draw::ray},
    {"REGION", nullptr, missed},
    {"REVOLVEDSURFACE", nullptr, missed},
    {"RTEXT", nullptr, missed},
    {"SECTIONOBJECT", nullptr, missed},
    {"SEQEND"},
    {"SHAPE", draw::shape},
    {"SOLID", draw::solid},
    {"SPLINE", draw::spline},
    {"SURFACE", nullptr, missed},
    {"SWEPTSURFACE", nullptr, missed},
    {"TEXT", draw::text},
    {"TOLERANCE", draw::tolerance},
    {"TRACE", draw::solid},
    {"VERTEX"},   // drawn by its polyline
    {"VIEWPORT"}, // a window of a layout
    {"WIPEOUT", draw::wipeout},
    {"XLINE", draw::xline},
};

std::unordered_map<std::string_view, const Kind*> byName() {
    std::unordered_map<std::string_view, const Kind*> result;
    for (const Kind& kind : table)
        result.emplace(kind.name, &kind);
    return result;
}

} // namespace

const std::vector<Kind>& kinds() { return table; }

const Kind* kindOf(std::string_view name) {
    static const auto names = byName();
    const auto found = names.find(name);
    return found == names.end() ? nullptr : found->second;
}

std::string_view kindName(const OdDbEntity& entity) {
    return entity.tags().empty() ? std::string_view() : dxfTrimmed(entity.tags()[0].value());
}

const Kind* kindOf(const OdDbEntity& entity) { return kindOf(kindName(entity)); }

bool isMissed(const OdDbEntity& entity) {
    const Kind* kind = kindOf(entity);
    if (!kind)
        return true;
    return kind->isMissed && (!kind->canDraw || !kind->canDraw(entity));
}

} // namespace standin
