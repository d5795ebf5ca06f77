#include "standin/display/kinds/polymesh.h"

#include "sdk/db/sub_entities.h"

#include <cstdlib>
#include <set>
#include <utility>

namespace standin {

namespace {

constexpr int kFlags = 70;
constexpr int kClosedAlong = 1;   // of the polyline
constexpr int kPolygonMesh = 16;  // of the polyline
constexpr int kClosedAcross = 32; // of the polyline
constexpr int kFramePoint = 16;   // of a vertex
constexpr int kMeshPoint = 64;    // of a vertex; without it a face of a polyface mesh
constexpr int kFacePart = 128;    // of a vertex

struct MeshParts {
    std::vector<OdGePoint3d> points;
    std::vector<std::vector<int>> faces; // numbers of points, from 1; negative: the edge from it is hidden
};

std::vector<int> faceOf(const DxfTagList& tags) {
    std::vector<int> corners;
    for (const int code : {71, 72, 73, 74}) {
        const int corner = static_cast<int>(tags.integer(tags.own(), code));
        if (corner != 0)
            corners.push_back(corner);
    }
    return corners;
}

MeshParts partsOf(const OdDb2dPolyline& mesh) {
    MeshParts parts;
    for (const OdDbObjectId id : odDbSubEntities(mesh.objectId())) {
        const OdDbObjectPtr vertex = id.openObject();
        const DxfTagList& tags = vertex->tags();
        const std::int64_t flags = tags.integer(tags.own(), kFlags);
        if (tags.empty() || tags[0].value() != "VERTEX" || (flags & kFramePoint) != 0)
            continue;
        if ((flags & kFacePart) != 0 && (flags & kMeshPoint) == 0)
            parts.faces.push_back(faceOf(tags));
        else
            parts.points.push_back(tags.point(tags.own(), 10));
    }
    return parts;
}

// Edges that two faces share are drawn once.
void drawFaces(const MeshParts& parts, const Pencil& pencil) {
    std::set<std::pair<int, int>> drawn;
    const auto count = static_cast<int>(parts.points.size());
    const auto at = [&](int number) { return parts.points[static_cast<std::size_t>(number - 1)]; };
    for (const std::vector<int>& face : parts.faces)
        for (std::size_t i = 0; i < face.size() && face.size() > 1; ++i) {
            const int from = std::abs(face[i]), to = std::abs(face[(i + 1) % face.size()]);
            if (face[i] > 0 && from <= count && to <= count && drawn.insert(std::minmax(from, to)).second)
                pencil.path({at(from), at(to)}, pencil.world());
        }
}

// Rows and columns of points, each joined by a path.
class Grid {
public:
    Grid(const MeshParts& parts, std::size_t rowCount, std::size_t columnCount)
        : points(parts.points), rows(rowCount), columns(columnCount) {}
    void draw(bool closedRows, bool closedColumns, const Pencil& pencil) const {
        for (std::size_t row = 0; row < rows; ++row)
            drawRun(row * columns, 1, columns, closedRows, pencil);
        for (std::size_t column = 0; column < columns; ++column)
            drawRun(column, columns, rows, closedColumns, pencil);
    }

private:
    void drawRun(std::size_t from, std::size_t step, std::size_t count, bool closed,
                 const Pencil& pencil) const {
        std::vector<OdGePoint3d> run;
        for (std::size_t i = 0; i < count; ++i)
            run.push_back(points[from + i * step]);
        if (closed)
            run.push_back(run.front());
        pencil.path(run, pencil.world());
    }
    const std::vector<OdGePoint3d>& points;
    const std::size_t rows, columns;
};

// A smoothed mesh has the density of its surface under codes of its own.
std::int64_t countOf(const DxfTagList& tags, int smoothed, int plain) {
    const std::int64_t count = tags.integer(tags.own(), smoothed);
    return tags.integer(tags.own(), 75) != 0 && count > 0 ? count : tags.integer(tags.own(), plain);
}

void drawGrid(const MeshParts& parts, const OdDb2dPolyline& mesh, const Pencil& pencil) {
    const DxfTagList& tags = mesh.tags();
    const std::int64_t rows = countOf(tags, 73, 71), columns = countOf(tags, 74, 72);
    const auto count = static_cast<std::int64_t>(parts.points.size());
    if (rows < 1 || columns < 1 || rows > count || columns > count || rows * columns > count)
        return;
    const std::int64_t flags = tags.integer(tags.own(), kFlags);
    Grid(parts, static_cast<std::size_t>(rows), static_cast<std::size_t>(columns))
        .draw((flags & kClosedAcross) != 0, (flags & kClosedAlong) != 0, pencil);
}

} // namespace

void drawPolymesh(const OdDb2dPolyline& mesh, const Pencil& pencil) {
    const MeshParts parts = partsOf(mesh);
    if ((mesh.tags().integer(mesh.tags().own(), kFlags) & kPolygonMesh) != 0)
        drawGrid(parts, mesh, pencil);
    else
        drawFaces(parts, pencil);
}

} // namespace standin
