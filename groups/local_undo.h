// One undo step around all that a dialog run changes.
#pragma once

#include "sdk/db/database.h"

// Opens an undo block, unless one is running, and remembers the state inside of it. Leaving the scope closes
// the block; it undoes nothing.
class HostLocalUndo {
public:
    explicit HostLocalUndo(OdDbDatabasePtr changed);
    virtual ~HostLocalUndo();
    HostLocalUndo(const HostLocalUndo&) = delete;
    HostLocalUndo& operator=(const HostLocalUndo&) = delete;

    void takeBack(); // everything since the start, once

private:
    struct OpenBlock {};
    HostLocalUndo(OdDbDatabasePtr changed, OpenBlock);

    OdDbDatabasePtr database;
    bool undoBlockWasStarted;
    int undoMarks = 0;
};
