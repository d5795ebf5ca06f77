// The points of a spline, for all that draw or measure one.
#pragma once

#include "sdk/ge/point3d.h"

#include <vector>

struct OdDbSplineCurve {
    int degree = 3;
    std::vector<double> knots;
    std::vector<OdGePoint3d> controls;
    std::vector<double> weights; // empty, or one for each control point

    // A path along the curve. Where the numbers make no spline it goes along the control points.
    std::vector<OdGePoint3d> path(int piecesOfSpan = 12) const;

private:
    bool isSound() const;
    double weight(std::size_t control) const { return weights.empty() ? 1 : weights[control]; }
    OdGePoint3d pointAt(std::size_t span, double parameter) const;
};

// A smooth path through all the points, from the first to the last. Where a direction is given the path
// starts, or ends, in it.
std::vector<OdGePoint3d> odDbCurveThrough(const std::vector<OdGePoint3d>& points, int piecesOfSpan,
                                          const OdGeVector3d& startDirection = {},
                                          const OdGeVector3d& endDirection = {});
