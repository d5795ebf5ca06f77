// Points, by the mark that PDMODE and PDSIZE of the drawing ask for.
#include "sdk/db/curves.h"
#include "standin/display/flat.h"
#include "standin/display/kinds.h"
#include "standin/display/point_mark.h"

void standin::draw::point(const OdDbEntity& entity, const Pencil& pencil) {
    const auto* point = dynamic_cast<const OdDbPoint*>(&entity);
    if (!point)
        return;
    const OdGePoint3d at = pencil.world() * point->position();
    const DrawingVariables& variables = pencil.variables();
    if (variables.pointMode == 0) {
        pencil.draw({Shape::Dot, {}, {flat(at)}, {}});
    } else if (variables.pointSize > 0) {
        for (Shape& shape : pointMark(variables.pointMode, flat(at), variables.pointSize))
            pencil.plain().draw(std::move(shape));
    } else {
        const double percent = variables.pointSize < 0 ? -variables.pointSize : kUsualMarkPercent;
        pencil.draw({Shape::Dot, {}, {flat(at), {double(variables.pointMode), percent}}, {}});
    }
}
