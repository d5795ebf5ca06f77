// Transactions, undo records, marks, blocks and redo.
#include "tests/sdk/db/drawing_fixture.h"

#include "sdk/db/summary_info.h"

class Undo : public DrawingTest {
protected:
    std::size_t lineCount() const { return modelSpace().size(); }
    OdString titleOf() const { return oddbGetSummaryInfo(database.get())->getTitle(); }
    void setTitle(const wchar_t* title) {
        const auto info = oddbGetSummaryInfo(database.get());
        info->setTitle(title);
        oddbPutSummaryInfo(info.get());
    }
};

TEST_F(Undo, AbortRestoresEverythingAndCommitKeepsIt) {
    const OdDbObjectId line = addLine(*database, 1);
    const OdDbObjectId group = addGroup(*database, L"G", {line});
    const std::string before = database->writeBytes();
    database->startTransaction();
    addGroup(*database, L"H", {addLine(*database, 2)});
    openGroup(group, OdDb::kForWrite)->setName(L"Renamed");
    openGroup(group, OdDb::kForWrite)->clear();
    line.safeOpenObject(OdDb::kForWrite)->erase(true);
    setTitle(L"Changed");
    EXPECT_NE(database->writeBytes(), before);
    database->abortTransaction();
    EXPECT_EQ(database->numActiveTransactions(), 0);
    EXPECT_EQ(titleOf(), OdString());
    EXPECT_EQ(membersOf(group), OdDbObjectIdArray{line});
    EXPECT_EQ(groupsOf(*database)->nameAt(group), OdString(L"G"));
    EXPECT_EQ(groupsOf(*database)->numEntries(), 1u);
    EXPECT_EQ(modelSpace(), OdDbObjectIdArray{line});
}

TEST_F(Undo, CommitFoldsIntoTheOuterTransaction) {
    database->startTransaction();
    addLine(*database, 1);
    database->startTransaction();
    EXPECT_EQ(database->numActiveTransactions(), 2);
    addLine(*database, 2);
    database->endTransaction();
    EXPECT_EQ(lineCount(), 2u);
    database->abortTransaction();
    EXPECT_EQ(lineCount(), 0u);
}

TEST_F(Undo, AbortOfTheInnerTransactionLeavesTheOuterOnes) {
    const OdDbObjectId group = addGroup(*database, L"G", {});
    database->startTransaction();
    openGroup(group, OdDb::kForWrite)->setDescription(L"outer");
    database->startTransaction();
    openGroup(group, OdDb::kForWrite)->setDescription(L"inner");
    database->abortTransaction();
    EXPECT_EQ(openGroup(group)->description(), OdString(L"outer"));
    database->endTransaction();
    EXPECT_EQ(openGroup(group)->description(), OdString(L"outer"));
}

TEST_F(Undo, ClosingMoreTransactionsThanAreOpenThrows) {
    EXPECT_EQ(codeOf([&] { database->endTransaction(); }), eNoActiveTransactions);
    EXPECT_EQ(codeOf([&] { database->abortTransaction(); }), eNoActiveTransactions);
}

TEST_F(Undo, EachRecordIsOneStepBackAndForth) {
    database->startUndoRecord();
    addLine(*database, 1);
    addLine(*database, 2);
    database->startUndoRecord();
    addLine(*database, 3);
    EXPECT_TRUE(database->undo());
    EXPECT_EQ(lineCount(), 2u);
    EXPECT_TRUE(database->undo());
    EXPECT_EQ(lineCount(), 0u);
    EXPECT_FALSE(database->undo());
    EXPECT_TRUE(database->redo());
    EXPECT_EQ(lineCount(), 2u);
    EXPECT_TRUE(database->redo());
    EXPECT_EQ(lineCount(), 3u);
    EXPECT_FALSE(database->redo());
    EXPECT_TRUE(database->undo());
    EXPECT_EQ(lineCount(), 2u);
}

TEST_F(Undo, NewChangeEndsRedo) {
    database->startUndoRecord();
    addLine(*database, 1);
    database->undo();
    database->startUndoRecord();
    addLine(*database, 2);
    EXPECT_FALSE(database->hasRedo());
    EXPECT_FALSE(database->redo());
}

TEST_F(Undo, UndoBackGoesToTheLastMark) {
    addLine(*database, 1);
    database->setUndoMark();
    database->startUndoRecord();
    addLine(*database, 2);
    database->startUndoRecord();
    addLine(*database, 3);
    database->undoBack();
    EXPECT_EQ(lineCount(), 1u);
}

TEST_F(Undo, BlockingRecordingGroupsRecordsAndGoesOnRecording) {
    addLine(*database, 1);
    EXPECT_FALSE(database->isUndoBlockStarted());
    database->blockUndoRecording(true);
    EXPECT_TRUE(database->isUndoBlockStarted());
    database->startUndoRecord();
    addLine(*database, 2);
    database->startUndoRecord();
    addLine(*database, 3);
    database->blockUndoRecording(false);
    EXPECT_FALSE(database->isUndoBlockStarted());
    EXPECT_EQ(lineCount(), 3u);
    database->undo();
    EXPECT_EQ(lineCount(), 1u);
    database->redo();
    EXPECT_EQ(lineCount(), 3u);
}

TEST_F(Undo, CancelledDialogSequenceLeavesNothingBehind) {
    database->startUndoRecord();
    const OdDbObjectId line = addLine(*database, 1);
    database->blockUndoRecording(true);
    database->startUndoRecord();
    database->setUndoMark();
    database->startUndoRecord();
    addGroup(*database, L"G", {line});
    database->undoBack();
    database->startUndoRecord();
    database->blockUndoRecording(false);
    EXPECT_EQ(groupsOf(*database)->numEntries(), 0u);
    EXPECT_EQ(lineCount(), 1u);
    database->undo();
    EXPECT_EQ(lineCount(), 0u);
}

TEST_F(Undo, UndoIsRefusedWhileATransactionIsActive) {
    database->startUndoRecord();
    addLine(*database, 1);
    database->startTransaction();
    EXPECT_FALSE(database->undo());
    database->abortTransaction();
    EXPECT_TRUE(database->undo());
}

TEST_F(Undo, SystemVariablesStandOutside) {
    database->startTransaction();
    const OdResBufPtr value = OdResBuf::newRb(70);
    value->setInt16(6);
    database->setSysVar(L"INSUNITS", value.get());
    database->abortTransaction();
    EXPECT_EQ(database->getSysVar(L"insunits")->getInt16(), 6);
}

TEST_F(Undo, UndoneDrawingIsWrittenAsItWasRead) {
    const std::string bytes = database->writeBytes();
    const OdDbDatabasePtr read = OdDbDatabase::readBytes(bytes);
    read->startUndoRecord();
    addGroup(*read, L"G", {addLine(*read, 1)});
    EXPECT_NE(read->writeBytes(), bytes);
    read->undo();
    EXPECT_EQ(read->writeBytes(), bytes);
}

TEST_F(Undo, SummaryIsUndoneLikeAnyChange) {
    database->startUndoRecord();
    setTitle(L"One");
    database->startUndoRecord();
    setTitle(L"Two");
    database->undo();
    EXPECT_EQ(titleOf(), OdString(L"One"));
    database->undo();
    EXPECT_EQ(titleOf(), OdString());
    database->redo();
    EXPECT_EQ(titleOf(), OdString(L"One"));
}

TEST_F(Undo, StepsHaveTheNameThatTheirChangesWereMadeUnder) {
    EXPECT_EQ(database->undoName(), OdString());
    EXPECT_EQ(database->redoName(), OdString());
    addLine(*database, 1);
    EXPECT_EQ(database->undoName(), OdString()) << "made under no name";
    for (const wchar_t* name : {L"FIRST", L"SECOND", L"FIRST"}) {
        database->startUndoRecord();
        database->nameUndoSteps(name);
        addLine(*database, 2);
    }
    database->startUndoRecord();
    database->nameUndoSteps(L"NOTHING");
    EXPECT_EQ(database->undoName(), OdString(L"FIRST"));
    database->undo();
    EXPECT_EQ(database->undoName(), OdString(L"SECOND"));
    EXPECT_EQ(database->redoName(), OdString(L"FIRST"));
    database->redo();
    EXPECT_EQ(database->undoName(), OdString(L"FIRST"));
    database->undo();
    database->undo();
    EXPECT_EQ(database->redoName(), OdString(L"SECOND"));
}
