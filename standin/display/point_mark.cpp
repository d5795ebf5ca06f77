#include "standin/display/point_mark.h"

#include <cmath>

namespace standin {

namespace {

enum Figure { Dot, Nothing, Plus, Cross, Tick };
constexpr int kFigureBits = 31;
constexpr int kCircle = 32;
constexpr int kSquare = 64;

Shape lineAbout(const QPointF& at, const QPointF& from, const QPointF& to) {
    return {Shape::Path, {}, {at + from, at + to}, {}};
}

// Crosses reach as far beyond the frame as the frame does from the middle.
void addFigure(std::vector<Shape>& mark, int figure, const QPointF& at, double half) {
    const double far = 2 * half;
    if (figure == Dot) {
        mark.push_back({Shape::Dot, {}, {at}, {}});
    } else if (figure == Plus) {
        mark.push_back(lineAbout(at, {-far, 0}, {far, 0}));
        mark.push_back(lineAbout(at, {0, -far}, {0, far}));
    } else if (figure == Cross) {
        mark.push_back(lineAbout(at, {-far, -far}, {far, far}));
        mark.push_back(lineAbout(at, {-far, far}, {far, -far}));
    } else if (figure == Tick) {
        mark.push_back(lineAbout(at, {0, 0}, {0, half}));
    }
}

} // namespace

std::vector<Shape> pointMark(int mode, const QPointF& at, double size) {
    std::vector<Shape> mark;
    const double half = size / 2;
    addFigure(mark, mode & kFigureBits, at, half);
    if (mode & kCircle)
        mark.push_back({Shape::Arc, {}, {at, {half, 0}, {0, half}, {0, 2 * M_PI}}, {}});
    if (mode & kSquare)
        mark.push_back({Shape::Path,
                        {},
                        {at + QPointF(-half, -half), at + QPointF(half, -half), at + QPointF(half, half),
                         at + QPointF(-half, half), at + QPointF(-half, -half)},
                        {}});
    return mark;
}

} // namespace standin
