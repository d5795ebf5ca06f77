// Names, parameters, system variables, keywords and the other routines that the group commands share.
#include "groups/find_name.h"
#include "groups/group_names.h"
#include "groups/highlight.h"
#include "groups/keyword_list.h"
#include "groups/local_undo.h"
#include "groups/run_parameters.h"
#include "groups/selection_step.h"
#include "groups/system_variables.h"
#include "tests/groups/group_fixture.h"
#include "tests/support/test_application.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

class GroupRoutines : public GroupTest {};

TEST(GroupNameRule, ThirtyOneCharactersAreValidAndThirtyTwoAreNot) {
    EXPECT_TRUE(isValidGroupName(std::wstring(31, L'A')));
    EXPECT_FALSE(isValidGroupName(std::wstring(32, L'A')));
}

TEST(GroupNameRule, BlanksAroundTheNameDoNotCountForTheRule) {
    EXPECT_TRUE(isValidGroupName(L"  " + std::wstring(31, L'A') + L" \t"));
}

TEST(GroupNameRule, BlankInsideTheNameIsInvalid) { EXPECT_FALSE(isValidGroupName(L"DINING TABLE")); }

TEST(GroupNameRule, NameOfOnlyMarksIsValid) {
    for (const wchar_t* name : {L"_", L"-", L"$", L"_-$"})
        EXPECT_TRUE(isValidGroupName(name)) << OdString(name).toUtf8();
}

TEST(GroupNameRule, EmptyNamesAndOtherMarksAreInvalid) {
    for (const wchar_t* name :
         {L"", L"   ", L"A*", L"*A1", L"A%1", L"A.B", L"<b>A</b>", L"A\nB", L"A|B", L"A/B"})
        EXPECT_FALSE(isValidGroupName(name)) << OdString(name).toUtf8();
}

TEST(GroupNameRule, LettersOfOtherAlphabetsAreValidAndCombiningMarksAreNot) {
    EXPECT_TRUE(isValidGroupName(L"СТОЛ-1"));
    EXPECT_TRUE(isValidGroupName(L"ΤΡΑΠΕΖΙ"));
    EXPECT_FALSE(isValidGroupName(L"E\u0301"));
}

TEST_F(GroupRoutines, NextNumberInAnEmptyDictionaryIsOne) {
    EXPECT_EQ(nextGroupNumber(dictionary()), 1);
    EXPECT_EQ(nextGroupName(database), OdString(L"Group1"));
}

TEST_F(GroupRoutines, NextNumberIsTheLowestFreeOne) {
    addGroup(L"Group1", {});
    addGroup(L"Group3", {});
    EXPECT_EQ(nextGroupNumber(dictionary()), 2);
    EXPECT_EQ(nextGroupName(database), OdString(L"Group2"));
}

TEST_F(GroupRoutines, NextNumberOfANullDictionaryEndsInTheSmartPointersException) {
    EXPECT_EQ(codeOf([] { nextGroupNumber({}); }), eNullObjectPointer);
}

TEST_F(GroupRoutines, GroupNameParameterIsReadInBothWidths) {
    CXStringW name;
    EXPECT_NE(readStringParam(groupNameParams(L"Стол").get(), kGroupNameParam, name), 0);
    EXPECT_STREQ(name.c_str(), L"Стол");
    const Ref<IParam> narrow = Ref<IParam>::take(new_MemParam());
    CKWVariant value;
    value = "CHAIR";
    narrow->setValue("GroupName", &value);
    EXPECT_NE(readStringParam(narrow.get(), kGroupNameParam, name), 0);
    EXPECT_STREQ(name.c_str(), L"CHAIR");
}

TEST_F(GroupRoutines, MissingEmptyAndForeignParametersReadAsNone) {
    CXStringW name;
    EXPECT_EQ(readStringParam(nullptr, kGroupNameParam, name), 0);
    const Ref<IParam> params = Ref<IParam>::take(new_MemParam());
    EXPECT_EQ(readStringParam(params.get(), kGroupNameParam, name), 0);
    EXPECT_EQ(readStringParam(groupNameParams(L"").get(), kGroupNameParam, name), 0);
    const CKWVariant number(7, kVtInt);
    params->setValue("GroupName", &number);
    EXPECT_EQ(readStringParam(params.get(), kGroupNameParam, name), 0);
}

TEST_F(GroupRoutines, PickStyleIsReadOfTheDatabaseAndWrittenThroughTheServiceWithIt) {
    std::int8_t value = -1;
    EXPECT_EQ(readSysVarInt8(L"PICKSTYLE", value, database), 1);
    EXPECT_EQ(value, 1);
    writeSysVarInt8(L"PICKSTYLE", 3, database);
    ASSERT_EQ(host.vars.writes.size(), 1u);
    EXPECT_EQ(host.vars.writes[0].name, "PICKSTYLE");
    EXPECT_EQ(host.vars.writes[0].value->restype(), 280);
    EXPECT_TRUE(host.vars.writes[0].withContext);
    EXPECT_EQ(pickStyle(), 3);
}

TEST_F(GroupRoutines, WithoutADatabaseTheOneOfTheConsoleIsRead) {
    std::int8_t value = -1;
    EXPECT_EQ(readSysVarInt8(L"PICKSTYLE", value, {}), 1);
    EXPECT_EQ(value, 1);
    TestApplication::self()->offersConsole = false;
    EXPECT_EQ(readSysVarInt8(L"PICKSTYLE", value, {}), 0);
    TestApplication::self()->offersConsole = true;
}

TEST_F(GroupRoutines, FailureToReadAVariableIsOnlyAResult) {
    std::int8_t value = 5;
    EXPECT_EQ(readSysVarInt8(L"NOSUCHVARIABLE", value, database), 0);
    EXPECT_EQ(value, 5);
}

TEST(KeywordList, LocalPartEndsAtTheFirstMark) {
    EXPECT_EQ(localKeywords(QStringLiteral("  Ja Nein _ Yes No")), QStringLiteral("Ja Nein"));
    EXPECT_EQ(localKeywords(QStringLiteral("Yes No")), QStringLiteral("Yes No"));
}

TEST(KeywordList, LeadingMarkIsCutWhereItIsAsked) {
    const QString source = QStringLiteral("Kwrd:  Ja Nein _ Yes No");
    EXPECT_EQ(localKeywordsWithoutMark(source), QStringLiteral("Ja Nein"));
    EXPECT_EQ(localKeywords(source), QStringLiteral("Kwrd:  Ja Nein"));
}

TEST(KeywordList, WordsStandOnceAtTheirFirstPlace) {
    EXPECT_EQ(keywordWords(QStringLiteral("B A  B\tC")), (QStringList{"B", "A", "C"}));
}

TEST(KeywordList, HelpGoesToTheFrontWhereItOccurs) {
    EXPECT_EQ(keywordWordsHelpFirst(QStringLiteral("Name ?")), (QStringList{"?", "Name"}));
    EXPECT_EQ(keywordWordsHelpFirst(QStringLiteral("Name")), QStringList{"Name"});
}

TEST(KeywordList, HiddenAbbreviationsDoNotShow) {
    EXPECT_EQ(keywordBracket(shownKeywordWords(QStringLiteral("End *E _ Yes"))), QStringLiteral("End/Yes"));
}

TEST_F(GroupRoutines, HighlightIsSetAndTakenOffInOneGo) {
    setObjectsHighlight(pick({0, 2}), true);
    EXPECT_THAT(highlightedLines(), ElementsAre(0, 2));
    setObjectsHighlight(pick({0, 2}), false);
    EXPECT_THAT(highlightedLines(), IsEmpty());
    setObjectsHighlight({}, true);
    EXPECT_THAT(highlightedLines(), IsEmpty());
}

TEST_F(GroupRoutines, HighlightOfWhatIsNoEntityThrowsTheWrongClass) {
    const OdDbObjectId id = addGroup(L"G", {});
    EXPECT_THROW(setObjectsHighlight({id}, true), OdError_NotThatKindOfClass);
}

TEST_F(GroupRoutines, PickingAMemberClearsPickStyleAndLeavesItCleared) {
    EXPECT_EQ(pickGroupMember(&selection, dictionary()->objectId()), 0);
    EXPECT_EQ(pickStyle(), 0);
    EXPECT_TRUE(io.transcript.empty());
    host.vars.writes.clear();
    EXPECT_EQ(pickGroupMember(&selection, dictionary()->objectId()), 0);
    EXPECT_TRUE(host.vars.writes.empty());
}

TEST_F(GroupRoutines, UnreadablePickStyleIsToldByAllThreePrompts) {
    addGroup(L"G", pick({0}));
    GroupData data;
    data.group = group(L"G");
    drawingVariables.failing = true;
    EXPECT_EQ(pickGroupMember(&selection, dictionary()->objectId()), 0);
    EXPECT_EQ(removeObjectsPrompt(&selection, data, false), 0);
    ASSERT_EQ(io.printed.size(), 2u);
    for (const OdString& line : io.printed)
        EXPECT_EQ(line, OdString(L"Failed to get  PICKSTYLE system variable value."));
    EXPECT_THAT(highlightedLines(), IsEmpty());
    EXPECT_TRUE(host.vars.writes.empty());
}

TEST_F(GroupRoutines, AddPromptHighlightsTheMembersAndAddsNothing) {
    addGroup(L"G", pick({1, 2}));
    GroupData data;
    data.group = group(L"G");
    EXPECT_EQ(addObjectsPrompt(&selection, data), 0);
    EXPECT_THAT(highlightedLines(), ElementsAre(1, 2));
    EXPECT_THAT(members(L"G"), ElementsAre(1, 2));
    EXPECT_EQ(pickStyle(), 1);
}

TEST_F(GroupRoutines, RemovePromptClearsPickStyleAndHighlightsUnlessThatIsDone) {
    addGroup(L"G", pick({1, 2}));
    GroupData data;
    data.group = group(L"G");
    EXPECT_EQ(removeObjectsPrompt(&selection, data, true), 0);
    EXPECT_THAT(highlightedLines(), IsEmpty());
    EXPECT_EQ(removeObjectsPrompt(&selection, data, false), 0);
    EXPECT_THAT(highlightedLines(), ElementsAre(1, 2));
    EXPECT_EQ(pickStyle(), 0);
}

TEST_F(GroupRoutines, PromptsWithoutAnEditorOrForAnInaccessibleGroupGive314) {
    addGroup(L"G", pick({1}));
    addGroup(L"plan|G", pick({2}));
    GroupData data;
    data.group = group(L"G");
    EXPECT_EQ(addObjectsPrompt(nullptr, data), 314);
    EXPECT_EQ(removeObjectsPrompt(nullptr, data, false), 314);
    data.group = group(L"plan|G");
    EXPECT_EQ(addObjectsPrompt(&selection, data), 314);
    EXPECT_EQ(removeObjectsPrompt(&selection, data, false), 314);
    EXPECT_EQ(pickStyle(), 1);
}

TEST_F(GroupRoutines, LocalUndoTakesEverythingBackOnceAndClosesItsBlock) {
    {
        HostLocalUndo undo(database);
        EXPECT_TRUE(database->isUndoBlockStarted());
        addGroup(L"G", pick({0}));
        database->startUndoRecord();
        addGroup(L"H", pick({1}));
        undo.takeBack();
        EXPECT_FALSE(hasGroup(L"G"));
        addGroup(L"KEPT", pick({1}));
        undo.takeBack();
        EXPECT_TRUE(hasGroup(L"KEPT"));
        EXPECT_TRUE(database->isUndoBlockStarted());
    }
    EXPECT_FALSE(database->isUndoBlockStarted());
}

TEST_F(GroupRoutines, CommandAnswersTheSlotsOfACommandObject) {
    const auto command = make<CGroupCmd>();
    EXPECT_EQ(command->constantZero(), 0);
    EXPECT_EQ(command->enableQuery(), 1);
    IKWUnknown* out = nullptr;
    EXPECT_EQ(command->getHeld(&out), 0);
    const Ref<IParam> object = Ref<IParam>::take(new_MemParam());
    EXPECT_EQ(command->setHeld(object.get()), 1);
    EXPECT_EQ(command->getHeld(&out), 1);
    EXPECT_EQ(Ref<IKWUnknown>::take(out).get(), static_cast<IKWUnknown*>(object.get()));
}
