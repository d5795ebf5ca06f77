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
constexpr int kStartTangent = 12;
constexpr int kEndTangent = 13;
} // namespace

bool OdDbSpline::isClosed() const { return content.integer(kSpline, kFlags) & kClosed; }

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

// A closed one that says nothing about its ends goes through its start as smoothly as through the others.
std::vector<OdGePoint3d> OdDbSpline::fitPath(int piecesOfSpan) const {
    std::vector<OdGePoint3d> list = fitPoints();
    const DxfTagList::Range range = content.subclass(kSpline);
    OdGeVector3d start = content.point(range, kStartTangent).asVector();
    OdGeVector3d end = content.point(range, kEndTangent).asVector();
    if (isClosed() && list.size() > 2) {
        if (list.front() == list.back())
            list.pop_back();
        if (start.isZeroLength() && end.isZeroLength())
            start = end = list[1] - list.back();
        list.push_back(list.front());
    }
    return odDbCurveThrough(list, piecesOfSpan, start, end);
}

std::vector<OdGePoint3d> OdDbSpline::path(int piecesOfSpan) const {
    std::vector<OdGePoint3d> list = curve().path(piecesOfSpan);
    if (list.empty())
        list = fitPath(piecesOfSpan);
    if (isClosed() && !list.empty() && list.front() != list.back())
        list.push_back(list.front());
    return list;
}

void OdDbSpline::addExtents(OdGeExtents3d& extents, const OdGeMatrix3d& toWorld) const {
    for (const OdGePoint3d& point : path())
        extents.addPoint(toWorld * point);
}
