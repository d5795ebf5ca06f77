// The filled heads of leaders.
#pragma once

#include "standin/display/pencil.h"

namespace standin {

// The head is a third as wide as long, and leaves half of a short first line free.
void drawArrow(const OdGePoint3d& tip, const OdGePoint3d& behind, double size, const OdGeVector3d& normal,
               const Pencil& pencil);

} // namespace standin
