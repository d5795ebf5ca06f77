// Drives each command to each of its exits: every flow is cancelled at every one of its prompts and then run
// to its end.
#include "tests/groups/context_marker.h"
#include "tests/groups/dialog_user.h"
#include "tests/groups/exits_table.h"
#include "tests/groups/group_fixture.h"
#include "tests/groups/scripted_step.h"

#include <gmock/gmock.h>

using testing::ElementsAreArray;

class CommandExits : public GroupTest, public testing::WithParamInterface<Flow> {
protected:
    CommandExits() {
        addLine();
        addGroup(L"FIVE", pick({0, 1, 2, 3, 4}));
        addGroup(L"ONE", pick({5}));
        setPickStyle(0);
        selection.select(pick(flow.selected));
        selection.ignoresNewSets = flow.keepsSelection;
        if (flow.hasStep)
            static_cast<standin::ServiceHub*>(host.application())
                ->add(Ref<ScriptedStep>::share(new ScriptedStep(io, host.vars)));
    }
    Verdict runWith(std::size_t answerCount) {
        for (std::size_t i = 0; i < answerCount; ++i) {
            ScriptedAnswer next = flow.steps[i].answer;
            next.objects = pick(flow.steps[i].picks);
            io.answer(next);
        }
        const Ref<CGroupCmd> command = flow.make();
        const int result = command->Run(nullptr);
        return {result, command->getStatus()};
    }
    Verdict runToTheEnd() {
        DialogUser user;
        if (flow.boxTitle)
            user.then([this](QDialog& dialog) {
                auto& box = dynamic_cast<QMessageBox&>(dialog);
                EXPECT_EQ(box.windowTitle(), mark + QLatin1String(flow.boxTitle));
                EXPECT_TRUE(box.text().startsWith(mark));
                box.button(flow.boxButton)->click();
            });
        const Verdict verdict = runWith(flow.steps.size());
        EXPECT_TRUE(user.finished());
        return verdict;
    }
    // The prompts that a cancel at this step shows, and all that it prints.
    std::vector<OdString> promptsUpTo(std::size_t last) const {
        std::vector<OdString> texts;
        for (std::size_t i = 0; i < flow.steps.size() && i <= last; ++i)
            if (flow.steps[i].prompt)
                texts.emplace_back(flow.steps[i].prompt);
        return texts;
    }
    std::vector<OdString> printedUpTo(std::size_t last) const {
        std::vector<OdString> texts;
        for (std::size_t i = 0; i < flow.steps.size() && i <= last; ++i)
            texts.insert(texts.end(), flow.steps[i].printedBefore.begin(), flow.steps[i].printedBefore.end());
        return texts;
    }
    std::vector<OdString> askedTexts() const {
        std::vector<OdString> texts;
        for (const AskedPrompt& asked : io.prompts)
            texts.push_back(asked.text);
        return texts;
    }
    std::wstring groupsText() const {
        const std::wstring all = summary();
        return all.substr(0, all.find(L"highlighted:"));
    }
    void cancelAt(std::size_t at) {
        io.unanswered = 0;
        io.prompts.clear();
        io.printed.clear();
        selection.select(pick(flow.selected));
        const ExitStep& step = flow.steps[at];
        const bool goesOn = step.cancel != ExitStep::kEnds;
        const Verdict verdict = runWith(at);
        EXPECT_TRUE(io.allTaken());
        EXPECT_EQ(io.unanswered, goesOn ? 2 : 1);
        EXPECT_EQ(verdict.result, step.afterCancel.result);
        EXPECT_EQ(verdict.status, step.afterCancel.status);
        EXPECT_THAT(askedTexts(), ElementsAreArray(promptsUpTo(goesOn ? at + 1 : at)));
        std::vector<OdString> printed = printedUpTo(at);
        if (step.cancel == ExitStep::kGoesOnWithAMessage)
            printed.emplace_back(L"[HelpGroupName] getInputText() returned false or canceled.");
        EXPECT_THAT(io.printed, ElementsAreArray(printed));
        selection.select(pick(flow.selected));
    }
    const Flow& flow = GetParam();
    QString mark; // of translated texts
};

TEST_P(CommandExits, CancelAtEveryPromptEndsTheRunAndChangesNothing) {
    const std::wstring before = summary();
    for (std::size_t at = 0; at < flow.steps.size(); ++at) {
        SCOPED_TRACE("cancelled at prompt " + std::to_string(at));
        cancelAt(at);
        EXPECT_EQ(summary(), before);
    }
}

TEST_P(CommandExits, RunToTheEndHasItsTextsItsResultItsStatusItsGroupsAndNoOpenTransaction) {
    const std::wstring before = groupsText();
    const Verdict verdict = runToTheEnd();
    EXPECT_TRUE(io.allTaken());
    EXPECT_EQ(io.unanswered, 0);
    EXPECT_EQ(verdict.result, flow.atEnd.result);
    EXPECT_EQ(verdict.status, flow.atEnd.status);
    EXPECT_THAT(askedTexts(), ElementsAreArray(promptsUpTo(flow.steps.size())));
    std::vector<OdString> printed = printedUpTo(flow.steps.size());
    printed.insert(printed.end(), flow.printedAtEnd.begin(), flow.printedAtEnd.end());
    EXPECT_THAT(io.printed, ElementsAreArray(printed));
    EXPECT_EQ(groupsText(), flow.groupsAtEnd ? flow.groupsAtEnd : before);
    EXPECT_THAT(highlightedLines(), ElementsAreArray(flow.highlightedAtEnd));
    EXPECT_EQ(database->numActiveTransactions(), 0);
}

TEST_P(CommandExits, EveryTextIsTranslatedInTheContextQObject) {
    const ContextMarker marker("QObject");
    mark = QStringLiteral("~");
    runToTheEnd();
    std::vector<OdString> texts = askedTexts();
    texts.insert(texts.end(), io.printed.begin(), io.printed.end());
    for (const OdString& text : texts) {
        if (text != OdString(L"\n")) {
            EXPECT_EQ(text.left(1), OdString(L"~")) << text.toUtf8();
        }
    }
}

TEST_P(CommandExits, UndoAndRedoRestoreTheDrawingTagForTag) {
    database->startUndoRecord();
    const std::string before = drawingText();
    runToTheEnd();
    const std::string after = drawingText();
    EXPECT_EQ(before != after, flow.groupsAtEnd != nullptr);
    if (!flow.groupsAtEnd)
        return;
    EXPECT_TRUE(database->undo());
    EXPECT_TRUE(drawingText() == before);
    EXPECT_TRUE(database->redo());
    EXPECT_TRUE(drawingText() == after);
}

INSTANTIATE_TEST_SUITE_P(Flows, CommandExits, testing::ValuesIn(flowsOfGroupCommands()),
                         [](const auto& flowInfo) { return flowInfo.param.name; });
