#include "groups/explode_group.h"

#include "groups/current_drawing.h"

void explodeGroup(const OdDbDatabasePtr& database, const OdString& name) {
    const OdDbObjectId id = openGroupDictionary(database, OdDb::kForWrite)->remove(name);
    const auto group = odrxCast<OdDbGroup>(id.safeOpenObject(OdDb::kForWrite));
    group->clear();
    group->erase(true);
}
