// Multiple lines, in the colours of the elements of their style.
#include "sdk/db/database.h"
#include "standin/display/kinds.h"

#include <cmath>
#include <optional>

namespace standin {

namespace {

enum Code { kVertex = 11, kDirection = 12, kMitre = 13, kParameterCount = 74, kParameter = 41, kStyle = 340 };
constexpr int kClosed = 2;     // in the flags of the object
constexpr int kNoStartCap = 4; // in them, too
constexpr int kNoEndCap = 8;   // in them, too
constexpr int kJoints = 2;     // in the flags of the style, like those below
constexpr int kSquareStartCap = 16;
constexpr int kRoundStartCap = 64;
constexpr int kSquareEndCap = 256;
constexpr int kRoundEndCap = 1024;
constexpr int kPiecesOfCap = 16;

// What stands at a vertex for each element: how far off along the mitre, then where the line begins, stops
// and begins again.
struct Vertex {
    OdGePoint3d point;
    OdGeVector3d direction, mitre;
    std::vector<std::vector<double>> elements{};

    std::optional<OdGePoint3d> start(std::size_t element) const {
        if (element >= elements.size() || elements[element].empty())
            return std::nullopt;
        return point + mitre * elements[element][0];
    }
};

std::vector<Vertex> verticesOf(const DxfTagList& tags, DxfTagList::Range part) {
    std::vector<Vertex> list;
    for (std::size_t i = part.begin; i < part.end; ++i) {
        const DxfTagList::Range rest{i, std::min(i + 3, part.end)};
        const int code = tags[i].code;
        if (code == kVertex)
            list.push_back({tags.point(rest, kVertex), {}, {}});
        if (list.empty())
            continue;
        Vertex& vertex = list.back();
        if (code == kDirection)
            vertex.direction = tags.point(rest, kDirection).asVector();
        else if (code == kMitre)
            vertex.mitre = tags.point(rest, kMitre).asVector();
        else if (code == kParameterCount)
            vertex.elements.emplace_back();
        else if (code == kParameter && !vertex.elements.empty())
            vertex.elements.back().push_back(dxfReal(tags[i].value()));
    }
    return list;
}

struct Style {
    std::int64_t flags = 0;
    std::vector<std::optional<Ink>> inks; // of the elements; none: that of the object
};

// Elements are an offset, a colour and a line type each.
Style styleOf(const OdDbEntity& mline) {
    Style style;
    const std::size_t found = mline.tags().find(kStyle);
    if (found == DxfTagList::npos || !mline.database())
        return style;
    const OdDbObjectPtr record =
        mline.database()->getOdDbObjectId(dxfHandle(mline.tags()[found].value())).openObject();
    if (record.isNull())
        return style;
    const DxfTagList& tags = record->tags();
    style.flags = tags.integer("AcDbMlineStyle", 70);
    for (const DxfTag& tag : tags) {
        if (tag.code == 49)
            style.inks.emplace_back();
        if (style.inks.empty())
            continue;
        const std::int64_t number = dxfInteger(tag.value());
        if (tag.code == 62 && number > 0 && number < OdDbEntity::kByLayer)
            style.inks.back() = inkOfIndex(static_cast<int>(number));
        else if (tag.code == 420)
            style.inks.back() = static_cast<Ink>(number) | 0xff000000u;
    }
    return style;
}

// From one vertex to the next, with the gaps that were cut into it.
void drawSegment(const Vertex& from, const Vertex& to, std::size_t element, const Pencil& pencil) {
    const auto start = from.start(element), end = to.start(element);
    if (!start || !end)
        return;
    const std::vector<double>& stops = from.elements[element];
    if (stops.size() <= 2) {
        pencil.path({*start, *end}, pencil.world());
        return;
    }
    for (std::size_t i = 1; i < stops.size(); i += 2) {
        const OdGePoint3d begin = *start + from.direction * stops[i];
        pencil.path({begin, i + 1 < stops.size() ? *start + from.direction * stops[i + 1] : *end},
                    pencil.world());
    }
}

// A line across, and half a circle that lies outwards.
void drawCap(const Vertex& vertex, bool square, const OdGeVector3d& outwards, const Pencil& pencil) {
    const std::size_t count = vertex.elements.size();
    const auto first = vertex.start(0), last = vertex.start(count > 0 ? count - 1 : 0);
    if (!first || !last || count < 2)
        return;
    if (square)
        pencil.path({*first, *last}, pencil.world());
    if (outwards.length() == 0)
        return;
    const OdGeVector3d half = (*last - *first) * 0.5, out = outwards.normal() * half.length();
    std::vector<OdGePoint3d> arc;
    for (int i = 0; i <= kPiecesOfCap; ++i) {
        const double turn = M_PI * i / kPiecesOfCap;
        arc.push_back(*first + half * (1 - std::cos(turn)) + out * std::sin(turn));
    }
    pencil.path(arc, pencil.world());
}

void drawCaps(const std::vector<Vertex>& list, std::int64_t flags, const Style& style, const Pencil& pencil) {
    const auto has = [&style](int flag) { return (style.flags & flag) != 0; };
    const OdGeVector3d none(0, 0, 0);
    if ((flags & kNoStartCap) == 0)
        drawCap(list.front(), has(kSquareStartCap), has(kRoundStartCap) ? list.front().direction * -1 : none,
                pencil);
    const OdGeVector3d end = list[list.size() > 1 ? list.size() - 2 : 0].direction;
    if ((flags & kNoEndCap) == 0)
        drawCap(list.back(), has(kSquareEndCap), has(kRoundEndCap) ? end : none, pencil);
}

} // namespace

void draw::mline(const OdDbEntity& entity, const Pencil& pencil) {
    const DxfTagList& tags = entity.tags();
    const DxfTagList::Range part = tags.subclass("AcDbMline");
    std::vector<Vertex> list = verticesOf(tags, part);
    const Style style = styleOf(entity);
    const std::int64_t flags = tags.integer(part, 71);
    if (list.empty())
        return;
    const bool isClosed = (flags & kClosed) != 0;
    if (isClosed)
        list.push_back(list.front());
    for (std::size_t element = 0; element < list.front().elements.size(); ++element) {
        const bool hasInk = element < style.inks.size() && style.inks[element];
        const Pencil own = hasInk ? pencil.inked(*style.inks[element]) : pencil;
        for (std::size_t i = 0; i + 1 < list.size(); ++i)
            drawSegment(list[i], list[i + 1], element, own);
    }
    if (!isClosed)
        drawCaps(list, flags, style, pencil);
    for (std::size_t i = 1; i + (isClosed ? 0 : 1) < list.size() && (style.flags & kJoints) != 0; ++i)
        drawCap(list[i], true, {0, 0, 0}, pencil);
}

} // namespace standin
