// Meshes that are kept as polylines.
#pragma once

#include "sdk/db/polyline.h"
#include "standin/display/pencil.h"

namespace standin {

// The edges of a polygon mesh or of a polyface mesh.
void drawPolymesh(const OdDb2dPolyline& mesh, const Pencil& pencil);

} // namespace standin
