// A place in space, and the box around places.
#pragma once

#include "sdk/ge/matrix3d.h"

class OdGePoint3d {
public:
    double x = 0, y = 0, z = 0;

    OdGePoint3d() = default;
    OdGePoint3d(double xValue, double yValue, double zValue) : x(xValue), y(yValue), z(zValue) {}

    static const OdGePoint3d kOrigin;

    OdGeVector3d asVector() const { return {x, y, z}; }
    double distanceTo(const OdGePoint3d& other) const;
    OdGePoint3d& transformBy(const OdGeMatrix3d& matrix);
    OdGePoint3d& set(double xValue, double yValue, double zValue) {
        return *this = OdGePoint3d(xValue, yValue, zValue);
    }

    friend OdGePoint3d operator+(const OdGePoint3d& p, const OdGeVector3d& v) {
        return {p.x + v.x, p.y + v.y, p.z + v.z};
    }
    friend OdGePoint3d operator-(const OdGePoint3d& p, const OdGeVector3d& v) {
        return {p.x - v.x, p.y - v.y, p.z - v.z};
    }
    friend OdGeVector3d operator-(const OdGePoint3d& a, const OdGePoint3d& b) {
        return {a.x - b.x, a.y - b.y, a.z - b.z};
    }
    friend bool operator==(const OdGePoint3d& a, const OdGePoint3d& b) {
        return a.x == b.x && a.y == b.y && a.z == b.z;
    }
    friend bool operator!=(const OdGePoint3d& a, const OdGePoint3d& b) { return !(a == b); }
};

// The smallest box around the points added so far; empty at first. A point that is not finite is left out.
class OdGeExtents3d {
public:
    void addPoint(const OdGePoint3d& point);
    void addExtents(const OdGeExtents3d& other);
    bool isValidExtents() const { return filled; }
    OdGePoint3d minPoint() const { return lower; }
    OdGePoint3d maxPoint() const { return upper; }

private:
    bool filled = false;
    OdGePoint3d lower, upper;
};
