// Which class has which tags is told in one table here; the oldest version leaves it unsaid.
#include "sdk/db/upgraded_tags.h"

#include <algorithm>
#include <map>

namespace {

constexpr int kExtendedData = 1000;
constexpr int kFlags = 70;
constexpr int kMarker = 100;
constexpr int kBraces = 102;
constexpr int kOwner = 330;

// The tags of `lastCodes` stand behind the last marker, the others behind the first.
struct Markers {
    std::vector<std::string_view> first;
    std::vector<std::string_view> last = {};
    std::vector<int> lastCodes = {};
};

bool contains(const std::vector<int>& codes, int code) {
    return std::find(codes.begin(), codes.end(), code) != codes.end();
}

const std::vector<int>& commonCodes() {
    static const std::vector<int> codes{8, 6, 62, 60, 48, 67};
    return codes;
}

Markers markersOfPolyline(std::int64_t flags) {
    if (flags & 64)
        return {{"AcDbPolyFaceMesh"}};
    if (flags & 16)
        return {{"AcDbPolygonMesh"}};
    return {{flags & 8 ? "AcDb3dPolyline" : "AcDb2dPolyline"}};
}

Markers markersOfVertex(std::int64_t flags) {
    if ((flags & 192) == 128)
        return {{"AcDbFaceRecord"}};
    if ((flags & 192) == 192)
        return {{"AcDbVertex", "AcDbPolyFaceMeshVertex"}};
    if (flags & 64)
        return {{"AcDbVertex", "AcDbPolygonMeshVertex"}};
    return {{"AcDbVertex", flags & 32 ? "AcDb3dPolylineVertex" : "AcDb2dVertex"}};
}

Markers markersOfDimension(std::int64_t flags) {
    static const std::vector<int> points{12, 22, 32, 13, 23, 33, 14, 24, 34,
                                         15, 25, 35, 16, 26, 36, 40, 50, 52};
    static const std::vector<std::string_view> classes[] = {{"AcDbAlignedDimension", "AcDbRotatedDimension"},
                                                            {"AcDbAlignedDimension"},
                                                            {"AcDb2LineAngularDimension"},
                                                            {"AcDbDiametricDimension"},
                                                            {"AcDbRadialDimension"},
                                                            {"AcDb3PointAngularDimension"},
                                                            {"AcDbOrdinateDimension"},
                                                            {}};
    return {{"AcDbDimension"}, classes[flags & 7], points};
}

Markers markersOf(std::string_view name, std::int64_t flags) {
    static const std::map<std::string_view, Markers> markers{
        {"LINE", {{"AcDbLine"}}},
        {"POINT", {{"AcDbPoint"}}},
        {"CIRCLE", {{"AcDbCircle"}}},
        {"ARC", {{"AcDbCircle"}, {"AcDbArc"}, {50, 51}}},
        {"TRACE", {{"AcDbTrace"}}},
        {"SOLID", {{"AcDbTrace"}}},
        {"3DFACE", {{"AcDbFace"}}},
        {"SHAPE", {{"AcDbShape"}}},
        {"TEXT", {{"AcDbText"}, {"AcDbText"}, {73}}},
        {"ATTRIB", {{"AcDbText"}, {"AcDbAttribute"}, {2, 70, 73, 74}}},
        {"ATTDEF", {{"AcDbText"}, {"AcDbAttributeDefinition"}, {3, 2, 70, 73, 74}}},
        {"INSERT", {{"AcDbBlockReference"}}},
        {"VIEWPORT", {{"AcDbViewport"}}},
    };
    if (name == "POLYLINE")
        return markersOfPolyline(flags);
    if (name == "VERTEX")
        return markersOfVertex(flags);
    if (name == "DIMENSION")
        return markersOfDimension(flags);
    const auto found = markers.find(name);
    return found == markers.end() ? Markers() : found->second;
}

std::string_view markerOfTable(std::string_view name) {
    static const std::map<std::string_view, std::string_view> markers{
        {"LAYER", "AcDbLayerTableRecord"},       {"LTYPE", "AcDbLinetypeTableRecord"},
        {"STYLE", "AcDbTextStyleTableRecord"},   {"VIEW", "AcDbViewTableRecord"},
        {"UCS", "AcDbUCSTableRecord"},           {"APPID", "AcDbRegAppTableRecord"},
        {"DIMSTYLE", "AcDbDimStyleTableRecord"}, {"VPORT", "AcDbViewportTableRecord"},
    };
    const auto found = markers.find(name);
    return found == markers.end() ? std::string_view() : found->second;
}

// Handles and what refers to them belong to the old drawing.
template <class Wanted> void copyTags(const DxfTagList& from, DxfTagList& to, Wanted wanted) {
    bool inBraces = false;
    for (std::size_t i = 1; i < from.size(); ++i) {
        const int code = from[i].code;
        if (code == kBraces)
            inBraces = from[i].value().substr(0, 1) == "{";
        else if (!inBraces && code != 5 && code != 105 && code != kOwner && wanted(from[i]))
            to.append(code, from[i].value());
    }
}

void appendMarkers(DxfTagList& tags, const std::vector<std::string_view>& markers) {
    for (const std::string_view marker : markers)
        tags.append(kMarker, marker);
}

} // namespace

// Some files of the oldest version have markers all the same; where it is known which ones belong there,
// these are put in their place.
DxfTagList odDbUpgradedEntity(const DxfTagList& old) {
    constexpr std::string_view common = "AcDbEntity";
    const Markers markers = markersOf(dxfTrimmed(old[0].value()), old.integer(old.whole(), kFlags));
    const auto isLast = [&markers](const DxfTag& tag) { return contains(markers.lastCodes, tag.code); };
    const auto isCommon = [](const DxfTag& tag) { return contains(commonCodes(), tag.code); };
    const auto isFormer = [&](const DxfTag& tag) {
        return tag.code == kMarker && (!markers.first.empty() || dxfTrimmed(tag.value()) == common);
    };
    const auto isExtended = [](const DxfTag& tag) { return tag.code >= kExtendedData; };
    DxfTagList tags;
    tags.append(0, dxfTrimmed(old[0].value()));
    tags.append(kMarker, common);
    if (old.find(8) == DxfTagList::npos)
        tags.append(8, "0");
    copyTags(old, tags, isCommon);
    appendMarkers(tags, markers.first);
    copyTags(old, tags, [&](const DxfTag& tag) {
        return !isExtended(tag) && !isCommon(tag) && !isLast(tag) && !isFormer(tag);
    });
    appendMarkers(tags, markers.last);
    copyTags(old, tags, isLast);
    copyTags(old, tags, isExtended);
    return tags;
}

DxfTagList odDbUpgradedTableRecord(const DxfTagList& old) {
    const std::string_view name = dxfTrimmed(old[0].value());
    DxfTagList tags;
    tags.append(0, name);
    tags.append(100, "AcDbSymbolTableRecord");
    tags.append(100, markerOfTable(name));
    for (std::size_t i = 1; i < old.size(); ++i) {
        const int code = old[i].code;
        // Here these codes of a dimension style name blocks, for which newer versions have handles.
        const bool isBlockName = name == "DIMSTYLE" && code >= 5 && code <= 7;
        if (isBlockName || code == 105 || (code == 5 && name != "DIMSTYLE"))
            continue;
        tags.append(code, old[i].value());
        if (name == "LTYPE" && code == 49)
            tags.append(74, "0"); // a dash without a shape in it
    }
    return tags;
}
