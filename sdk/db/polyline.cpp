// Both kinds of polylines give the same list of vertices, so that the rest need not tell them apart.
#include "sdk/db/polyline.h"

#include "sdk/db/arc_extents.h"
#include "sdk/db/sub_entities.h"

#include <algorithm>
#include <functional>

ODRX_DEFINE_CLASS(OdDbPolylineBase, OdDbEntity)
ODRX_DEFINE_CLASS_WITH_MAKER(OdDbPolyline, OdDbPolylineBase)
ODRX_DEFINE_CLASS_WITH_MAKER(OdDb2dPolyline, OdDbPolylineBase)

namespace {
constexpr std::string_view kLight = "AcDbPolyline";
constexpr int kFlags = 70;
constexpr int kClosed = 1;
constexpr int kSpaceCurve = 8;
constexpr int kMeshes = 16 | 64;
constexpr int kFramePoint = 16;
constexpr int kFaceBits = 64 | 128;
constexpr int kFace = 128; // of a polyface mesh: it names vertices and is none
constexpr int kStartWidth = 40;
constexpr int kEndWidth = 41;
constexpr int kWidth = 43;

double commonOf(const std::vector<double>& widths) {
    const bool differs =
        std::adjacent_find(widths.begin(), widths.end(), std::not_equal_to<>()) != widths.end();
    return widths.empty() || differs ? 0 : widths.front();
}
} // namespace

void OdDbPolylineBase::addExtents(OdGeExtents3d& extents, const OdGeMatrix3d& toWorld) const {
    const std::vector<OdDbPolylineVertex> list = vertices();
    const OdGeMatrix3d matrix = toWorld * vertexToWorld();
    for (std::size_t i = 0; i < list.size(); ++i) {
        const bool last = i + 1 == list.size();
        if (last && !isClosed())
            extents.addPoint(matrix * list[i].point);
        else
            odDbAddBulgeExtents(extents, matrix, list[i].point, list[last ? 0 : i + 1].point, list[i].bulge);
    }
}

OdDbPolyline::OdDbPolyline() {
    startEntity("LWPOLYLINE", kLight);
    content.append(90, "0");
    content.append(kFlags, "0");
}

std::vector<OdDbPolylineVertex> OdDbPolyline::vertices() const {
    std::vector<OdDbPolylineVertex> list;
    const DxfTagList::Range range = content.subclass(kLight);
    const double elevation = content.real(range, 38), common = content.real(range, kWidth);
    for (std::size_t i = range.begin; i < range.end; ++i) {
        const DxfTag& tag = content[i];
        if (tag.code == 10)
            list.push_back({{dxfReal(tag.value()), 0, elevation}, 0, common, common});
        else if (tag.code == 20 && !list.empty())
            list.back().point.y = dxfReal(tag.value());
        else if (tag.code == 42 && !list.empty())
            list.back().bulge = dxfReal(tag.value());
        else if (tag.code == kStartWidth && !list.empty())
            list.back().startWidth = dxfReal(tag.value());
        else if (tag.code == kEndWidth && !list.empty())
            list.back().endWidth = dxfReal(tag.value());
    }
    return list;
}

bool OdDbPolyline::isClosed() const { return content.integer(kLight, kFlags) & kClosed; }

double OdDbPolyline::constantWidth() const {
    const DxfTagList::Range range = content.subclass(kLight);
    std::vector<double> widths;
    std::size_t corners = 0;
    for (std::size_t i = range.begin; i < range.end; ++i) {
        const int code = content[i].code;
        if (code == kWidth)
            return dxfReal(content[i].value());
        corners += code == 10;
        if (code == kStartWidth || code == kEndWidth)
            widths.push_back(dxfReal(content[i].value()));
    }
    return widths.size() == 2 * corners ? commonOf(widths) : 0;
}

void OdDbPolyline::setClosed(bool closed) {
    const std::int64_t flags = content.integer(kLight, kFlags);
    edit().set(kLight, kFlags, dxfText(closed ? flags | kClosed : flags & ~std::int64_t{kClosed}));
}

void OdDbPolyline::setVertices(const std::vector<OdDbPolylineVertex>& list) {
    DxfTagList& tags = edit();
    const DxfTagList::Range old = tags.subclass(kLight);
    for (std::size_t i = old.end; i-- > old.begin;) {
        const int code = tags[i].code;
        if (code == 10 || code == 20 || (code >= 40 && code <= 42) || code == 91)
            tags.erase(i);
    }
    tags.set(kLight, 90, dxfText(static_cast<std::int64_t>(list.size())));
    DxfTagList::Range range = tags.subclass(kLight);
    std::size_t place = range.end;
    for (const OdDbPolylineVertex& vertex : list) {
        tags.insert(place++, 10, dxfText(vertex.point.x));
        tags.insert(place++, 20, dxfText(vertex.point.y));
        if (vertex.bulge != 0)
            tags.insert(place++, 42, dxfText(vertex.bulge));
    }
}

std::vector<OdDbPolylineVertex> OdDb2dPolyline::vertices() const {
    std::vector<OdDbPolylineVertex> list;
    const double start = content.real(content.own(), kStartWidth);
    const double end = content.real(content.own(), kEndWidth);
    for (const OdDbObjectId id : odDbSubEntities(objectId())) {
        const OdDbObjectPtr vertex = id.openObject();
        const DxfTagList& tags = vertex->tags();
        const std::int64_t flags = tags.integer(tags.own(), kFlags);
        if (tags.empty() || tags[0].value() != "VERTEX" || (flags & kFramePoint) != 0 ||
            (flags & kFaceBits) == kFace)
            continue;
        list.push_back({tags.point(tags.own(), 10), tags.real(tags.own(), 42),
                        tags.real(tags.own(), kStartWidth, start), tags.real(tags.own(), kEndWidth, end)});
    }
    return list;
}

bool OdDb2dPolyline::isClosed() const { return content.integer(content.own(), kFlags) & kClosed; }

// Vertices that say nothing have the widths of the polyline.
double OdDb2dPolyline::constantWidth() const {
    const double start = content.real(content.own(), kStartWidth);
    const double end = content.real(content.own(), kEndWidth);
    std::vector<double> widths;
    for (const OdDbObjectId id : odDbSubEntities(objectId())) {
        const OdDbObjectPtr vertex = id.openObject();
        widths.push_back(vertex->tags().real(vertex->tags().own(), kStartWidth, start));
        widths.push_back(vertex->tags().real(vertex->tags().own(), kEndWidth, end));
    }
    return commonOf(widths);
}

OdGeMatrix3d OdDb2dPolyline::vertexToWorld() const {
    const bool inSpace = content.integer(content.own(), kFlags) & (kSpaceCurve | kMeshes);
    return inSpace ? OdGeMatrix3d::kIdentity : planeToWorld();
}

bool OdDb2dPolyline::isMesh() const { return content.integer(content.own(), kFlags) & kMeshes; }
