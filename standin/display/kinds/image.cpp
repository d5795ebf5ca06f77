// Raster images, by their frame and the name of their file, and wipeouts, by their frame.
#include "sdk/db/database.h"
#include "standin/display/kinds.h"
#include "standin/display/kinds/frame.h"

#include <cmath>

namespace standin {

namespace {

constexpr int kClipped = 4; // in them, too
constexpr int kPolygon = 2; // as the kind of a clipping border
constexpr int kDefinition = 340;

// Places are counted in pixels from the upper left corner; the first one lies at the lower left.
class Pixels {
public:
    Pixels(const DxfTagList& list, std::string_view marker)
        : origin(list.point(marker, 10)), along(list.point(marker, 11).asVector()),
          up(list.point(marker, 12).asVector()), size(list.point(marker, 13)) {}
    OdGePoint3d at(double x, double y) const { return origin + along * (x + 0.5) + up * (size.y - y - 0.5); }
    std::vector<OdGePoint3d> rectangle(const OdGePoint3d& a, const OdGePoint3d& b) const {
        return {at(a.x, a.y), at(b.x, a.y), at(b.x, b.y), at(a.x, b.y)};
    }
    std::vector<OdGePoint3d> whole() const {
        return rectangle({-0.5, -0.5, 0}, {size.x - 0.5, size.y - 0.5, 0});
    }

private:
    OdGePoint3d origin;
    OdGeVector3d along, up;
    OdGePoint3d size;
};

std::vector<OdGePoint3d> frameOf(const OdDbEntity& entity, std::string_view marker) {
    const DxfTagList& tags = entity.tags();
    const Pixels pixels(tags, marker);
    const std::vector<OdGePoint3d> clip = cornersIn(tags, marker, 14);
    const bool isClipped = tags.integer(marker, 280, 1) != 0 || (tags.integer(marker, 70) & kClipped) != 0;
    if (!isClipped || clip.size() < 2)
        return pixels.whole();
    if (tags.integer(marker, 71) != kPolygon || clip.size() == 2)
        return pixels.rectangle(clip[0], clip[1]);
    std::vector<OdGePoint3d> corners;
    for (const OdGePoint3d& corner : clip)
        corners.push_back(pixels.at(corner.x, corner.y));
    return corners;
}

OdString nameOf(const OdDbEntity& image) {
    const std::size_t found = image.tags().find(kDefinition);
    if (found == DxfTagList::npos || !image.database())
        return {};
    const OdDbObjectPtr definition =
        image.database()->getOdDbObjectId(dxfHandle(image.tags()[found].value())).openObject();
    return definition.isNull() ? OdString() : fileOf(definition->textValue("AcDbRasterImageDef", 1));
}

} // namespace

void draw::image(const OdDbEntity& entity, const Pencil& pencil) {
    const OdString name = nameOf(entity);
    drawFrame(frameOf(entity, "AcDbRasterImage"), name.isEmpty() ? entity.dxfName() : name, pencil);
}

void draw::wipeout(const OdDbEntity& entity, const Pencil& pencil) {
    drawFrame(frameOf(entity, "AcDbWipeout"), {}, pencil);
}

} // namespace standin
