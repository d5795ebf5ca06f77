// Boxes in the drawing plane, and the part of a drawing that a view shows.
#pragma once

#include "sdk/ge/point3d.h"

#include <QPointF>
#include <QRectF>
#include <algorithm>

namespace standin {

struct Box {
    double left = 1, bottom = 1, right = 0, top = 0; // empty at first

    bool isEmpty() const { return left > right; }
    double width() const { return right - left; }
    double height() const { return top - bottom; }
    QPointF center() const { return {left + width() / 2, bottom + height() / 2}; }
    void add(const QPointF& point) {
        if (isEmpty()) {
            left = right = point.x();
            bottom = top = point.y();
        }
        left = std::min(left, point.x());
        right = std::max(right, point.x());
        bottom = std::min(bottom, point.y());
        top = std::max(top, point.y());
    }
    void add(const Box& other) {
        if (other.isEmpty())
            return;
        add(QPointF(other.left, other.bottom));
        add(QPointF(other.right, other.top));
    }
    bool intersects(const Box& other) const {
        return left <= other.right && other.left <= right && bottom <= other.top && other.bottom <= top;
    }
    bool contains(const Box& other) const {
        return left <= other.left && other.right <= right && bottom <= other.bottom && other.top <= top;
    }
    bool contains(const QPointF& point) const {
        return left <= point.x() && point.x() <= right && bottom <= point.y() && point.y() <= top;
    }
    Box grown(double by) const { return {left - by, bottom - by, right + by, top + by}; }
};

inline Box boxOf(const QPointF& a, const QPointF& b) {
    Box box;
    box.add(a);
    box.add(b);
    return box;
}

} // namespace standin
