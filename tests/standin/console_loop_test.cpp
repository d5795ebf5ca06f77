// The command loop: which command a line names, and what happens around it.
#include "host/documents.h"
#include "sdk/db/block_table.h"
#include "sdk/db/curves.h"
#include "standin/console/command_loop.h"
#include "standin/console/history.h"
#include "standin/documents/document_manager.h"
#include "standin/registry.h"
#include "tests/standin/console_driver.h"
#include "tests/support/poll.h"

#include <gtest/gtest.h>

using standin::CommandHistory;
using standin::CommandLoop;

namespace {

class CountingCommand : public OdStaticRxObject<OdEdCommand> {
public:
    const OdString groupName() const override { return L"TESTS"; }
    const OdString globalName() const override { return L"COUNTUP"; }
    void execute(OdEdCommandContext* ctx) override {
        setCtx(ctx);
        ++runs;
        hadContext = ctx != nullptr;
        if (fails)
            throw OdError(L"the count is full");
        setCtx(nullptr);
    }
    int runs = 0;
    bool hadContext = false, fails = false;
};

struct ConsoleLoopTest : testing::Test, ConsoleDriver {
    ConsoleLoopTest() { odedRegCmds()->addCommand(&counting); }
    ~ConsoleLoopTest() override { odedRegCmds()->removeCmd(&counting); }
    void run(std::initializer_list<const char*> lines) {
        type(lines);
        EXPECT_TRUE(waitUntil([&] { return loop.isReady() && !console.hasInput(); }));
    }
    CountingCommand counting;
    CommandLoop loop{console};
};

TEST_F(ConsoleLoopTest, RegisteredCommandRunsWithAContext) {
    run({"countup"});
    EXPECT_EQ(counting.runs, 1);
    EXPECT_TRUE(counting.hadContext);
    EXPECT_EQ(console.transcript(), QStringList({"Command: countup"}));
}

TEST_F(ConsoleLoopTest, EnterRunsTheLastCommandAgain) {
    run({"COUNTUP", "", ""});
    EXPECT_EQ(counting.runs, 3);
    EXPECT_EQ(lastLine(), "Command: COUNTUP");
}

TEST_F(ConsoleLoopTest, EnterAtFirstDoesNothing) {
    run({""});
    EXPECT_EQ(counting.runs, 0);
    EXPECT_EQ(console.transcript(), QStringList({"Command: "}));
}

TEST_F(ConsoleLoopTest, LeadingUnderscoreNamesTheSameCommand) {
    run({"_countup", ".COUNTUP"});
    EXPECT_EQ(counting.runs, 2);
}

TEST_F(ConsoleLoopTest, UnknownCommandIsTold) {
    run({"frobnicate"});
    EXPECT_EQ(lastLine(), "Unknown command \"frobnicate\". HELP lists the commands.");
    run({""});
    EXPECT_EQ(counting.runs, 0);
}

TEST_F(ConsoleLoopTest, LineThatNamesNoCommandIsOfferedElsewhere) {
    QString offered;
    loop.otherwise = [&](const QString& line) {
        offered = line;
        return true;
    };
    run({"pickbox"});
    EXPECT_EQ(offered, "pickbox");
    EXPECT_EQ(lastLine(), "Command: pickbox");
}

TEST_F(ConsoleLoopTest, ErrorOfACommandIsToldAndItsContextTakenAway) {
    counting.fails = true;
    run({"COUNTUP"});
    EXPECT_EQ(lastLine(), "COUNTUP: the count is full");
    EXPECT_EQ(standin::registry().commandContext, nullptr);
    EXPECT_FALSE(loop.isRunning());
    counting.fails = false;
    run({"COUNTUP"});
    EXPECT_EQ(counting.runs, 2);
}

TEST_F(ConsoleLoopTest, OwnCommandAsksThroughTheConsole) {
    OdString answer;
    loop.add({"ASK", "Asks.", [&] { console.getInput(L"Name?", nullptr, 6, &answer, 0); }});
    run({"ask", "chairs", "countup"});
    EXPECT_EQ(answer, OdString(L"chairs"));
    EXPECT_EQ(counting.runs, 1);
    EXPECT_EQ(console.transcript(), QStringList({"Command: ask", "Name? chairs", "Command: countup"}));
}

TEST_F(ConsoleLoopTest, OwnCommandTakesTheWordsBehindItsNameIfItCan) {
    QStringList calls;
    loop.add({"TAKE", "Takes words.", [&] { calls << "take"; },
              [&](const QString& words) { calls << "take " + words; }});
    loop.add({"PLAIN", "Takes none.", [&] { calls << "plain"; }});
    run({"take", "_take  two   words", "", "plain", "plain words"});
    EXPECT_EQ(calls, QStringList({"take", "take two words", "take", "plain"}));
    EXPECT_EQ(lastLine(), "Unknown command \"plain words\". HELP lists the commands.");
}

TEST_F(ConsoleLoopTest, LoopIsReadyAtAPromptAndWhenIdle) {
    bool readyAtPrompt = false;
    loop.add({"ASK", "Asks.", [&] { console.getInput(L"Name?", nullptr, 6, nullptr, 0); }});
    QObject::connect(&console, &standin::Console::promptChanged, &loop, [&] {
        if (console.openPrompt())
            readyAtPrompt = loop.isReady() && loop.isRunning() && loop.prompt() == "Name? ";
    });
    EXPECT_TRUE(loop.isReady());
    EXPECT_EQ(loop.prompt(), "Command: ");
    run({"ASK"});
    EXPECT_TRUE(waitUntil([&] { return !loop.isRunning(); }));
    EXPECT_TRUE(readyAtPrompt);
    EXPECT_EQ(unanswered, 1);
}

TEST_F(ConsoleLoopTest, CommandsAreCompletedFromTheirBeginning) {
    loop.add({"COPY", "Copies.", [] {}});
    EXPECT_EQ(loop.completions("co"), QStringList({"COPY", "COUNTUP"}));
    EXPECT_EQ(loop.completions("cou"), QStringList({"COUNTUP"}));
    EXPECT_TRUE(loop.completions("").isEmpty());
    EXPECT_EQ(loop.descriptionOf("_copy"), "Copies.");
    EXPECT_EQ(loop.descriptionOf("COUNTUP"), "");
}

TEST_F(ConsoleLoopTest, NamesAreSortedEachOnce) {
    loop.add({"DRAW", "Draws.", [] {}});
    loop.add({"COUNTUP", "In the place of the module's.", [] {}});
    loop.add({"ASK", "Asks.", [] {}});
    EXPECT_EQ(loop.names(), QStringList({"ASK", "COUNTUP", "DRAW"}));
}

TEST_F(ConsoleLoopTest, BeginAndEndOfACommandAreTold) {
    QStringList told;
    QObject::connect(&loop, &CommandLoop::commandStarted, &loop, [&](const QString& name) {
        EXPECT_TRUE(loop.isRunning());
        told << "start " + name;
    });
    QObject::connect(&loop, &CommandLoop::commandEnded, &loop, [&](const QString& name) {
        EXPECT_FALSE(loop.isRunning());
        told << "end " + name;
    });
    run({"countup", ""});
    EXPECT_EQ(told, QStringList({"start COUNTUP", "end COUNTUP", "start COUNTUP", "end COUNTUP"}));
    EXPECT_EQ(loop.lastCommand(), "COUNTUP");
    counting.fails = true;
    run({""});
    EXPECT_EQ(told.last(), "end COUNTUP") << "also when it has failed";
}

TEST(ConsoleHistory, ArrowsWalkThroughTheLinesAndBackToWhatWasTyped) {
    CommandHistory history;
    for (const char* line : {"QPREF", "SETVAR", "HELP"})
        history.add(line);
    EXPECT_EQ(history.older(""), "HELP");
    EXPECT_EQ(history.older("HELP"), "SETVAR");
    EXPECT_EQ(history.older("SETVAR"), "QPREF");
    EXPECT_EQ(history.older("QPREF"), "QPREF") << "the first one stays";
    EXPECT_EQ(history.newer("QPREF"), "SETVAR");
    EXPECT_EQ(history.newer("SETVAR"), "HELP");
    EXPECT_EQ(history.newer("HELP"), "");
}

TEST(ConsoleHistory, WalkKeepsToTheLinesThatBeginWithWhatWasTyped) {
    CommandHistory history;
    for (const char* line : {"SETVAR", "QPREF", "SAVE", "HELP"})
        history.add(line);
    EXPECT_EQ(history.older("s"), "SAVE");
    EXPECT_EQ(history.older("SAVE"), "SETVAR");
    EXPECT_EQ(history.older("SETVAR"), "SETVAR");
    EXPECT_EQ(history.newer("SETVAR"), "SAVE");
    EXPECT_EQ(history.newer("SAVE"), "s");
}

TEST(ConsoleHistory, RepeatedAndEmptyLinesAreKeptOnce) {
    CommandHistory history;
    for (const char* line : {"QPREF", "QPREF", "", "  "})
        history.add(line);
    EXPECT_EQ(history.all(), QStringList({"QPREF"}));
}

TEST(ConsoleHistory, OldestLinesGoAtTheLimit) {
    CommandHistory history;
    history.setLimit(2);
    for (const char* line : {"A", "B", "C"})
        history.add(line);
    EXPECT_EQ(history.all(), QStringList({"B", "C"}));
    history.setLimit(0);
    EXPECT_TRUE(history.all().isEmpty());
    EXPECT_EQ(history.older("x"), "x");
}

// A drawing is open.
struct FailedCommandTest : ConsoleLoopTest {
    FailedCommandTest() {
        documents.openEmpty();
        drawing = documents.currentOne()->database();
        addLine();
    }
    static OdDbLinePtr newLine() { return OdDbLinePtr(new OdDbLine); }
    OdDbObjectPtr space() { return drawing->getModelSpaceId().safeOpenObject(OdDb::kForWrite); }
    std::size_t lines() { return odrxCast<OdDbBlockTableRecord>(space())->entityIds().size(); }
    void addLine() { odrxCast<OdDbBlockTableRecord>(space())->appendOdDbEntity(newLine().get()); }
    void setPickStyle(int style) {
        const OdResBufPtr value = OdResBuf::newRb(OdResBuf::kDxfInt8);
        value->setInt8(static_cast<std::int8_t>(style));
        drawing->setSysVar(L"PICKSTYLE", value.get());
    }
    // Runs a command that does this and then fails.
    void fail(const std::function<void()>& work) {
        loop.add({"FAIL", "Fails.", [work] {
                      work();
                      throw OdError(L"out of ideas");
                  }});
        drawing->startUndoRecord();
        run({"FAIL"});
        drawing->startUndoRecord();
    }
    bool saidSo() { return console.transcript().contains("What FAIL had begun is taken back."); }

    standin::DocumentManager documents{console, {}};
    OdDbDatabasePtr drawing;
};

TEST_F(FailedCommandTest, TransactionsThatItBeganAreAborted) {
    const std::size_t before = lines();
    fail([this] {
        drawing->startTransaction();
        addLine();
        drawing->startTransaction();
        addLine();
    });
    EXPECT_EQ(drawing->numActiveTransactions(), 0);
    EXPECT_EQ(lines(), before);
    EXPECT_TRUE(saidSo());
    addLine();
    EXPECT_TRUE(drawing->undo()) << "UNDO works again";
    EXPECT_EQ(lines(), before);
}

TEST_F(FailedCommandTest, TransactionsThatWereOpenBeforeStayOpen) {
    const std::size_t before = lines();
    drawing->startTransaction();
    addLine();
    fail([this] {
        drawing->startTransaction();
        addLine();
    });
    EXPECT_EQ(drawing->numActiveTransactions(), 1);
    EXPECT_TRUE(saidSo());
    EXPECT_EQ(lines(), before + 1) << "that of the transaction which was open before";
    drawing->endTransaction();
}

TEST_F(FailedCommandTest, AnUndoBlockThatItLeftOpenIsTakenBackAndClosed) {
    const std::size_t before = lines();
    fail([this] {
        drawing->blockUndoRecording(true);
        addLine();
        addLine();
    });
    EXPECT_FALSE(drawing->isUndoBlockStarted());
    EXPECT_EQ(lines(), before);
    EXPECT_TRUE(saidSo());
    addLine();
    drawing->startUndoRecord();
    addLine();
    drawing->undo();
    EXPECT_EQ(lines(), before + 1) << "each command is a step of its own again";
}

TEST_F(FailedCommandTest, AnEmptyUndoBlockTakesNothingBackOfTheCommandBefore) {
    addLine();
    const std::size_t before = lines();
    bool wasStarted = false;
    fail([&] {
        drawing->blockUndoRecording(true);
        wasStarted = drawing->isUndoBlockStarted();
    });
    EXPECT_TRUE(wasStarted);
    EXPECT_FALSE(drawing->isUndoBlockStarted());
    EXPECT_EQ(lines(), before);
}

TEST_F(FailedCommandTest, TheWayOfPickingGroupsIsWhatItWas) {
    setPickStyle(3);
    fail([this] { setPickStyle(0); });
    EXPECT_EQ(drawing->getSysVar(L"PICKSTYLE")->getInt8(), 3);
    EXPECT_TRUE(saidSo());
}

TEST_F(FailedCommandTest, WhatItHadFinishedStaysAndNothingIsSaid) {
    const std::size_t before = lines();
    fail([this] { addLine(); });
    EXPECT_EQ(lines(), before + 1);
    EXPECT_FALSE(saidSo());
    EXPECT_EQ(lastLine(), "FAIL: out of ideas");
}

TEST_F(ConsoleLoopTest, ACommandOfAModuleThatIsRefusedDoesNotRunAndTheReasonIsTold) {
    loop.refusal = [] { return QStringLiteral("No drawing is open."); };
    run({"COUNTUP"});
    EXPECT_EQ(counting.runs, 0);
    EXPECT_EQ(lastLine(), "No drawing is open.");
    loop.refusal = [] { return QString(); };
    run({""});
    EXPECT_EQ(counting.runs, 1);
}

} // namespace
