// Circles, arcs and ellipses.
#include "sdk/db/curves.h"
#include "standin/display/kinds.h"

#include <cmath>

namespace standin {

namespace {

// From one angle to the other, counter-clockwise; a whole turn where they are the same.
double sweepOf(double start, double end) {
    const double sweep = std::fmod(std::fmod(end - start, 2 * M_PI) + 2 * M_PI, 2 * M_PI);
    return sweep < 1e-12 ? 2 * M_PI : sweep;
}

} // namespace

void draw::circle(const OdDbEntity& entity, const Pencil& pencil) {
    const auto* circle = dynamic_cast<const OdDbCircle*>(&entity);
    if (circle)
        pencil.arc(circle->center(), OdGeVector3d::kXAxis * circle->radius(),
                   OdGeVector3d::kYAxis * circle->radius(), 0, 2 * M_PI, pencil.plane(entity));
}

void draw::arc(const OdDbEntity& entity, const Pencil& pencil) {
    const auto* arc = dynamic_cast<const OdDbArc*>(&entity);
    if (arc)
        pencil.arc(arc->center(), OdGeVector3d::kXAxis * arc->radius(), OdGeVector3d::kYAxis * arc->radius(),
                   arc->startAngle(), sweepOf(arc->startAngle(), arc->endAngle()), pencil.plane(entity));
}

void draw::ellipse(const OdDbEntity& entity, const Pencil& pencil) {
    const auto* ellipse = dynamic_cast<const OdDbEllipse*>(&entity);
    if (ellipse)
        pencil.arc(ellipse->center(), ellipse->majorAxis(), ellipse->minorAxis(), ellipse->startParam(),
                   sweepOf(ellipse->startParam(), ellipse->endParam()), pencil.world());
}

} // namespace standin
