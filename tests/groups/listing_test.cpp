// The list of groups behind "?", and the prompt for an existing group.
#include "groups/existing_group_prompt.h"
#include "groups/group_listing.h"
#include "tests/groups/group_fixture.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

class GroupListing : public GroupTest {
protected:
    std::vector<std::string> list(const wchar_t* pattern) {
        io.printed.clear();
        answer({*pattern ? typed(pattern) : enter()});
        EXPECT_EQ(HelpGroupName(io, database), -1);
        std::vector<std::string> listed;
        for (const OdString& line : io.printed)
            listed.push_back(line.toUtf8());
        return listed;
    }
};

namespace {
const char* const kPrompt = "Enter group name(s) to list <*>:";
const char* const kHeader = "Group name                      Selectable   Anonymous    Description";
std::string row(const std::string& name, const char* selectable, const char* anonymous,
                const char* description = "") {
    std::string text = "  " + name;
    text.resize(34, ' ');
    text += selectable;
    text.resize(47, ' ');
    text += anonymous;
    text.resize(60, ' ');
    return text + description;
}
} // namespace

TEST_F(GroupListing, EmptyInputListsAllInTheOrderOfTheDictionary) {
    addGroup(L"TABLE", {}, L"Four legs");
    addGroup(L"CHAIR", {});
    group(L"CHAIR", OdDb::kForWrite)->setSelectable(false);
    const auto all = list(L"");
    EXPECT_THAT(
        all, ElementsAre(kPrompt, kHeader, row("TABLE", "Yes", "No", "Four legs"), row("CHAIR", "No", "No")));
    EXPECT_EQ(list(L"*"), all);
}

TEST_F(GroupListing, AnonymousGroupsAreListedLikeOthers) {
    addUnnamed(pick({0}));
    const auto listed = list(L"*");
    ASSERT_EQ(listed.size(), 3u);
    EXPECT_EQ(listed[2].substr(0, 4), "  *A");
    EXPECT_EQ(listed[2].substr(34), "Yes          Yes          ");
}

TEST_F(GroupListing, PatternWithoutAMatchIsToldApartFromADrawingWithoutGroups) {
    EXPECT_THAT(list(L""), ElementsAre(kPrompt, "No groups found."));
    addGroup(L"TABLE", {});
    EXPECT_THAT(list(L"a*"), ElementsAre(kPrompt, "No matching group names found."));
    EXPECT_THAT(list(L"t*"), ElementsAre(kPrompt, kHeader, row("TABLE", "Yes", "No")));
}

TEST_F(GroupListing, LongNameMovesTheNextColumnOnByTabs) {
    addGroup(std::wstring(32, L'A').c_str(), {});
    addGroup(std::wstring(33, L'B').c_str(), {});
    addGroup(std::wstring(45, L'C').c_str(), {});
    const auto listed = list(L"*");
    ASSERT_EQ(listed.size(), 5u);
    EXPECT_EQ(listed[2].find("Yes"), 34u);
    EXPECT_EQ(listed[3].find("Yes"), 46u);
    EXPECT_EQ(listed[4].find("Yes"), 58u);
    EXPECT_EQ(listed[3].find("No"), 59u);
}

TEST_F(GroupListing, LongDescriptionIsAppendedWithoutPadding) {
    const std::wstring description(200, L'd');
    addGroup(L"TABLE", {}, description.c_str());
    EXPECT_EQ(list(L"*")[2], row("TABLE", "Yes", "No") + std::string(200, 'd'));
}

TEST_F(GroupListing, PercentSignsPrintAsTheyStand) {
    addGroup(L"TABLE", {}, L"%1 %s 100%");
    EXPECT_EQ(list(L"*")[2], row("TABLE", "Yes", "No", "%1 %s 100%"));
}

TEST_F(GroupListing, ConsoleWithoutTextInputIsTold) {
    io.textInputIsDefault = true;
    EXPECT_EQ(HelpGroupName(io, database), -2);
    EXPECT_THAT(io.printed,
                ElementsAre(OdString(kPrompt),
                            OdString("[HelpGroupName] getInputText() returned false or canceled.")));
}

TEST_F(GroupListing, CancelledTextInputIsTold) {
    answer({cancel()});
    EXPECT_EQ(HelpGroupName(io, database), -2);
    EXPECT_EQ(io.printed.size(), 2u);
}

TEST_F(GroupListing, NullDictionaryGivesAnEmptyList) {
    answer({enter()});
    EXPECT_EQ(HelpGroupName(io, {}), -1);
    EXPECT_EQ(io.printed.back(), OdString(L"No groups found."));
}

TEST_F(GroupListing, ForeignObjectInTheDictionaryThrowsTheWrongClass) {
    addForeignObject(L"ODD");
    answer({enter()});
    EXPECT_THROW(HelpGroupName(io, database), OdError_NotThatKindOfClass);
}

class ExistingGroupPrompt : public GroupTest {
protected:
    OdString name;
    int ask(const QString& prompt = {}) { return askExistingGroupName(io, database, name, prompt); }
};

TEST_F(ExistingGroupPrompt, KnownNameEndsThePrompt) {
    addGroup(L"TABLE", {});
    answer({typed(L"table")});
    EXPECT_EQ(ask(), -1);
    EXPECT_EQ(name, OdString(L"table"));
    ASSERT_EQ(io.prompts.size(), 1u);
    EXPECT_EQ(io.prompts[0].text, OdString(L"Enter a group name"));
    EXPECT_EQ(io.prompts[0].keywords, OdString(L"?"));
    EXPECT_EQ(io.prompts[0].flags, 6);
}

TEST_F(ExistingGroupPrompt, UnknownNameIsToldAndAskedAgain) {
    addGroup(L"TABLE", {});
    answer({typed(L"A %2 %s"), typed(L"TABLE")});
    EXPECT_EQ(ask(QStringLiteral("Which?")), -1);
    EXPECT_THAT(io.printed, ElementsAre(OdString(L"Group 'A %2 %s' is not defined.")));
    EXPECT_EQ(io.prompts[1].text, OdString(L"Which?"));
}

TEST_F(ExistingGroupPrompt, EmptyReplyCountsAsACancel) {
    answer({enter()});
    EXPECT_EQ(ask(), -2);
    answer({cancel()});
    EXPECT_EQ(ask(), -2);
}

TEST_F(ExistingGroupPrompt, HelpListsAndAsksAgain) {
    answer({keyword(0), enter(), cancel()});
    EXPECT_EQ(ask(), -2);
    EXPECT_EQ(io.prompts.size(), 2u);
    EXPECT_EQ(io.printed.back(), OdString(L"No groups found."));
}

TEST_F(ExistingGroupPrompt, OtherRepliesAskAgain) {
    answer({keyword(1), picked({}), cancel()});
    EXPECT_EQ(ask(), -2);
    EXPECT_EQ(io.prompts.size(), 3u);
    EXPECT_TRUE(io.printed.empty());
}
