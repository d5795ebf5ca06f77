// Meshes, by the edges of their faces.
#include "standin/display/kinds.h"

#include <set>
#include <utility>

namespace standin {

namespace {

constexpr int kFaceListSize = 93;
constexpr int kEdgeCount = 94;
constexpr int kNumber = 90;

using Edge = std::pair<std::int64_t, std::int64_t>;

// Each face is a count and as many numbers of points. Counts are believed no further than there are numbers.
std::set<Edge> edgesOf(const DxfTagList& tags, DxfTagList::Range part) {
    std::vector<std::int64_t> numbers;
    for (std::size_t i = tags.find(kFaceListSize, part); i < part.end && tags[i].code != kEdgeCount; ++i)
        if (tags[i].code == kNumber)
            numbers.push_back(dxfInteger(tags[i].value()));
    std::set<Edge> edges;
    for (std::size_t i = 0; i < numbers.size();) {
        const std::size_t left = numbers.size() - i - 1;
        const auto count = static_cast<std::size_t>(std::max<std::int64_t>(numbers[i], 0));
        if (count > left)
            break;
        const std::int64_t* face = numbers.data() + i + 1;
        for (std::size_t corner = 0; corner < count; ++corner)
            edges.insert(std::minmax(face[corner], face[(corner + 1) % count]));
        i += count + 1;
    }
    return edges;
}

} // namespace

void draw::mesh(const OdDbEntity& entity, const Pencil& pencil) {
    const DxfTagList& tags = entity.tags();
    const DxfTagList::Range part = tags.subclass("AcDbSubDMesh");
    const std::vector<OdGePoint3d> points = tags.points(part, 10);
    const auto count = static_cast<std::int64_t>(points.size());
    for (const Edge& edge : edgesOf(tags, part))
        if (edge.first >= 0 && edge.second < count && !pencil.isFull())
            pencil.path(
                {points[static_cast<std::size_t>(edge.first)], points[static_cast<std::size_t>(edge.second)]},
                pencil.world());
}

} // namespace standin
