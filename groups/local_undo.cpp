#include "groups/local_undo.h"

HostLocalUndo::HostLocalUndo(OdDbDatabasePtr changed, OpenBlock)
    : database(std::move(changed)), undoBlockWasStarted(database->isUndoBlockStarted()) {
    if (!undoBlockWasStarted)
        database->blockUndoRecording(true);
}

// From here on the destructor closes the block, also when one of these calls throws.
HostLocalUndo::HostLocalUndo(OdDbDatabasePtr changed) : HostLocalUndo(std::move(changed), OpenBlock()) {
    database->startUndoRecord();
    database->setUndoMark();
    database->startUndoRecord();
    undoMarks = 1;
}

HostLocalUndo::~HostLocalUndo() {
    if (!undoBlockWasStarted)
        database->blockUndoRecording(false);
}

void HostLocalUndo::takeBack() {
    if (--undoMarks < 0)
        return;
    database->undoBack();
    database->startUndoRecord();
}
