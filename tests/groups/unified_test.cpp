// The group command of the command line: the options one by one.
#include "groups/command_line_unified.h"
#include "tests/groups/dialog_user.h"
#include "tests/groups/group_fixture.h"

#include <QMessageBox>
#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

class Unified : public GroupTest {
protected:
    int runUnified(std::initializer_list<ScriptedAnswer> answers, IParam* params = nullptr) {
        answer(answers);
        const int result = run<CCommandLineGroupUnified>(params);
        EXPECT_TRUE(io.allTaken());
        EXPECT_EQ(io.unanswered, 0);
        EXPECT_EQ(database->numActiveTransactions(), 0);
        return result;
    }
    OdString prompt(std::size_t index) const { return io.prompts.at(index).text; }
};

TEST_F(Unified, MainPromptOffersTheOptions) {
    EXPECT_EQ(runUnified({cancel()}), 1);
    EXPECT_EQ(status, 1);
    EXPECT_EQ(
        prompt(0),
        OdString(L"Enter a group option [?/Order/Add/Remove/Explode/REName/Selectable/Create] <Create>:"));
    EXPECT_EQ(io.prompts[0].keywords, OdString(L"? Order Add Remove Explode REName Selectable Create"));
    EXPECT_EQ(io.prompts[0].flags, 4);
}

TEST_F(Unified, EmptyReplyAtTheMainPromptRunsCreate) {
    EXPECT_EQ(runUnified({enter(), enter()}), 0);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(prompt(1), OdString(L"Enter a group name"));
}

TEST_F(Unified, UnknownTextReplyAtTheMainPromptEndsTheRun) {
    EXPECT_EQ(runUnified({typed(L"nonsense")}), 1);
    EXPECT_EQ(status, 1);
    EXPECT_EQ(runUnified({keyword(8)}), 1);
    EXPECT_EQ(runUnified({picked({})}), 1);
}

TEST_F(Unified, HelpAtTheMainPromptListsAndAsksTheSameOptionsAgain) {
    EXPECT_EQ(runUnified({keyword(0), enter(), keyword(0), enter(), cancel()}), 1);
    ASSERT_EQ(io.prompts.size(), 3u);
    EXPECT_EQ(prompt(2), prompt(0));
}

TEST_F(Unified, WithoutADocumentTheManagersConsoleIsAsked) {
    host.closeDocument();
    answer({keyword(0), enter(), cancel()});
    EXPECT_EQ(run<CCommandLineGroupUnified>(), 1);
    EXPECT_EQ(io.printed.back(), OdString(L"No groups found."));
}

TEST_F(Unified, WithoutADocumentAnOptionEndsInTheSmartPointersException) {
    host.closeDocument();
    answer({keyword(1), typed(L"TABLE")});
    EXPECT_EQ(codeOf([&] { run<CCommandLineGroupUnified>(); }), eNullObjectPointer);
}

class UnifiedOrder : public Unified {
protected:
    UnifiedOrder() { addGroup(L"FIVE", pick({0, 1, 2, 3, 4})); }
    int order(std::initializer_list<ScriptedAnswer> answers) {
        answer({keyword(1), typed(L"FIVE")});
        return runUnified(answers);
    }
};

TEST_F(UnifiedOrder, GroupOfOneMemberHasNothingToOrder) {
    addGroup(L"ONE", pick({0}));
    EXPECT_EQ(runUnified({keyword(1), typed(L"ONE")}), 0);
    EXPECT_EQ(status, 0);
    EXPECT_THAT(io.printed, ElementsAre(OdString(L"Less than 2 members, nothing to order.")));
}

TEST_F(UnifiedOrder, GroupOfTwoShowsItsRange) {
    addGroup(L"TWO", pick({0, 1}));
    EXPECT_EQ(runUnified({keyword(1), typed(L"TWO"), typed(L"0"), typed(L"1"), typed(L"1")}), 0);
    EXPECT_EQ(prompt(2), OdString(L"Enter position number of the object to reorder (0 - 1):"));
    EXPECT_EQ(prompt(3), OdString(L"Enter new position number for the object (0 - 1):"));
    EXPECT_EQ(prompt(4), OdString(L"Enter number of objects to reorder (1 - 1):"));
    EXPECT_THAT(members(L"TWO"), ElementsAre(1, 0));
}

TEST_F(UnifiedOrder, ThirdPromptShowsOneAsItsLowestValueButTakesZero) {
    EXPECT_EQ(order({typed(L"3"), typed(L"1"), typed(L"3"), typed(L"0")}), 0);
    EXPECT_EQ(prompt(4), OdString(L"Enter number of objects to reorder (1 - 2):"));
    EXPECT_THAT(io.printed, ElementsAre(OdString(L"Requires a value of 0 to 2.")));
    EXPECT_EQ(status, 0);
    EXPECT_THAT(members(L"FIVE"), ElementsAre(0, 1, 2, 3, 4));
}

TEST_F(UnifiedOrder, MembersMoveToTheNewPosition) {
    EXPECT_EQ(order({typed(L"3"), typed(L"1"), typed(L"2")}), 0);
    EXPECT_THAT(members(L"FIVE"), ElementsAre(0, 3, 4, 1, 2));
}

TEST_F(UnifiedOrder, NumbersOutOfRangeAreToldAndAskedAgain) {
    EXPECT_EQ(order({typed(L"5"), typed(L"-1"), typed(L"0"), typed(L"7"), typed(L"4"), typed(L"1")}), 0);
    EXPECT_THAT(io.printed, ElementsAre(OdString(L"Requires a value of 0 to 4."),
                                        OdString(L"Requires a value of 0 to 4."),
                                        OdString(L"Requires a value of 0 to 4.")));
    EXPECT_THAT(members(L"FIVE"), ElementsAre(1, 2, 3, 4, 0));
}

TEST_F(UnifiedOrder, TextThatIsNoNumberIsPositionZero) {
    EXPECT_EQ(order({typed(L"first"), typed(L"1"), typed(L"1")}), 0);
    EXPECT_THAT(members(L"FIVE"), ElementsAre(1, 0, 2, 3, 4));
}

TEST_F(UnifiedOrder, ReverseKeywordReversesAtTheFirstPromptOnly) {
    EXPECT_EQ(order({keyword(0)}), 0);
    EXPECT_EQ(io.prompts.back().keywords, OdString(L"\"Reverse order\" _ \"Reverse order\""));
    EXPECT_THAT(io.printed, ElementsAre(OdString(L"Object order has been reversed.")));
    EXPECT_THAT(members(L"FIVE"), ElementsAre(4, 3, 2, 1, 0));
    EXPECT_EQ(order({typed(L"1"), keyword(0), typed(L"1")}), 0);
    EXPECT_EQ(io.prompts.back().keywords, OdString(L"<none>"));
    EXPECT_THAT(members(L"FIVE"), ElementsAre(3, 4, 2, 1, 0));
}

TEST_F(UnifiedOrder, TransferThatFailsIsNoFailureOfTheCommand) {
    io.onPrompt = [this](const OdString& text) {
        if (text.left(23) == OdString(L"Enter number of objects"))
            lines[4].safeOpenObject(OdDb::kForWrite)->erase(true);
    };
    EXPECT_EQ(order({typed(L"4"), typed(L"0"), typed(L"1")}), 0);
    EXPECT_EQ(status, 0);
    EXPECT_THAT(members(L"FIVE"), ElementsAre(0, 1, 2, 3));
}

class UnifiedAdd : public Unified {};

TEST_F(UnifiedAdd, NothingIsAddedAndTheMembersStayHighlighted) {
    addGroup(L"G", pick({1, 3}));
    EXPECT_EQ(runUnified({keyword(2), typed(L"G")}), 0);
    EXPECT_EQ(status, 2);
    EXPECT_THAT(io.printed, ElementsAre(OdString(L"Select objects to add to group...")));
    EXPECT_THAT(highlightedLines(), ElementsAre(1, 3));
    EXPECT_THAT(members(L"G"), ElementsAre(1, 3));
}

TEST_F(UnifiedAdd, InaccessibleGroupGivesOneAndLeavesTheStatus) {
    addGroup(L"plan|G", pick({1}));
    EXPECT_EQ(runUnified({keyword(2), typed(L"plan|G")}), 1);
    EXPECT_EQ(status, 2);
    EXPECT_THAT(highlightedLines(), IsEmpty());
}

TEST_F(UnifiedAdd, WithoutAnEditorTheResultIsOneAndTheStatusTwo) {
    addGroup(L"G", pick({1}));
    host.document.editorSelection = nullptr;
    EXPECT_EQ(runUnified({keyword(2), typed(L"G")}), 1);
    EXPECT_EQ(status, 2);
}

class UnifiedRemove : public Unified {
protected:
    UnifiedRemove() {
        addGroup(L"G", pick({0, 1, 2}));
        setPickStyle(0);
    }
};

TEST_F(UnifiedRemove, SelectedMembersLeaveTheGroup) {
    selection.select(pick({2, 5, 0}));
    EXPECT_EQ(runUnified({keyword(3), typed(L"G")}), 0);
    EXPECT_EQ(status, 0);
    EXPECT_THAT(members(L"G"), ElementsAre(1));
    EXPECT_THAT(io.printed,
                ElementsAre(OdString(L"\n2 entities from current selection removed from group 'G'")));
}

TEST_F(UnifiedRemove, WithoutASelectionThePromptIsComposedAndNothingIsPrinted) {
    EXPECT_EQ(runUnified({keyword(3), typed(L"G")}), 0);
    EXPECT_EQ(status, 0);
    EXPECT_THAT(io.printed, IsEmpty());
    EXPECT_THAT(members(L"G"), ElementsAre(0, 1, 2));
    EXPECT_THAT(highlightedLines(), ElementsAre(0, 1, 2));
}

TEST_F(UnifiedRemove, PickStyleIgnoresTheCurrentSelection) {
    setPickStyle(1);
    selection.select(pick({0}));
    EXPECT_EQ(runUnified({keyword(3), typed(L"G")}), 0);
    EXPECT_THAT(members(L"G"), ElementsAre(0, 1, 2));
    EXPECT_THAT(io.printed, IsEmpty());
    EXPECT_EQ(pickStyle(), 0);
}

TEST_F(UnifiedRemove, ParameterNamesTheGroupWithoutAPrompt) {
    selection.select(pick({0}));
    EXPECT_EQ(runUnified({keyword(3)}, groupNameParams(L"G").get()), 0);
    EXPECT_EQ(io.prompts.size(), 1u);
    EXPECT_THAT(members(L"G"), ElementsAre(1, 2));
}

TEST_F(UnifiedRemove, UnknownNameOfTheParameterIsTold) {
    EXPECT_EQ(runUnified({keyword(3)}, groupNameParams(L"NONE %2").get()), 1);
    EXPECT_EQ(status, 1);
    EXPECT_THAT(io.printed, ElementsAre(OdString(L"Group 'NONE %2' not found.")));
}

TEST_F(UnifiedRemove, LosingAllMembersIsAskedAndCancelKeepsThem) {
    selection.select(pick({0, 1, 2}));
    DialogUser user;
    user.then([](QDialog& dialog) {
        auto& box = dynamic_cast<QMessageBox&>(dialog);
        EXPECT_EQ(box.windowTitle(), QStringLiteral("Warning"));
        EXPECT_EQ(box.text(),
                  QStringLiteral("You are trying to remove all entities from group 'G'. Continue?"));
        EXPECT_EQ(box.standardButtons(), QMessageBox::Ok | QMessageBox::Cancel);
        EXPECT_EQ(box.parentWidget(), nullptr);
        EXPECT_EQ(box.textFormat(), Qt::PlainText) << "a name may look like markup";
        box.button(QMessageBox::Cancel)->click();
    });
    EXPECT_EQ(runUnified({keyword(3), typed(L"G")}), 1);
    EXPECT_EQ(status, 1);
    EXPECT_THAT(members(L"G"), ElementsAre(0, 1, 2));
    EXPECT_TRUE(user.finished());
}

TEST_F(UnifiedRemove, LosingAllMembersAfterOkLeavesTheGroupEmpty) {
    selection.select(pick({0, 1, 2}));
    DialogUser user;
    user.then([](QDialog& dialog) { dynamic_cast<QMessageBox&>(dialog).button(QMessageBox::Ok)->click(); });
    EXPECT_EQ(runUnified({keyword(3), typed(L"G")}), 0);
    EXPECT_THAT(members(L"G"), IsEmpty());
    EXPECT_TRUE(hasGroup(L"G"));
}

TEST_F(UnifiedRemove, OnlyMemberOfAGroupLeavesWithoutAWarning) {
    addGroup(L"ONE", pick({4}));
    selection.select(pick({4}));
    const DialogUser user; // of no dialog
    EXPECT_EQ(runUnified({keyword(3), typed(L"ONE")}), 0);
    EXPECT_TRUE(user.finished());
    EXPECT_THAT(members(L"ONE"), IsEmpty());
}

TEST_F(UnifiedRemove, ErasedObjectOfTheSelectionIsSkippedAndAForeignOneThrows) {
    selection.select(pick({0, 1}));
    lines[0].safeOpenObject(OdDb::kForWrite)->erase(true);
    EXPECT_EQ(runUnified({keyword(3), typed(L"G")}), 0);
    EXPECT_EQ(io.printed.back(), OdString(L"\n1 entities from current selection removed from group 'G'"));
    selection.select({dictionary()->objectId()});
    answer({keyword(3), typed(L"G")});
    EXPECT_THROW(run<CCommandLineGroupUnified>(), OdError_NotThatKindOfClass);
}

class UnifiedChanges : public Unified {
protected:
    UnifiedChanges() {
        addGroup(L"OLD", pick({0, 1}));
        addGroup(L"OTHER", pick({2}));
    }
};

TEST_F(UnifiedChanges, ExplodeTakesTheGroupAwayAndKeepsTheObjects) {
    const OdDbObjectId id = group(L"OLD")->objectId();
    EXPECT_EQ(runUnified({keyword(4), typed(L"OLD")}), 0);
    EXPECT_EQ(status, 0);
    EXPECT_FALSE(hasGroup(L"OLD"));
    EXPECT_TRUE(id.isErased());
    EXPECT_EQ(odrxCast<OdDbGroup>(id.openObject(OdDb::kForRead, true))->numEntities(), 0u);
    EXPECT_FALSE(lines[0].isErased());
}

TEST_F(UnifiedChanges, RenameDoesNotPassTheRuleForNames) {
    EXPECT_EQ(runUnified({keyword(5), typed(L"OLD"), typed(L"any name %1 at all")}), 0);
    EXPECT_EQ(prompt(1), OdString(L"Enter a group name to rename"));
    EXPECT_EQ(prompt(2), OdString(L"Enter a new name for group"));
    EXPECT_EQ(io.prompts[2].flags, 2);
    EXPECT_THAT(members(L"any name %1 at all"), ElementsAre(0, 1));
    EXPECT_FALSE(hasGroup(L"OLD"));
}

TEST_F(UnifiedChanges, RenameToAnExistingNamePrintsBothMessagesAndEndsWithTwo) {
    EXPECT_EQ(runUnified({keyword(5), typed(L"OLD"), typed(L"OTHER")}), 2);
    EXPECT_EQ(status, 2);
    EXPECT_THAT(io.printed, ElementsAre(OdString(L"Group 'OTHER' already exists. Operation canceled")));
    EXPECT_TRUE(hasGroup(L"OLD"));
}

TEST_F(UnifiedChanges, RenameListsOnHelpAndAsksAgainOnAnEmptyReply) {
    EXPECT_EQ(runUnified({keyword(5), typed(L"OLD"), keyword(0), enter(), enter(), typed(L"NEW")}), 0);
    EXPECT_EQ(io.prompts.size(), 5u);
    EXPECT_TRUE(hasGroup(L"NEW"));
}

TEST_F(UnifiedChanges, EmptyReplyTogglesSelectable) {
    EXPECT_EQ(runUnified({keyword(6), typed(L"OLD"), enter()}), 0);
    EXPECT_EQ(prompt(2), OdString(L"This group is selectable, do you want to change it [Yes/No]?"));
    EXPECT_EQ(io.prompts[2].keywords, OdString(L"Yes No *Y *N _ Yes No *Y *N"));
    EXPECT_EQ(io.prompts[2].flags, 4);
    EXPECT_FALSE(group(L"OLD")->isSelectable());
    EXPECT_EQ(runUnified({keyword(6), typed(L"OLD"), keyword(0)}), 0);
    EXPECT_EQ(prompt(5), OdString(L"This group is not selectable, do you want to change it [Yes/No]?"));
    EXPECT_TRUE(group(L"OLD")->isSelectable());
}

TEST_F(UnifiedChanges, NoAndTheHiddenAbbreviationsLeaveSelectableAlone) {
    for (const int number : {1, 2, 3}) {
        EXPECT_EQ(runUnified({keyword(6), typed(L"OLD"), keyword(number)}), 0);
        EXPECT_EQ(status, 0);
        EXPECT_TRUE(group(L"OLD")->isSelectable());
    }
}

class UnifiedCreate : public Unified {
protected:
    UnifiedCreate() { addGroup(L"KNOWN", pick({0})); }
};

TEST_F(UnifiedCreate, NewNameEndsWithTheSelectionClearedAndNoGroup) {
    selection.select(pick({1}));
    EXPECT_EQ(runUnified({keyword(7), typed(L"NEW"), typed(L"text with blanks")}), 0);
    EXPECT_EQ(status, 2);
    EXPECT_EQ(prompt(2), OdString(L"Enter a group description:"));
    EXPECT_EQ(io.prompts[2].flags, 7);
    EXPECT_EQ(io.prompts[2].keywords, OdString(L"<none>"));
    EXPECT_THAT(selection.selected(), IsEmpty());
    EXPECT_FALSE(hasGroup(L"NEW"));
}

TEST_F(UnifiedCreate, InvalidNameIsToldWithALineFeedAndAskedAgain) {
    EXPECT_EQ(runUnified({keyword(7), typed(L"A B"), enter()}), 0);
    EXPECT_THAT(io.printed, ElementsAre(OdString(L"Group name is invalid."), OdString(L"\n")));
}

TEST_F(UnifiedCreate, KeywordAtTheDescriptionEndsLikeACancel) {
    EXPECT_EQ(runUnified({keyword(7), typed(L"NEW"), keyword(0)}), 1);
    EXPECT_EQ(status, 1);
}

TEST_F(UnifiedCreate, ExistingNameAnsweredYesIsAskedAgain) {
    EXPECT_EQ(runUnified({keyword(7), typed(L"KNOWN"), keyword(0), keyword(0), keyword(1)}), 0);
    EXPECT_EQ(status, 0);
    EXPECT_THAT(io.printed, ElementsAre(OdString(L"Group 'KNOWN' already exists.")));
    EXPECT_EQ(prompt(4), OdString(L"Redefine it?"));
    EXPECT_EQ(io.prompts[4].keywords, OdString(L"Yes No"));
    EXPECT_EQ(io.prompts[4].flags, 6);
    EXPECT_THAT(members(L"KNOWN"), ElementsAre(0));
}

TEST_F(UnifiedCreate, OtherAnswersToRedefineAreTold) {
    EXPECT_EQ(runUnified({keyword(7), typed(L"KNOWN"), typed(L"perhaps"), enter()}), 0);
    EXPECT_EQ(io.printed.back(), OdString(L"Yes or No, please."));
}

TEST_F(UnifiedCreate, HelpListsAndAsksForTheNameAgain) {
    EXPECT_EQ(runUnified({keyword(7), keyword(0), enter(), enter()}), 0);
    EXPECT_EQ(io.prompts.size(), 3u);
}
