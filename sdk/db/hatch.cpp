// Hatches as entities; their borders are read in a file of their own.
#include "sdk/db/hatch.h"

#include "sdk/db/hatch_loops.h"

ODRX_DEFINE_CLASS_WITH_MAKER(OdDbHatch, OdDbEntity)

namespace {
constexpr std::string_view kHatch = "AcDbHatch";
} // namespace

bool OdDbHatch::isSolidFill() const { return content.integer(content.subclass(kHatch), 70) == 1; }

OdString OdDbHatch::patternName() const { return textValue(kHatch, 2); }

std::vector<OdDbHatch::Loop> OdDbHatch::loops() const {
    return odDbHatchLoops(content, content.subclass(kHatch));
}

void OdDbHatch::addExtents(OdGeExtents3d& extents, const OdGeMatrix3d& toWorld) const {
    const OdGeMatrix3d matrix = toWorld * loopToWorld();
    for (const Loop& loop : loops())
        for (const OdGePoint3d& point : loop)
            extents.addPoint(matrix * point);
}
