// The drawings that were opened or saved last, kept in the profile.
#pragma once

#include "host/param.h"

#include <QStringList>

namespace workbench {

// The last one first, only those that still are there. A null profile has none.
QStringList recentDrawings(IParam* profile);
void addRecentDrawing(IParam* profile, const QString& path);
// Where they are kept, for stores that tell the user's settings from what is remembered.
const char* recentDrawingsPath();

} // namespace workbench
