// Typed points.
#pragma once

#include "sdk/ge/point3d.h"

#include <QString>
#include <optional>

namespace standin {

// x,y[,z] and distance<angle in drawing coordinates; @dx,dy[,dz] and @distance<angle from `from`. A z that is
// left out is 0 (or no change). A lone "@" is `from` itself. Null when the text is no point.
std::optional<OdGePoint3d> pointFromText(const QString& text, const OdGePoint3d& from);

QString pointText(const OdGePoint3d& point);

} // namespace standin
