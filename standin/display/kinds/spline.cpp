// Splines, and helices, which are splines that know how they came about.
#include "sdk/db/spline.h"

#include "standin/display/kinds.h"

#include <algorithm>

namespace standin {

namespace {

// Of a short spline so many that it is smooth when it is large, too; of an endless one no more than can be
// handled.
std::vector<OdGePoint3d> pathOf(const OdDbSpline& spline) {
    const std::size_t controls = std::max(spline.curve().controls.size(), spline.fitPoints().size());
    const std::size_t spans = std::max<std::size_t>(controls, 1);
    const std::size_t pieces = std::clamp<std::size_t>(800 / spans, 12, 48);
    const std::size_t most = std::max<std::size_t>(100000 / spans, 2);
    return spline.path(static_cast<int>(std::min(pieces, most)));
}

} // namespace

void draw::spline(const OdDbEntity& entity, const Pencil& pencil) {
    if (const auto* spline = dynamic_cast<const OdDbSpline*>(&entity))
        pencil.path(pathOf(*spline), pencil.world());
}

void draw::helix(const OdDbEntity& entity, const Pencil& pencil) { spline(entity, pencil); }

} // namespace standin
