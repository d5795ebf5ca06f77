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
constexpr int kFilled = 1;     // in the flags of the style, like those below
constexpr int kJoints = 2;
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
    std::optional<Ink> fill;
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
        std::optional<Ink>& ink = style.inks.empty() ? style.fill : style.inks.back();
        const std::int64_t number = dxfInteger(tag.value());
        if (tag.code == 62 && number > 0 && number < OdDbEntity::kByLayer)
            ink = inkOfIndex(static_cast<int>(number));
        else if (tag.code == 420)
            ink = static_cast<Ink>(number) | 0xff000000u;
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

// Where the last element is; a single one has nothing across.
std::optional<OdGePoint3d> lastOf(const Vertex& vertex) {
    return vertex.elements.size() < 2 ? std::nullopt : vertex.start(vertex.elements.size() - 1);
}

// Half a circle from one point to the other.
std::vector<OdGePoint3d> halfCircle(const OdGePoint3d& first, const OdGePoint3d& last,
                                    const OdGeVector3d& outwards) {
    const OdGeVector3d half = (last - first) * 0.5, out = outwards.normal() * half.length();
    std::vector<OdGePoint3d> arc;
    for (int i = 0; i <= kPiecesOfCap; ++i) {
        const double turn = M_PI * i / kPiecesOfCap;
        arc.push_back(first + half * (1 - std::cos(turn)) + out * std::sin(turn));
    }
    return arc;
}

// What ends the line at a vertex.
struct Cap {
    const Vertex& vertex;
    bool isSquare = false;   // a line across
    OdGeVector3d outwards{}; // where half a circle lies; without a length: none

    std::vector<OdGePoint3d> line() const {
        const auto first = vertex.start(0), last = lastOf(vertex);
        return isSquare && first && last ? std::vector<OdGePoint3d>{*first, *last}
                                         : std::vector<OdGePoint3d>{};
    }
    std::vector<OdGePoint3d> arc() const {
        const auto first = vertex.start(0), last = lastOf(vertex);
        return outwards.length() > 0 && first && last ? halfCircle(*first, *last, outwards)
                                                      : std::vector<OdGePoint3d>{};
    }
};

std::vector<Cap> capsOf(const std::vector<Vertex>& list, std::int64_t flags, const Style& style) {
    const auto has = [&style](int flag) { return (style.flags & flag) != 0; };
    const OdGeVector3d none(0, 0, 0), end = list[list.size() > 1 ? list.size() - 2 : 0].direction;
    const bool isClosed = (flags & kClosed) != 0;
    std::vector<Cap> caps;
    if (!isClosed && (flags & kNoStartCap) == 0)
        caps.push_back(
            {list.front(), has(kSquareStartCap), has(kRoundStartCap) ? list.front().direction * -1 : none});
    if (!isClosed && (flags & kNoEndCap) == 0)
        caps.push_back({list.back(), has(kSquareEndCap), has(kRoundEndCap) ? end : none});
    for (std::size_t i = 1; has(kJoints) && i + (isClosed ? 0 : 1) < list.size(); ++i)
        caps.push_back({list[i], true, none});
    return caps;
}

void drawPath(const std::vector<OdGePoint3d>& points, const Pencil& pencil) {
    if (points.size() > 1)
        pencil.path(points, pencil.world());
}

// From the first element to the last, in pieces from vertex to vertex, with the caps.
void drawFill(const std::vector<Vertex>& list, const std::vector<Cap>& caps, const Pencil& pencil) {
    for (std::size_t i = 0; i + 1 < list.size(); ++i) {
        const auto from = list[i].start(0), to = list[i + 1].start(0);
        const auto fromLast = lastOf(list[i]), toLast = lastOf(list[i + 1]);
        if (from && to && fromLast && toLast)
            pencil.fill({*from, *to, *toLast, *fromLast}, pencil.world());
    }
    for (const Cap& cap : caps)
        if (const std::vector<OdGePoint3d> arc = cap.arc(); !arc.empty())
            pencil.fill(arc, pencil.world());
}

void drawElements(const std::vector<Vertex>& list, const Style& style, const Pencil& pencil) {
    for (std::size_t element = 0; element < list.front().elements.size(); ++element) {
        const bool hasInk = element < style.inks.size() && style.inks[element];
        const Pencil own = hasInk ? pencil.inked(*style.inks[element]) : pencil;
        for (std::size_t i = 0; i + 1 < list.size(); ++i)
            drawSegment(list[i], list[i + 1], element, own);
    }
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
    if ((flags & kClosed) != 0)
        list.push_back(list.front());
    const std::vector<Cap> caps = capsOf(list, flags, style);
    if ((style.flags & kFilled) != 0)
        drawFill(list, caps, style.fill ? pencil.inked(*style.fill) : pencil);
    drawElements(list, style, pencil);
    for (const Cap& cap : caps) {
        drawPath(cap.line(), pencil);
        drawPath(cap.arc(), pencil);
    }
}

} // namespace standin
