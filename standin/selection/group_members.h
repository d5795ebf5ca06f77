// Picking by groups: PICKSTYLE 1 takes the whole group for one of its members.
#pragma once

#include "sdk/db/database.h"

namespace standin {

// `picked`, and behind it the other members of every selectable group that one of them is in, unless the
// drawing's PICKSTYLE says that groups don't count.
OdDbObjectIdArray withGroupMembers(OdDbDatabase& drawing, const OdDbObjectIdArray& picked);

} // namespace standin
