// Groups, their members and their names.
#include "tests/sdk/db/drawing_fixture.h"

class Groups : public DrawingTest {
protected:
    void SetUp() override {
        for (int i = 0; i < 5; ++i)
            lines.push_back(addLine(*database, i + 1));
        id = addGroup(*database, L"Walls", lines);
    }
    OdDbGroupPtr forWrite() { return openGroup(id, OdDb::kForWrite); }
    OdDbObjectIdArray pick(std::initializer_list<int> positions) const {
        OdDbObjectIdArray ids;
        for (const int i : positions)
            ids.push_back(lines[static_cast<std::size_t>(i)]);
        return ids;
    }
    OdDbObjectIdArray lines;
    OdDbObjectId id;
};

TEST_F(Groups, NewGroupIsNamedSelectableAndWithoutDescription) {
    const OdDbGroupPtr fresh(new OdDbGroup);
    EXPECT_EQ(fresh->tags().bytes(), "  0\nGROUP\n100\nAcDbGroup\n300\n\n 70\n0\n 71\n1\n");
    EXPECT_EQ(fresh->description(), OdString());
    EXPECT_TRUE(fresh->isSelectable());
    EXPECT_FALSE(fresh->isAnonymous());
}

TEST_F(Groups, ChangingANewGroupLeavesOtherNewGroupsAsTheyAre) {
    const OdDbGroupPtr former(new OdDbGroup), changed(new OdDbGroup);
    const std::string bytes = former->tags().bytes();
    changed->setDescription(L"North wing");
    changed->setSelectable(false);
    changed->append(lines);
    const OdDbGroupPtr later(new OdDbGroup);
    EXPECT_EQ(former->tags().bytes(), bytes);
    EXPECT_EQ(later->tags().bytes(), bytes);
    EXPECT_EQ(changed->description(), OdString(L"North wing"));
}

TEST_F(Groups, NameIsTheKeyInTheDictionary) {
    EXPECT_EQ(openGroup(id)->name(), OdString(L"Walls"));
    groupsOf(*database, OdDb::kForWrite)->setName(L"walls", L"Doors");
    EXPECT_EQ(openGroup(id)->name(), OdString(L"Doors"));
}

TEST_F(Groups, SetNameMovesTheKey) {
    forWrite()->setName(L"Doors");
    EXPECT_TRUE(groupsOf(*database)->getAt(L"Walls").isNull());
    EXPECT_EQ(groupsOf(*database)->getAt(L"doors"), id);
}

TEST_F(Groups, SetNameToTheOwnKeyIsNoChange) {
    database->startUndoRecord();
    forWrite()->setName(L"Walls");
    EXPECT_EQ(openGroup(id)->name(), OdString(L"Walls"));
}

TEST_F(Groups, SetNameToAnotherGroupsKeyThrows) {
    addGroup(*database, L"Doors", {});
    EXPECT_EQ(codeOf([&] { forWrite()->setName(L"DOORS"); }), eDuplicateKey);
    EXPECT_EQ(openGroup(id)->name(), OdString(L"Walls"));
}

TEST_F(Groups, SettersNeedTheGroupOpenForWrite) {
    const OdDbGroupPtr group = openGroup(id);
    EXPECT_EQ(codeOf([&] { group->setDescription(L"x"); }), eNotOpenForWrite);
    EXPECT_EQ(codeOf([&] { group->setSelectable(false); }), eNotOpenForWrite);
    EXPECT_EQ(codeOf([&] { group->setName(L"Other"); }), eNotOpenForWrite);
    EXPECT_EQ(codeOf([&] { group->append(lines[0]); }), eNotOpenForWrite);
    EXPECT_EQ(codeOf([&] { group->remove(lines[0]); }), eNotOpenForWrite);
    EXPECT_EQ(codeOf([&] { group->clear(); }), eNotOpenForWrite);
    EXPECT_EQ(codeOf([&] { group->reverse(); }), eNotOpenForWrite);
    EXPECT_EQ(codeOf([&] { group->transfer(0, 1, 1); }), eNotOpenForWrite);
}

TEST_F(Groups, AnonymousGroupGetsAUniqueNameAtOnce) {
    OdDbGroupPtr first(new OdDbGroup), second(new OdDbGroup);
    first->setAnonymous();
    second->setAnonymous();
    EXPECT_TRUE(first->isAnonymous());
    EXPECT_EQ(first->name().left(2), OdString(L"*A"));
    EXPECT_NE(first->name(), second->name());
    const auto groups = groupsOf(*database, OdDb::kForWrite);
    EXPECT_EQ(openGroup(groups->setAt(first->name(), first.get()))->name(), first->name());
    EXPECT_NO_THROW(groups->setAt(second->name(), second.get()));
}

TEST_F(Groups, AnonymousNamesOfADrawingThatWasReadAreNotGivenOutAgain) {
    addGroup(*database, L"*A9000", {});
    const OdDbDatabasePtr again = OdDbDatabase::readBytes(database->writeBytes());
    OdDbGroupPtr group(new OdDbGroup);
    group->setAnonymous();
    EXPECT_FALSE(groupsOf(*again)->has(group->name()));
    EXPECT_EQ(group->name(), OdString(L"*A9001"));
}

TEST_F(Groups, NamingAnAnonymousGroupMakesItANamedOne) {
    const OdDbGroupPtr group = forWrite();
    group->setAnonymous();
    EXPECT_TRUE(groupsOf(*database)->has(group->name()));
    group->setName(L"Named");
    EXPECT_FALSE(group->isAnonymous());
}

TEST_F(Groups, MembersKeepTheirOrder) {
    EXPECT_EQ(membersOf(id), lines);
    EXPECT_EQ(openGroup(id)->numEntities(), 5u);
    OdDbObjectIdArray ids{id};
    EXPECT_EQ(openGroup(id)->allEntityIds(ids), 5u);
    EXPECT_EQ(ids, lines);
}

TEST_F(Groups, GetIndexCountsFromZeroAndThrowsForNoMember) {
    unsigned index = 99;
    openGroup(id)->getIndex(lines[3], index);
    EXPECT_EQ(index, 3u);
    const OdDbObjectId stranger = addLine(*database, 9);
    EXPECT_EQ(codeOf([&] { openGroup(id)->getIndex(stranger, index); }), eKeyNotFound);
    EXPECT_EQ(codeOf([&] { openGroup(id)->getIndex(OdDbObjectId(), index); }), eKeyNotFound);
    EXPECT_EQ(index, 3u);
}

TEST_F(Groups, HasTellsMembersFromOthers) {
    const auto entity = [](OdDbObjectId e) { return odrxCast<OdDbEntity>(e.safeOpenObject()); };
    EXPECT_TRUE(openGroup(id)->has(entity(lines[2]).get()));
    EXPECT_FALSE(openGroup(id)->has(entity(addLine(*database, 9)).get()));
    EXPECT_FALSE(openGroup(id)->has(nullptr));
}

TEST_F(Groups, AppendingAMemberAgainChangesNothing) {
    forWrite()->append(lines[1]);
    EXPECT_EQ(membersOf(id), lines);
    EXPECT_EQ(codeOf([&] { forWrite()->append(OdDbObjectId()); }), eNullObjectId);
}

TEST_F(Groups, RemoveTakesOneOrSeveral) {
    forWrite()->remove(lines[0]);
    EXPECT_EQ(membersOf(id), pick({1, 2, 3, 4}));
    forWrite()->remove(pick({2, 4}));
    EXPECT_EQ(membersOf(id), pick({1, 3}));
}

TEST_F(Groups, RemovingAStrangerThrowsAndRemovesNothing) {
    const OdDbObjectId stranger = addLine(*database, 9);
    EXPECT_EQ(codeOf([&] { forWrite()->remove({lines[0], stranger}); }), eKeyNotFound);
    EXPECT_EQ(membersOf(id), lines);
}

TEST_F(Groups, ClearEmptiesTheGroup) {
    forWrite()->clear();
    EXPECT_EQ(openGroup(id)->numEntities(), 0u);
    forWrite()->append(pick({4, 1}));
    EXPECT_EQ(membersOf(id), pick({4, 1}));
}

TEST_F(Groups, ReverseTurnsTheOrder) {
    forWrite()->reverse();
    EXPECT_EQ(membersOf(id), pick({4, 3, 2, 1, 0}));
}

TEST_F(Groups, TransferMovesARunUpAndDown) {
    forWrite()->transfer(0, 3, 2);
    EXPECT_EQ(membersOf(id), pick({2, 3, 4, 0, 1}));
    forWrite()->transfer(3, 0, 2);
    EXPECT_EQ(membersOf(id), lines);
}

TEST_F(Groups, TransferOfNothingIsNoChange) {
    forWrite()->transfer(1, 4, 0);
    EXPECT_EQ(membersOf(id), lines);
}

TEST_F(Groups, TransferOutOfRangeThrows) {
    EXPECT_THROW(forWrite()->transfer(5, 0, 1), OdError_InvalidIndex);
    EXPECT_THROW(forWrite()->transfer(0, 5, 1), OdError_InvalidIndex);
    EXPECT_THROW(forWrite()->transfer(0, 1, 5), OdError_InvalidIndex);
    EXPECT_THROW(forWrite()->transfer(3, 0, 3), OdError_InvalidIndex);
    EXPECT_THROW(forWrite()->transfer(0, 0, 4294967295u), OdError_InvalidIndex);
    EXPECT_EQ(membersOf(id), lines);
}

TEST_F(Groups, ErasedMembersCountAsAbsentUntilTheyComeBack) {
    lines[1].safeOpenObject(OdDb::kForWrite)->erase(true);
    EXPECT_EQ(openGroup(id)->numEntities(), 4u);
    EXPECT_EQ(membersOf(id), pick({0, 2, 3, 4}));
    forWrite()->transfer(0, 3, 1);
    lines[1].safeOpenObject(OdDb::kForWrite, true)->erase(false);
    EXPECT_EQ(openGroup(id)->numEntities(), 5u);
}

TEST_F(Groups, OfAFileThatSaysLittleTakeWhatIsSet) {
    std::string text = database->writeBytes();
    const std::string said = "300\n\n 70\n0\n 71\n1\n";
    text.replace(text.find(said), said.size(), "");
    const std::string last = "340\n" + lines[4].getHandle().ascii().toUtf8() + "\n";
    text.insert(text.find(last) + last.size(), "1001\nACAD\n1070\n1\n");
    const OdDbDatabasePtr read = OdDbDatabase::readBytes(text);
    const auto group = odrxCast<OdDbGroup>(groupsOf(*read)->getAt(L"Walls", OdDb::kForWrite));
    EXPECT_EQ(group->description(), OdString());
    EXPECT_TRUE(group->isSelectable());
    group->setDescription(L"North");
    group->setSelectable(false);
    EXPECT_EQ(group->description(), OdString(L"North"));
    EXPECT_FALSE(group->isSelectable());
    EXPECT_EQ(group->numEntities(), 5u);
    const std::string tags = group->tags().bytes();
    EXPECT_NE(tags.find(last + "300\nNorth\n 71\n0\n1001\nACAD\n1070\n1\n"), std::string::npos) << tags;
}

TEST_F(Groups, RemoveTheirMembersBeforeAnythingElseWasAsked) {
    const OdDbDatabasePtr read = OdDbDatabase::readBytes(database->writeBytes());
    const auto group = odrxCast<OdDbGroup>(groupsOf(*read)->getAt(L"Walls", OdDb::kForWrite));
    group->remove(read->getOdDbObjectId(lines[0].getHandle()));
    EXPECT_EQ(group->numEntities(), 4u);
    const OdDbDatabasePtr again = OdDbDatabase::readBytes(database->writeBytes());
    const auto other = odrxCast<OdDbGroup>(groupsOf(*again)->getAt(L"Walls", OdDb::kForWrite));
    other->remove(OdDbObjectIdArray{again->getOdDbObjectId(lines[4].getHandle())});
    EXPECT_EQ(other->numEntities(), 4u);
    const OdDbDatabasePtr third = OdDbDatabase::readBytes(database->writeBytes());
    const auto cleared = odrxCast<OdDbGroup>(groupsOf(*third)->getAt(L"Walls", OdDb::kForWrite));
    cleared->clear();
    EXPECT_EQ(cleared->numEntities(), 0u);
    EXPECT_EQ(cleared->tags().bytes().find("340\n"), std::string::npos);
}

TEST_F(Groups, ErasedMembersAreNotWritten) {
    lines[1].safeOpenObject(OdDb::kForWrite)->erase(true);
    const OdDbDatabasePtr again = OdDbDatabase::readBytes(database->writeBytes());
    const OdDbObjectId group = groupsOf(*again)->getAt(L"Walls");
    EXPECT_EQ(openGroup(group)->numEntities(), 4u);
    const std::string tags = openGroup(group)->tags().bytes();
    EXPECT_EQ(tags.find("340\n" + lines[1].getHandle().ascii().toUtf8() + "\n"), std::string::npos);
}

TEST_F(Groups, GroupOfAReferenceOrAnErasedOneIsNotAccessible) {
    EXPECT_FALSE(openGroup(id)->isNotAccessible());
    EXPECT_TRUE(openGroup(addGroup(*database, L"plan|Walls", {}))->isNotAccessible());
    const OdDbGroupPtr group = forWrite();
    group->erase(true);
    EXPECT_TRUE(group->isNotAccessible());
}

TEST_F(Groups, EverythingSurvivesSavingAndReading) {
    forWrite()->setDescription(L"Gr\u00fc\u00dfe ^ \u4e16\u754c \U0001F600");
    forWrite()->setSelectable(false);
    const OdDbDatabasePtr again = OdDbDatabase::readBytes(database->writeBytes());
    const OdDbGroupPtr group = openGroup(groupsOf(*again)->getAt(L"Walls"));
    EXPECT_EQ(group->description(), OdString(L"Gr\u00fc\u00dfe ^ \u4e16\u754c \U0001F600"));
    EXPECT_FALSE(group->isSelectable());
    EXPECT_FALSE(group->isAnonymous());
    EXPECT_EQ(group->numEntities(), 5u);
}

TEST_F(Groups, RemoveTakesAMemberThatAFileNamesTwice) {
    std::string text = database->writeBytes();
    const std::string second = "340\n" + lines[1].getHandle().ascii().toUtf8() + "\n";
    text.insert(text.find("340\n" + lines[2].getHandle().ascii().toUtf8() + "\n"), second);
    const OdDbDatabasePtr read = OdDbDatabase::readBytes(text);
    const auto group = odrxCast<OdDbGroup>(groupsOf(*read)->getAt(L"Walls", OdDb::kForWrite));
    EXPECT_EQ(group->numEntities(), 6u);
    const OdDbObjectId twice = read->getOdDbObjectId(lines[1].getHandle());
    EXPECT_TRUE(group->has(odrxCast<OdDbEntity>(twice.safeOpenObject()).get()));
    group->remove(twice);
    EXPECT_EQ(group->numEntities(), 4u);
    EXPECT_FALSE(group->has(odrxCast<OdDbEntity>(twice.safeOpenObject()).get()));
    EXPECT_EQ(codeOf([&] { group->remove(twice); }), eKeyNotFound);
    EXPECT_EQ(read->writeBytes().find(second), std::string::npos);
}

// The bytes of a drawing that has no place for groups.
std::string withoutGroups() {
    return "  0\nSECTION\n  2\nHEADER\n  9\n$ACADVER\n  1\nAC1015\n  0\nENDSEC\n  0\nSECTION\n  2\nENTITIES\n"
           "  0\nLINE\n  5\n20\n100\nAcDbEntity\n  8\n0\n100\nAcDbLine\n 10\n0.0\n 20\n0.0\n 11\n9.0\n "
           "21\n9.0\n"
           "  0\nENDSEC\n  0\nEOF\n";
}

TEST(GroupDictionary, IsNoChangeOfADrawingWhileNothingIsInIt) {
    const OdDbDatabasePtr drawing = OdDbDatabase::readBytes(withoutGroups());
    const OdDbObjectId asked = drawing->getGroupDictionaryId(true);
    ASSERT_TRUE(asked.isValid());
    EXPECT_EQ(drawing->getGroupDictionaryId(true), asked) << "each question makes another dictionary";
    EXPECT_TRUE(drawing->getGroupDictionaryId().isNull());
    EXPECT_FALSE(drawing->isModified());
    EXPECT_FALSE(drawing->hasUndo());
    EXPECT_EQ(drawing->writeBytes(), withoutGroups());
}

TEST(GroupDictionary, ComesAndGoesWithTheFirstGroup) {
    const OdDbDatabasePtr drawing = OdDbDatabase::readBytes(withoutGroups());
    const OdDbObjectId asked = drawing->getGroupDictionaryId(true);
    drawing->startUndoRecord();
    addGroup(*drawing, L"FIRST", {drawing->getOdDbObjectId(OdDbHandle(0x20))});
    const std::string grouped = drawing->writeBytes();
    EXPECT_EQ(drawing->getGroupDictionaryId(), asked);
    EXPECT_TRUE(groupsOf(*OdDbDatabase::readBytes(grouped))->has(L"FIRST"));
    drawing->undo();
    EXPECT_EQ(drawing->writeBytes(), withoutGroups());
    EXPECT_EQ(drawing->getGroupDictionaryId(true), asked);
    ASSERT_TRUE(drawing->redo()) << "asking for the dictionary takes the way forward away";
    EXPECT_EQ(drawing->writeBytes(), grouped);
}
