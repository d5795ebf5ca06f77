// Groups the transactions of one command on a database: whatever is open above the depth found at the start
// is committed or aborted together.
#pragma once

#include "sdk/db/database.h"

// Has no aborting destructor, on purpose: only commit() and abort() close what begin() has opened, so that a
// caller which must close it on every path says so itself.
class DbTransactionGuard {
public:
    explicit DbTransactionGuard(OdDbDatabasePtr guarded)
        : database(std::move(guarded)), depth(database.isNull() ? 0 : database->numActiveTransactions()) {}

    void begin() {
        depth = database->numActiveTransactions();
        database->startTransaction();
    }
    void commit() {
        while (database->numActiveTransactions() > depth)
            database->endTransaction();
    }
    void abort() {
        while (database->numActiveTransactions() > depth)
            database->abortTransaction();
    }

private:
    OdDbDatabasePtr database;
    int depth;
};
