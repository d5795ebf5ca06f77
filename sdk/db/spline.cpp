// Splines as entities: their numbers in the file, given to the curve that knows the points.
#include "sdk/db/spline.h"

ODRX_DEFINE_CLASS_WITH_MAKER(OdDbSpline, OdDbEntity)

namespace {
constexpr std::string_view kSpline = "AcDbSpline";
constexpr int kFlags = 70;
constexpr int kClosed = 1;
constexpr int kDegree = 71;
constexpr int kKnot = 40;
constexpr int kWeight = 41;
constexpr int kControl = 10;
constexpr int kFit = 11;
} // namespace

bool OdDbSpline::isClosed() const { return content.integer(content.subclass(kSpline), kFlags) & kClosed; }

std::vector<OdGePoint3d> OdDbSpline::points(int code) const {
    return content.points(content.subclass(kSpline), code);
}

OdDbSplineCurve OdDbSpline::curve() const {
    OdDbSplineCurve result;
    const DxfTagList::Range range = content.subclass(kSpline);
    result.degree = static_cast<int>(content.integer(range, kDegree, 3));
    result.controls = points(kControl);
    for (std::size_t i = range.begin; i < range.end; ++i) {
        if (content[i].code == kKnot)
            result.knots.push_back(dxfReal(content[i].value()));
        if (content[i].code == kWeight)
            result.weights.push_back(dxfReal(content[i].value()));
    }
    return result;
}

std::vector<OdGePoint3d> OdDbSpline::fitPoints() const { return points(kFit); }

std::vector<OdGePoint3d> OdDbSpline::path(int piecesOfSpan) const {
    std::vector<OdGePoint3d> list = curve().path(piecesOfSpan);
    if (list.empty())
        list = fitPoints();
    if (isClosed() && !list.empty() && list.front() != list.back())
        list.push_back(list.front());
    return list;
}

void OdDbSpline::addExtents(OdGeExtents3d& extents, const OdGeMatrix3d& toWorld) const {
    for (const OdGePoint3d& point : path())
        extents.addPoint(toWorld * point);
}
