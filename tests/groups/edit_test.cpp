// The group command that starts from a member.
#include "groups/command_line_create.h"
#include "groups/command_line_edit.h"
#include "groups/command_line_ungroup.h"
#include "groups/highlight.h"
#include "tests/groups/dialog_user.h"
#include "tests/groups/group_fixture.h"

#include <QMenu>
#include <QMessageBox>
#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

class Edit : public GroupTest {
protected:
    Edit() {
        addGroup(L"FIRST", pick({0, 1}));
        addGroup(L"SECOND", pick({1, 2}));
    }
    int edit(std::initializer_list<ScriptedAnswer> answers) {
        answer(answers);
        const int result = run<CCommandLineGroupEdit>();
        EXPECT_TRUE(io.allTaken());
        EXPECT_EQ(io.unanswered, 0);
        EXPECT_EQ(database->numActiveTransactions(), 0);
        return result;
    }
};

TEST_F(Edit, WithoutADocumentOrAnEditorTheRunFails) {
    host.document.editorSelection = nullptr;
    EXPECT_EQ(edit({}), 1);
    EXPECT_EQ(status, 1);
    host.closeDocument();
    EXPECT_EQ(edit({}), 1);
    EXPECT_EQ(status, 1);
}

TEST_F(Edit, SelectionThatIsThereSkipsThePrompt) {
    selection.select(pick({0}));
    EXPECT_EQ(edit({cancel()}), 1);
    ASSERT_EQ(io.prompts.size(), 1u);
    EXPECT_EQ(io.prompts[0].text, OdString(L"Enter a group option [Add/objects/Remove/REName]"));
    EXPECT_EQ(io.prompts[0].keywords, OdString(L"\"Add objects\" \"Remove objects\" REName"));
    EXPECT_EQ(io.prompts[0].flags, 4);
    EXPECT_THAT(highlightedLines(), IsEmpty());
    EXPECT_THAT(selection.selected(), IsEmpty());
}

TEST_F(Edit, SelectionPromptHasItsKeywordsAndFlags) {
    EXPECT_EQ(edit({picked(pick({0})), cancel()}), 1);
    EXPECT_EQ(io.prompts[0].text, OdString(L"Select group or [?/Name]"));
    EXPECT_EQ(io.prompts[0].keywords, OdString(L"? Name _ ? Name"));
    EXPECT_EQ(io.prompts[0].flags, 0x1052000);
}

TEST_F(Edit, ObjectInNoGroupIsToldTheSelectionClearedAndThePromptComesAgain) {
    selection.select(pick({5}));
    EXPECT_EQ(edit({cancel()}), 1);
    EXPECT_THAT(io.printed, ElementsAre(OdString(L"Object is not a member of a group.")));
    EXPECT_EQ(selection.cleared, 1);
    EXPECT_EQ(io.prompts.size(), 1u);
}

// The selection in hand is that of the run: an empty answer that leaves it alone means the missed object
// again.
TEST_F(Edit, EmptyAnswerAfterAMissMeansTheMissedObjectAgain) {
    EXPECT_EQ(edit({picked(pick({5})), enter(), picked(pick({0})), cancel()}), 1);
    const OdString missed(L"Object is not a member of a group.");
    EXPECT_THAT(io.printed, ElementsAre(missed, missed));
    EXPECT_EQ(io.prompts.size(), 4u);
}

TEST_F(Edit, KeywordNameEndsTheRunLikeACancel) {
    EXPECT_EQ(edit({keyword(1)}), 1);
    EXPECT_EQ(status, 1);
}

TEST_F(Edit, TypedTextAtTheSelectionEndsTheRun) { EXPECT_EQ(edit({typed(L"FIRST")}), 1); }

// The reply of "?" is still there when a selection has come up meanwhile.
TEST_F(Edit, SelectionThatComesUpWhileANameIsAskedForLeadsBackToTheName) {
    int asked = 0;
    io.onPrompt = [&](const OdString&) { selection.select(++asked == 1 ? pick({0}) : pick({})); };
    EXPECT_EQ(edit({keyword(0), typed(L"FIRST"), typed(L"SECOND"), cancel()}), 1);
    EXPECT_EQ(status, 1);
    ASSERT_EQ(io.prompts.size(), 4u);
    EXPECT_EQ(io.prompts[2].text, OdString(L"Enter a group name"));
    EXPECT_EQ(io.prompts[3].text, OdString(L"Select group or [?/Name]"));
}

// A selection whose first id is no id.
class BrokenSelection : public hostSelectionSet {
public:
    void objectIds(OdDbObjectIdArray& ids) const override { ids = {OdDbObjectId()}; }
    int count() const override { return 1; }
    void clear() override {}
    void append(const OdDbObjectId&) override {}
};

TEST_F(Edit, InvalidIdOfTheSelectionEndsTheRunWithoutAWord) {
    selection.setSelection(hostSelectionSetPtr(new BrokenSelection));
    EXPECT_EQ(edit({}), 1);
    EXPECT_EQ(status, 1);
    EXPECT_THAT(io.printed, IsEmpty());
}

TEST_F(Edit, EmptySelectionAfterHelpTakesTheNamedGroup) {
    EXPECT_EQ(edit({keyword(0), typed(L"FIRST"), enter(), keyword(2), typed(L"RENAMED")}), 0);
    EXPECT_EQ(status, 0);
    EXPECT_THAT(members(L"RENAMED"), ElementsAre(0, 1));
}

TEST_F(Edit, EmptySelectionWithoutANameEndsTheRun) {
    EXPECT_EQ(edit({enter()}), 1);
    EXPECT_EQ(status, 1);
    EXPECT_EQ(edit({keyword(0), cancel(), enter()}), 1);
}

TEST_F(Edit, OfTwoGroupsTheLastInTheDictionaryIsEdited) {
    selection.select(pick({1}));
    EXPECT_EQ(edit({keyword(2), typed(L"RENAMED")}), 0);
    EXPECT_THAT(members(L"RENAMED"), ElementsAre(1, 2));
    EXPECT_TRUE(hasGroup(L"FIRST"));
}

TEST_F(Edit, InaccessibleGroupEndsTheRunWithoutAHighlight) {
    addGroup(L"plan|X", pick({4}));
    selection.select(pick({4}));
    EXPECT_EQ(edit({}), 1);
    EXPECT_EQ(status, 1);
    EXPECT_THAT(highlightedLines(), IsEmpty());
}

TEST_F(Edit, AddFlowAddsNothingAndLeavesTheMembersHighlighted) {
    selection.select(pick({0}));
    EXPECT_EQ(edit({keyword(0)}), 0);
    EXPECT_EQ(status, 2);
    EXPECT_THAT(io.printed, ElementsAre(OdString(L"Select objects to add to group...")));
    EXPECT_THAT(highlightedLines(), ElementsAre(0, 1));
}

TEST_F(Edit, RepliesThatEndTheOptionsUnhighlight) {
    int prompts = 0;
    io.onPrompt = [&](const OdString&) {
        ++prompts;
        EXPECT_THAT(highlightedLines(), ElementsAre(0, 1));
    };
    for (const ScriptedAnswer& end : {cancel(), enter(), picked({})}) {
        selection.select(pick({0}));
        EXPECT_EQ(edit({end}), 1);
        EXPECT_EQ(status, 1);
        EXPECT_THAT(highlightedLines(), IsEmpty());
    }
    EXPECT_EQ(prompts, 3);
}

TEST_F(Edit, OtherRepliesEndWellAndLeaveTheMembersHighlighted) {
    for (const ScriptedAnswer& other : {typed(L"x"), keyword(3)}) {
        selection.select(pick({0}));
        EXPECT_EQ(edit({other}), 0);
        EXPECT_EQ(status, 0);
        EXPECT_THAT(highlightedLines(), ElementsAre(0, 1));
    }
}

TEST_F(Edit, RemoveFlowClearsPickStyleAndLeavesTheMembersHighlighted) {
    selection.select(pick({0}));
    EXPECT_EQ(edit({keyword(1)}), 0);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(pickStyle(), 0);
    EXPECT_THAT(highlightedLines(), ElementsAre(0, 1));
    EXPECT_THAT(members(L"FIRST"), ElementsAre(0, 1));
}

TEST_F(Edit, RemoveFlowDoesNotHighlightAnew) {
    selection.select(pick({0}));
    io.onPrompt = [this](const OdString&) { setObjectsHighlight(pick({0}), false); };
    EXPECT_EQ(edit({keyword(1)}), 0);
    EXPECT_THAT(highlightedLines(), ElementsAre(1));
}

class EditRemoval : public Edit {
protected:
    EditRemoval() {
        setPickStyle(0);
        selection.ignoresNewSets = true;
    }
};

TEST_F(EditRemoval, SelectionThatTheHostKeepsIsRemoved) {
    selection.select(pick({0}));
    EXPECT_EQ(edit({keyword(1)}), 0);
    EXPECT_THAT(members(L"FIRST"), ElementsAre(1));
    EXPECT_THAT(io.printed,
                ElementsAre(OdString(L"\n1 entities from current selection removed from group 'FIRST'")));
    EXPECT_THAT(highlightedLines(), IsEmpty());
}

TEST_F(EditRemoval, PickStyleIgnoresTheSelectionThatTheHostKeeps) {
    setPickStyle(1);
    selection.select(pick({0}));
    EXPECT_EQ(edit({keyword(1)}), 0);
    EXPECT_THAT(members(L"FIRST"), ElementsAre(0, 1));
    EXPECT_THAT(io.printed, IsEmpty());
    EXPECT_THAT(highlightedLines(), ElementsAre(0, 1));
    EXPECT_EQ(pickStyle(), 0);
}

TEST_F(EditRemoval, CancelledConfirmationEndsWellAndUnhighlights) {
    selection.select(pick({0, 1}));
    DialogUser user;
    user.then([](QDialog& dialog) {
        auto& box = dynamic_cast<QMessageBox&>(dialog);
        EXPECT_EQ(box.windowTitle(), QStringLiteral("Confirm"));
        box.button(QMessageBox::Cancel)->click();
    });
    EXPECT_EQ(edit({keyword(1)}), 0);
    EXPECT_EQ(status, 0);
    EXPECT_THAT(members(L"FIRST"), ElementsAre(0, 1));
    EXPECT_THAT(highlightedLines(), IsEmpty());
    EXPECT_THAT(io.printed, IsEmpty());
}

TEST_F(Edit, RenameToAnExistingNameEndsWellAndLeavesTheMembersHighlighted) {
    selection.select(pick({0}));
    EXPECT_EQ(edit({keyword(2), typed(L"SECOND")}), 0);
    EXPECT_EQ(status, 0);
    EXPECT_THAT(io.printed, IsEmpty());
    EXPECT_THAT(highlightedLines(), ElementsAre(0, 1));
    EXPECT_TRUE(hasGroup(L"FIRST"));
}

TEST_F(Edit, CancelledRenameUnhighlights) {
    selection.select(pick({0}));
    io.onPrompt = [&](const OdString&) { EXPECT_THAT(highlightedLines(), ElementsAre(0, 1)); };
    EXPECT_EQ(edit({keyword(2), keyword(0), enter(), enter(), cancel()}), 1);
    EXPECT_EQ(io.prompts.size(), 4u);
    EXPECT_EQ(status, 1);
    EXPECT_THAT(highlightedLines(), IsEmpty());
}

TEST_F(Edit, ForeignObjectInTheDictionaryThrowsTheWrongClass) {
    addForeignObject(L"ODD");
    selection.select(pick({0}));
    EXPECT_THROW(run<CCommandLineGroupEdit>(), OdError_NotThatKindOfClass);
}

class EnableQuery : public GroupTest {
protected:
    EnableQuery() {
        addGroup(L"PAIR", pick({0, 1}));
        addGroup(L"ONE", pick({2}));
        addGroup(L"SAME", pick({2}));
    }
    int inPopup() {
        QMenu menu(&window);
        menu.popup({});
        EXPECT_NE(QApplication::activePopupWidget(), nullptr);
        const int answer = make<CCommandLineGroupEdit>()->enableQuery();
        EXPECT_EQ(make<CCommandLineGroupUngroup>()->enableQuery(), answer);
        EXPECT_EQ(make<CCommandLineGroupCreate>()->enableQuery(), 1);
        return answer;
    }
};

TEST_F(EnableQuery, OutsideOfAPopupMenuTheAnswerIsYes) {
    EXPECT_EQ(make<CCommandLineGroupEdit>()->enableQuery(), 1);
}

TEST_F(EnableQuery, SelectionOfExactlyOneGroupEnables) {
    selection.select(pick({1, 0}));
    EXPECT_EQ(inPopup(), 1);
}

TEST_F(EnableQuery, PartsMoreThanAGroupTwoGroupsAndNothingDoNot) {
    EXPECT_EQ(inPopup(), 0);
    for (const auto& indexes : {std::vector<int>{0}, {0, 1, 2}, {2}, {0, 3}}) {
        selection.select(pick(indexes));
        EXPECT_EQ(inPopup(), 0);
    }
    host.closeDocument();
    EXPECT_EQ(inPopup(), 0);
}

TEST_F(EnableQuery, ForeignObjectIsNoGroup) {
    addForeignObject(L"ODD");
    selection.select(pick({0, 1}));
    EXPECT_EQ(inPopup(), 1);
}
