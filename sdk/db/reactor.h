// Told about every change of a database, undo and abort included.
#pragma once

#include "sdk/db/object_id.h"

class OdDbDatabaseReactor {
public:
    virtual ~OdDbDatabaseReactor() = default;
    virtual void objectAppended(OdDbObjectId) {} // also when an erased one comes back
    virtual void objectErased(OdDbObjectId) {}
    virtual void objectModified(OdDbObjectId) {} // about to change, or just changed back
    virtual void highlightChanged(OdDbObjectId) {}
    virtual void headerChanged() {} // a system variable of the drawing
};
