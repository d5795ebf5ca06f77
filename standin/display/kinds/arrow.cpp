#include "standin/display/kinds/arrow.h"

#include <algorithm>

void standin::drawArrow(const OdGePoint3d& tip, const OdGePoint3d& behind, double size,
                        const OdGeVector3d& normal, const Pencil& pencil) {
    const OdGeVector3d first = behind - tip;
    const double length = std::min(size, first.length() / 2);
    if (!(length > 0))
        return;
    const OdGeVector3d back = first.normal() * length;
    const OdGeVector3d side = normal.crossProduct(back) * (1 / 6.0);
    pencil.fill({tip, tip + back + side, tip + back - side}, pencil.world());
}
