// The guard that ends all transactions above the depth found at its start.
#include "host/transaction_guard.h"
#include "sdk/db/dictionary.h"
#include "sdk/db/group.h"

#include <gtest/gtest.h>

class TransactionGuard : public testing::Test {
protected:
    OdDbDictionaryPtr groups(OdDb::OpenMode mode = OdDb::kForRead) const {
        return odrxCast<OdDbDictionary>(database->getGroupDictionaryId(true).safeOpenObject(mode));
    }
    void addGroup(const wchar_t* name) {
        const OdDbGroupPtr made(new OdDbGroup);
        groups(OdDb::kForWrite)->setAt(name, made.get());
    }
    int depth() const { return database->numActiveTransactions(); }
    OdDbDatabasePtr database = OdDbDatabase::createEmpty();
};

TEST_F(TransactionGuard, CommitEndsAllTransactionsAboveTheDepthAndKeepsTheirChanges) {
    database->startTransaction();
    DbTransactionGuard guard(database);
    guard.begin();
    EXPECT_EQ(depth(), 2);
    addGroup(L"A");
    database->startTransaction();
    database->startTransaction();
    addGroup(L"B");
    guard.commit();
    EXPECT_EQ(depth(), 1);
    EXPECT_TRUE(groups()->has(L"A"));
    EXPECT_TRUE(groups()->has(L"B"));
}

TEST_F(TransactionGuard, AbortTakesBackAllTransactionsAboveTheDepth) {
    database->startTransaction();
    addGroup(L"BEFORE");
    DbTransactionGuard guard(database);
    guard.begin();
    addGroup(L"A");
    database->startTransaction();
    addGroup(L"B");
    guard.abort();
    EXPECT_EQ(depth(), 1);
    EXPECT_TRUE(groups()->has(L"BEFORE"));
    EXPECT_FALSE(groups()->has(L"A"));
    EXPECT_FALSE(groups()->has(L"B"));
}

TEST_F(TransactionGuard, BeginReadsTheDepthAnew) {
    DbTransactionGuard guard(database);
    database->startTransaction();
    guard.begin();
    guard.commit();
    EXPECT_EQ(depth(), 1);
}

TEST_F(TransactionGuard, WithoutABeginTheDepthIsThatOfTheConstruction) {
    database->startTransaction();
    DbTransactionGuard guard(database);
    database->startTransaction();
    guard.commit();
    EXPECT_EQ(depth(), 1);
}

TEST_F(TransactionGuard, EndsNothingWhenItGoes) {
    {
        DbTransactionGuard guard(database);
        guard.begin();
        addGroup(L"A");
    }
    EXPECT_EQ(depth(), 1);
    EXPECT_TRUE(groups()->has(L"A"));
}

TEST_F(TransactionGuard, EndingTwiceEndsNothingMore) {
    database->startTransaction();
    DbTransactionGuard guard(database);
    guard.begin();
    guard.commit();
    guard.abort();
    EXPECT_EQ(depth(), 1);
}

TEST_F(TransactionGuard, ScopeObjectAbortsWhatIsOpenAndFindsNothingAfterACommit) {
    for (const bool commits : {false, true}) {
        DbTransactionGuard guard(database);
        guard.begin();
        {
            const AbortAtEnd abortAtEnd(guard);
            database->startTransaction();
            addGroup(commits ? L"KEPT" : L"DROPPED");
            if (commits)
                guard.commit();
        }
        EXPECT_EQ(depth(), 0);
    }
    EXPECT_TRUE(groups()->has(L"KEPT"));
    EXPECT_FALSE(groups()->has(L"DROPPED"));
}
