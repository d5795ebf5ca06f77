#include "tests/groups/undo_watch.h"

#include "sdk/db/database_impl.h"

#include <new>

static UndoWatch* currentWatch = nullptr;

UndoWatch::UndoWatch() { currentWatch = this; }
UndoWatch::~UndoWatch() { currentWatch = nullptr; }

void UndoWatch::tell(const char* call) {
    if (!currentWatch)
        return;
    currentWatch->calls.emplace_back(call);
    if (currentWatch->onCall)
        currentWatch->onCall(call);
    if (currentWatch->calls.size() - 1 == currentWatch->failsAt)
        throw std::bad_alloc();
}

void OdDbDatabase::startUndoRecord() {
    UndoWatch::tell("record");
    parts->log.startRecord();
}

void OdDbDatabase::setUndoMark() {
    UndoWatch::tell("mark");
    parts->log.setMark();
}

void OdDbDatabase::undoBack() {
    UndoWatch::tell("back");
    parts->log.undoToMark();
}

void OdDbDatabase::blockUndoRecording(bool begin) {
    UndoWatch::tell(begin ? "open" : "close");
    begin ? parts->log.openBlock() : parts->log.closeBlock();
}

void OdDbDatabase::startTransaction() {
    UndoWatch::tell("begin");
    parts->log.startTransaction();
}

void OdDbDatabase::endTransaction() {
    UndoWatch::tell("commit");
    parts->log.commitTransaction();
}

void OdDbDatabase::abortTransaction() {
    UndoWatch::tell("abort");
    parts->log.abortTransaction();
}
