// What a command must leave of the current drawing's transactions, undo blocks and ways of selecting, also
// when an exception ends it.
#pragma once

#include "sdk/db/database.h"

namespace standin {

class DrawingState {
public:
    DrawingState(); // as it is now; of no drawing when none is open
    // Aborts the transactions that were begun since, takes back what an undo block that was left open holds,
    // closes it, and sets PICKSTYLE to what it was. True when there was anything to put back.
    bool putBack() const;

private:
    bool abortTransactions() const;
    bool endBlocks() const;
    bool restorePickStyle() const;

    OdDbDatabasePtr drawing;
    int transactions = 0;
    bool inBlock = false;
    std::uint64_t changes = 0;
    int pickStyle = 0;
};

} // namespace standin
