#include "groups/pick_style.h"

#include "groups/current_drawing.h"
#include "groups/group_messages.h"
#include "groups/system_variables.h"

#include <QObject>

ClearedPickStyle::ClearedPickStyle(const OdDbDatabasePtr& database)
    : readable(readSysVarInt8(kPickStyle, former, database) != 0) {
    if (!readable)
        printLine(*currentIO(), QObject::tr("Failed to get  PICKSTYLE system variable value."));
    else if (former != 0)
        writeSysVarInt8(kPickStyle, 0, database);
}

void ClearedPickStyle::noteIn(GroupSelectionRequest& request) const {
    request.pickStyleCleared = former != 0;
    request.formerPickStyle = former;
}
