// Replies that prompts of the group commands do not expect, and what a host leaves beside a reply.
#include "groups/command_line_create.h"
#include "groups/command_line_edit.h"
#include "groups/command_line_from_selection.h"
#include "groups/command_line_remove_object.h"
#include "groups/command_line_ungroup.h"
#include "groups/command_line_unified.h"
#include "groups/existing_group_prompt.h"
#include "groups/find_name.h"
#include "standin/params/service_hub.h"
#include "tests/groups/dialog_user.h"
#include "tests/groups/group_fixture.h"
#include "tests/groups/scripted_step.h"

#include <QMessageBox>
#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

class Replies : public GroupTest {
protected:
    Replies() {
        addGroup(L"G", pick({0, 1, 2}));
        addGroup(L"H", pick({3, 4}));
    }
    template <class Command> int runWith(const std::vector<ScriptedAnswer>& answers) {
        for (const ScriptedAnswer& one : answers)
            io.answer(one);
        const int result = run<Command>();
        EXPECT_TRUE(io.allTaken());
        EXPECT_EQ(io.unanswered, 0);
        return result;
    }
};

// A host may have written into the result although the user entered nothing.
class EmptyReplies : public Replies {
protected:
    EmptyReplies() { io.leftInResult = L"G"; }
};

TEST_F(EmptyReplies, AreACancelWhereAnExistingNameIsAskedFor) {
    OdString name;
    io.answer(enter());
    EXPECT_EQ(askExistingGroupName(io, database, name), -2);
    EXPECT_EQ(name, OdString(L"G"));
}

TEST_F(EmptyReplies, EndTheCreateOptionWithoutALookAtTheName) {
    EXPECT_EQ(runWith<CCommandLineGroupUnified>({keyword(7), enter()}), 0);
    EXPECT_EQ(status, 0);
    EXPECT_THAT(io.printed, IsEmpty());
}

TEST_F(EmptyReplies, AreAskedAgainWhereANewNameIsAskedFor) {
    io.leftInResult = L"LEFT";
    EXPECT_EQ(runWith<CCommandLineGroupUnified>({keyword(5), typed(L"G"), enter(), typed(L"NEW")}), 0);
    EXPECT_THAT(members(L"NEW"), ElementsAre(0, 1, 2));
    selection.select(pick({3}));
    EXPECT_EQ(runWith<CCommandLineGroupEdit>({keyword(2), enter(), typed(L"OTHER")}), 0);
    EXPECT_THAT(members(L"OTHER"), ElementsAre(3, 4));
}

TEST_F(EmptyReplies, AreAskedAgainByRemoveObject) {
    setPickStyle(0);
    selection.select(pick({3}));
    EXPECT_EQ(runWith<CCommandLineGroupRemoveObject>({enter(), typed(L"H")}), 0);
    EXPECT_THAT(members(L"H"), ElementsAre(4));
    EXPECT_THAT(members(L"G"), ElementsAre(0, 1, 2));
}

TEST_F(Replies, NumbersOfTheOrderAreCutToThirtyTwoBits) {
    EXPECT_EQ(runWith<CCommandLineGroupUnified>({keyword(1), typed(L"G"), typed(L"4294967297"),
                                                 typed(L"4294967296"), typed(L"4294967297")}),
              0);
    EXPECT_THAT(io.printed, IsEmpty());
    EXPECT_THAT(members(L"G"), ElementsAre(1, 0, 2));
}

TEST_F(Replies, SelectionThatIsAKeywordEndsTheEditCommand) {
    for (const int number : {1, 2, 7}) {
        EXPECT_EQ(runWith<CCommandLineGroupEdit>({keyword(number)}), 1);
        EXPECT_EQ(status, 1);
    }
}

TEST_F(Replies, CreateOptionWithoutAnEditorEndsWhereItWouldAsk) {
    host.document.editorSelection = nullptr;
    EXPECT_EQ(runWith<CCommandLineGroupUnified>({keyword(7), typed(L"NEW"), typed(L"text")}), 0);
    EXPECT_EQ(status, 2);
    EXPECT_FALSE(hasGroup(L"NEW"));
}

// The set that the edit command has put in the place of the user's selection.
TEST_F(Replies, AddFlowOfTheEditCommandClearsTheSetThatItPrepared) {
    selection.select(pick({0}));
    io.onPrompt = [this](const OdString&) { selection.getSelection()->append(lines[5]); };
    EXPECT_EQ(runWith<CCommandLineGroupEdit>({keyword(0)}), 0);
    EXPECT_THAT(selection.selected(), IsEmpty());
    selection.select(pick({0}));
    EXPECT_EQ(runWith<CCommandLineGroupEdit>({keyword(7)}), 0);
    EXPECT_THAT(selection.selected(), ElementsAre(lines[5]));
}

// A prompt for objects that gets a keyword it does not have.
class KeywordAtASelection : public Replies {
protected:
    KeywordAtASelection() {
        static_cast<standin::ServiceHub*>(host.application())
            ->add(Ref<ScriptedStep>::share(new ScriptedStep(io, host.vars)));
        before = drawingText();
    }
    ScriptedAnswer unknown(int number) const {
        ScriptedAnswer reply = keyword(number);
        reply.objects = pick({1, 5});
        return reply;
    }
    std::string before;
};

TEST_F(KeywordAtASelection, EndsTheCommandAndChangesNothing) {
    EXPECT_EQ(runWith<CCommandLineGroupUnified>({keyword(2), typed(L"G"), unknown(1)}), 0);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(runWith<CCommandLineGroupUnified>({keyword(3), typed(L"G"), unknown(1)}), 0);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(runWith<CCommandLineGroupUnified>({keyword(7), typed(L"NEW"), enter(), unknown(0)}), 1);
    EXPECT_EQ(status, 1);
    EXPECT_EQ(runWith<CCommandLineGroupUngroup>({unknown(2)}), 1);
    EXPECT_EQ(status, 1);
    EXPECT_TRUE(drawingText() == before);
    EXPECT_THAT(io.printed, ElementsAre(OdString(L"Select objects to add to group...")));
}

TEST_F(KeywordAtASelection, IsAskedAgainByTheCreateCommand) {
    EXPECT_EQ(runWith<CCommandLineGroupCreate>({unknown(2), picked(pick({5}))}), 0);
    EXPECT_EQ(io.prompts.size(), 2u);
    EXPECT_THAT(members(L"Group1"), ElementsAre(5));
}

TEST_F(KeywordAtASelection, TellsNoNames) {
    const DialogUser user;
    for (const ScriptedAnswer& reply : {unknown(0), enter(), cancel()}) {
        io.answer(reply);
        EXPECT_EQ(pickGroupMember(&selection, dictionary()->objectId()), 0);
    }
    EXPECT_TRUE(io.allTaken());
    EXPECT_TRUE(user.finished());
    EXPECT_THAT(io.printed, IsEmpty());
}

// Gives one object twice.
class DoubledSelection : public hostSelectionSet {
public:
    explicit DoubledSelection(OdDbObjectId doubled) : id(doubled) {}
    void objectIds(OdDbObjectIdArray& ids) const override { ids = {id, id}; }
    int count() const override { return 2; }
    void clear() override {}
    void append(const OdDbObjectId&) override {}

private:
    OdDbObjectId id;
};

TEST_F(Replies, RemoveObjectRemovesOneAtATimeAndTheOptionAllAtOnce) {
    setPickStyle(0);
    selection.setSelection(hostSelectionSetPtr(new DoubledSelection(lines[1])));
    EXPECT_EQ(runWith<CCommandLineGroupUnified>({keyword(3), typed(L"G")}), 0);
    EXPECT_THAT(members(L"G"), ElementsAre(0, 2));
    EXPECT_EQ(io.printed.back(), OdString(L"\n2 entities from current selection removed from group 'G'"));
    selection.setSelection(hostSelectionSetPtr(new DoubledSelection(lines[0])));
    addGroup(L"THREE", pick({0, 1, 2}));
    EXPECT_EQ(codeOf([&] { run<CCommandLineGroupRemoveObject>(groupNameParams(L"THREE").get()); }),
              eKeyNotFound);
    EXPECT_THAT(members(L"THREE"), ElementsAre(1, 2)); // the first one had gone
    database->abortTransaction();
}

// Of the question before a group loses all of its members.
class RemovalQuestion : public Replies {
protected:
    RemovalQuestion() {
        setPickStyle(0);
        selection.select(pick({0, 1, 2}));
        selection.ignoresNewSets = true;
    }
    DialogUser user;
};

TEST_F(RemovalQuestion, HasNoDefaultInTheOptionAndInTheEditCommand) {
    for (int i = 0; i < 2; ++i)
        user.then([](QDialog& dialog) {
            auto& box = dynamic_cast<QMessageBox&>(dialog);
            // Where a command names none, Qt takes the button that accepts.
            EXPECT_EQ(box.standardButton(box.defaultButton()), QMessageBox::Ok);
            box.button(QMessageBox::Cancel)->click();
        });
    EXPECT_EQ(runWith<CCommandLineGroupUnified>({keyword(3), typed(L"G")}), 1);
    EXPECT_EQ(runWith<CCommandLineGroupEdit>({keyword(1)}), 0);
    EXPECT_TRUE(user.finished());
}

TEST_F(RemovalQuestion, ThatEndsWithoutAnAnswerIsNoConsent) {
    for (int i = 0; i < 3; ++i)
        user.then([](QDialog& dialog) { dialog.done(0); }); // as at the end of the program
    EXPECT_EQ(runWith<CCommandLineGroupUnified>({keyword(3), typed(L"G")}), 1);
    EXPECT_EQ(runWith<CCommandLineGroupEdit>({keyword(1)}), 0);
    EXPECT_EQ(runWith<CCommandLineGroupRemoveObject>({typed(L"G")}), 1);
    EXPECT_TRUE(user.finished());
    EXPECT_THAT(members(L"G"), ElementsAre(0, 1, 2));
    EXPECT_THAT(io.printed, IsEmpty());
}

// What commands ask and print belongs on the console of the document.
class ConsoleOfTheDocument : public Replies {
protected:
    ConsoleOfTheDocument() {
        host.documents.io = &managers;
        setPickStyle(0);
    }
    ~ConsoleOfTheDocument() override {
        EXPECT_TRUE(managers.transcript.empty());
        EXPECT_EQ(managers.unanswered, 0);
    }
    ScriptedIO managers;
};

TEST_F(ConsoleOfTheDocument, IsUsedByEachCommand) {
    selection.select(pick({0}));
    EXPECT_EQ(runWith<CCommandLineGroupUnified>({keyword(3), typed(L"G")}), 0);
    EXPECT_EQ(io.printed.size(), 1u);
    selection.select(pick({1}));
    EXPECT_EQ(runWith<CCommandLineGroupRemoveObject>({typed(L"none"), typed(L"G")}), 0);
    EXPECT_EQ(io.printed.size(), 4u);
    selection.select(pick({2}));
    EXPECT_EQ(runWith<CCommandLineGroupEdit>({keyword(2), typed(L"NEW")}), 0);
    EXPECT_EQ(io.prompts.size(), 6u);
    selection.select(pick({5}));
    EXPECT_EQ(runWith<CCommandLineGroupFromSelection>({}), 0);
    EXPECT_EQ(io.printed.size(), 5u);
}

TEST_F(ConsoleOfTheDocument, IsUsedByTheCommandsThatAskForObjects) {
    static_cast<standin::ServiceHub*>(host.application())
        ->add(Ref<ScriptedStep>::share(new ScriptedStep(io, host.vars)));
    EXPECT_EQ(runWith<CCommandLineGroupUngroup>({picked(pick({5}))}), 1);
    EXPECT_EQ(io.printed.back(), OdString(L"Object is not a member of a group."));
    EXPECT_EQ(runWith<CCommandLineGroupCreate>({keyword(0), typed(L"G"), typed(L"NEW"), picked(pick({5}))}),
              0);
    EXPECT_EQ(io.printed.size(), 3u) << "the name is taken; what was made";
}

TEST_F(ConsoleOfTheDocument, IsToldOfAnUnreadablePickStyleAndOfWhatIsInNoGroup) {
    drawingVariables.failing = true;
    EXPECT_EQ(pickGroupMember(&selection, dictionary()->objectId()), 0);
    EXPECT_EQ(io.printed.size(), 1u);
    drawingVariables.failing = false;
    static_cast<standin::ServiceHub*>(host.application())
        ->add(Ref<ScriptedStep>::share(new ScriptedStep(io, host.vars)));
    io.answer(picked(pick({5})));
    EXPECT_EQ(pickGroupMember(&selection, dictionary()->objectId()), 0);
    EXPECT_EQ(io.printed.back(), OdString(L"Object is not a member of a group."));
}

TEST_F(Replies, WithoutADocumentTheManagersConsoleIsTold) {
    ScriptedIO managers;
    host.documents.io = &managers;
    host.closeDocument();
    drawingVariables.failing = true;
    EXPECT_EQ(pickGroupMember(nullptr, {}), 0);
    EXPECT_THAT(managers.printed, ElementsAre(OdString(L"Failed to get  PICKSTYLE system variable value.")));
}
