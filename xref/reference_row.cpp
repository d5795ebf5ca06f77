#include "xref/reference_row.h"

#include "xref/attach_host.h"

#include <algorithm>
#include <limits>

namespace {

const double kGap = 0.1; // of the width of the reference before it

struct Span {
    double from = std::numeric_limits<double>::max();
    double to = std::numeric_limits<double>::lowest();
};

// How far the box reaches along the direction, by its eight corners.
Span spanOf(const OdGeExtents3d& box, const OdGeVector3d& direction) {
    const OdGePoint3d ends[] = {box.minPoint(), box.maxPoint()};
    Span span;
    for (int corner = 0; corner < 8; ++corner) {
        const double along = ends[corner & 1].x * direction.x + ends[corner >> 1 & 1].y * direction.y +
                             ends[corner >> 2].z * direction.z;
        span.from = std::min(span.from, along);
        span.to = std::max(span.to, along);
    }
    return span;
}

} // namespace

void ReferenceRow::add(const OdDbBlockReferencePtr& reference) {
    OdGeExtents3d box;
    if (reference->getGeomExtents(box) != eOk)
        return;
    const OdGeVector3d direction = get_UCSXDIR(attach::database().get());
    const Span span = spanOf(box, direction);
    const double shift = hasAny ? end - span.from : 0;
    reference->setPosition(reference->position() + direction * shift);
    end = span.to + shift + (span.to - span.from) * kGap;
    hasAny = true;
}
