// Leaders as entities; the size of the arrow head stands in the dimension style, or behind it as an override.
#include "sdk/db/leader.h"

#include "sdk/db/dimension_values.h"

ODRX_DEFINE_CLASS_WITH_MAKER(OdDbLeader, OdDbEntity)

namespace {
constexpr std::string_view kLeader = "AcDbLeader";
constexpr int kArrowFlag = 71;
constexpr int kVertex = 10;
constexpr int kScale = 40;
constexpr int kArrowSize = 41;
constexpr double kUsualArrowSize = 0.18;
} // namespace

std::vector<OdGePoint3d> OdDbLeader::vertices() const {
    return content.points(content.subclass(kLeader), kVertex);
}

bool OdDbLeader::hasArrowHead() const { return content.integer(kLeader, kArrowFlag, 1) != 0; }

// A scale of 0 stands for one that depends on the view; the model space shows it as 1.
double OdDbLeader::arrowSize() const {
    const double scale = odDbDimensionValue(*this, kLeader, kScale, 1);
    return odDbDimensionValue(*this, kLeader, kArrowSize, kUsualArrowSize) * (scale > 0 ? scale : 1);
}

void OdDbLeader::addExtents(OdGeExtents3d& extents, const OdGeMatrix3d& toWorld) const {
    for (const OdGePoint3d& point : vertices())
        extents.addPoint(toWorld * point);
}
