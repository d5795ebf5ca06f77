// A direction with length in space.
#pragma once

class OdGePoint3d;

class OdGeVector3d {
public:
    double x = 0, y = 0, z = 0;

    OdGeVector3d() = default;
    OdGeVector3d(double xValue, double yValue, double zValue) : x(xValue), y(yValue), z(zValue) {}

    static const OdGeVector3d kIdentity; // (0, 0, 0)
    static const OdGeVector3d kXAxis;
    static const OdGeVector3d kYAxis;
    static const OdGeVector3d kZAxis;

    double length() const;
    double dotProduct(const OdGeVector3d& other) const { return x * other.x + y * other.y + z * other.z; }
    OdGeVector3d crossProduct(const OdGeVector3d& other) const;
    OdGeVector3d normal() const; // of length 1; the zero vector stays what it is
    bool isZeroLength() const;
    // The angle between the two, 0 to pi; 0 when one of them has no length.
    double angleTo(const OdGeVector3d& other) const;
    // The angle from this vector to `other`, counter-clockwise seen from the tip of `reference`, 0 to 2 pi.
    double angleTo(const OdGeVector3d& other, const OdGeVector3d& reference) const;
    // Turned by `angle` radians about `axis`.
    OdGeVector3d rotatedBy(double angle, const OdGeVector3d& axis) const;
    OdGeVector3d& transformBy(const class OdGeMatrix3d& matrix);

    friend OdGeVector3d operator+(const OdGeVector3d& a, const OdGeVector3d& b) {
        return {a.x + b.x, a.y + b.y, a.z + b.z};
    }
    friend OdGeVector3d operator-(const OdGeVector3d& a, const OdGeVector3d& b) {
        return {a.x - b.x, a.y - b.y, a.z - b.z};
    }
    friend OdGeVector3d operator*(const OdGeVector3d& v, double factor) {
        return {v.x * factor, v.y * factor, v.z * factor};
    }
    OdGeVector3d operator-() const { return {-x, -y, -z}; }
    friend bool operator==(const OdGeVector3d& a, const OdGeVector3d& b) {
        return a.x == b.x && a.y == b.y && a.z == b.z;
    }
    friend bool operator!=(const OdGeVector3d& a, const OdGeVector3d& b) { return !(a == b); }
};

// Scale factors along the three axes.
class OdGeScale3d {
public:
    double sx = 1, sy = 1, sz = 1;

    OdGeScale3d() = default;
    explicit OdGeScale3d(double factor) : sx(factor), sy(factor), sz(factor) {}
    OdGeScale3d(double x, double y, double z) : sx(x), sy(y), sz(z) {}
    friend bool operator==(const OdGeScale3d& a, const OdGeScale3d& b) {
        return a.sx == b.sx && a.sy == b.sy && a.sz == b.sz;
    }
};
