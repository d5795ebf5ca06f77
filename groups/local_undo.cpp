#include "groups/local_undo.h"

HostLocalUndo::HostLocalUndo(OdDbDatabasePtr changed)
    : database(std::move(changed)), undoBlockWasStarted(database->isUndoBlockStarted()) {
    if (!undoBlockWasStarted)
        database->blockUndoRecording(true);
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
