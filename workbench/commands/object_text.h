// What LIST tells about an object.
#pragma once

#include "sdk/db/object_id.h"

#include <QStringList>

namespace workbench {

// Kind, handle, layer and colour; its geometry; the groups that it is in.
QStringList objectText(OdDbObjectId id);

} // namespace workbench
