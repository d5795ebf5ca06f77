// Transactions and undo of a database: all of them are places in its list of changes.
#include "sdk/db/database.h"

#include "sdk/db/database_impl.h"

void OdDbDatabase::startTransaction() { parts->log.startTransaction(); }
void OdDbDatabase::endTransaction() { parts->log.commitTransaction(); }
void OdDbDatabase::abortTransaction() { parts->log.abortTransaction(); }
int OdDbDatabase::numActiveTransactions() const { return parts->log.transactionCount(); }

void OdDbDatabase::startUndoRecord() { parts->log.startRecord(); }
void OdDbDatabase::setUndoMark() { parts->log.setMark(); }
void OdDbDatabase::undoBack() { parts->log.undoToMark(); }

// In spite of its name this does not stop recording: it opens and closes a block of records.
void OdDbDatabase::blockUndoRecording(bool begin) {
    begin ? parts->log.openBlock() : parts->log.closeBlock();
}

bool OdDbDatabase::isUndoBlockStarted() const { return parts->log.isBlockOpen(); }
bool OdDbDatabase::undo() { return parts->log.undoStep(); }
bool OdDbDatabase::redo() { return parts->log.redoStep(); }
bool OdDbDatabase::hasUndo() const { return parts->log.hasUndo(); }
bool OdDbDatabase::hasRedo() const { return parts->log.hasRedo(); }
void OdDbDatabase::nameUndoSteps(const OdString& name) { parts->log.nameSteps(name.wide()); }
OdString OdDbDatabase::undoName() const { return parts->log.undoName(); }
OdString OdDbDatabase::redoName() const { return parts->log.redoName(); }
