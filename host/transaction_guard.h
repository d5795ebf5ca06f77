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

// Aborts whatever is still open when it is left, by whatever way: the scope object of a caller that must.
class AbortAtEnd {
public:
    explicit AbortAtEnd(DbTransactionGuard& watched) : guard(watched) {}
    ~AbortAtEnd() { guard.abort(); }
    AbortAtEnd(const AbortAtEnd&) = delete;
    AbortAtEnd& operator=(const AbortAtEnd&) = delete;

private:
    DbTransactionGuard& guard;
};
