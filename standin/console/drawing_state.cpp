#include "standin/console/drawing_state.h"

#include "host/documents.h"
#include "sdk/db/database_impl.h"

namespace standin {

namespace {

const wchar_t* const pickStyleName = L"PICKSTYLE"; // group commands clear it while they ask for objects

OdDbDatabasePtr currentDrawing() {
    HostDocument* const document = currentDocument();
    return document ? document->database() : OdDbDatabasePtr();
}

} // namespace

DrawingState::DrawingState() : drawing(currentDrawing()) {
    if (drawing.isNull())
        return;
    transactions = drawing->numActiveTransactions();
    inBlock = drawing->isUndoBlockStarted();
    changes = drawing->impl().log.state();
    pickStyle = drawing->getSysVar(pickStyleName)->getInt8();
}

bool DrawingState::putBack() const {
    if (drawing.isNull())
        return false;
    const bool done[] = {abortTransactions(), endBlocks(), restorePickStyle()};
    return done[0] || done[1] || done[2];
}

bool DrawingState::abortTransactions() const {
    const bool any = drawing->numActiveTransactions() > transactions;
    while (drawing->numActiveTransactions() > transactions)
        drawing->abortTransaction();
    return any;
}

bool DrawingState::endBlocks() const {
    if (inBlock || !drawing->isUndoBlockStarted())
        return false;
    while (drawing->isUndoBlockStarted())
        drawing->blockUndoRecording(false);
    if (drawing->impl().log.state() != changes)
        drawing->undo(); // the block is one step
    return true;
}

bool DrawingState::restorePickStyle() const {
    if (drawing->getSysVar(pickStyleName)->getInt8() == pickStyle)
        return false;
    const OdResBufPtr value = OdResBuf::newRb(OdResBuf::kDxfInt8);
    value->setInt8(static_cast<std::int8_t>(pickStyle));
    drawing->setSysVar(pickStyleName, value.get());
    return true;
}

} // namespace standin
