// The stack of commands: how commands are told apart and found.
#include "sdk/ed/command.h"

#include <gtest/gtest.h>

namespace {

class Command : public OdStaticRxObject<OdEdCommand> {
public:
    Command(const wchar_t* ofGroup, const wchar_t* worldwide, const wchar_t* here = nullptr)
        : group(ofGroup), global(worldwide), local(here ? here : worldwide) {}
    const OdString groupName() const override { return group; }
    const OdString globalName() const override { return global; }
    const OdString localName() const override { return local; }
    void execute(OdEdCommandContext*) override {}

private:
    OdString group, global, local;
};

OdResult codeOfAdding(OdEdCommandStack& stack, Command& command) {
    try {
        stack.addCommand(&command);
    } catch (const OdError& error) {
        return error.code();
    }
    return eOk;
}

class CommandStack : public testing::Test {
protected:
    CommandStack() {
        stack->addCommand(&line);
        stack->addCommand(&circle);
    }
    std::vector<OdString> names() const { return stack->globalNames(); }
    // The stack holds them, so they go after it.
    Command line{L"DRAW", L"LINE", L"LINIE"}, circle{L"DRAW", L"CIRCLE"}, elsewhere{L"OTHER", L"LINE"};
    OdEdCommandStackPtr stack{new OdEdCommandStack};
};

} // namespace

TEST_F(CommandStack, FindsACommandByEitherOfItsNamesInAnyCase) {
    for (const wchar_t* name : {L"LINE", L"line", L"LINIE", L"Linie"})
        EXPECT_EQ(stack->lookupCmd(name).get(), &line) << OdString(name).toUtf8();
    EXPECT_EQ(stack->lookupCmd(L"circle").get(), &circle);
    for (const wchar_t* name : {L"", L"LIN", L"LINES", L"DRAW"})
        EXPECT_TRUE(stack->lookupCmd(name).isNull()) << OdString(name).toUtf8();
}

TEST_F(CommandStack, ListsTheCommandsInTheirOrder) {
    EXPECT_EQ(names(), (std::vector<OdString>{L"LINE", L"CIRCLE"}));
}

TEST_F(CommandStack, TakesACommandOfTheSameNameOnlyInAnotherGroup) {
    Command again(L"draw", L"Line");
    EXPECT_EQ(codeOfAdding(*stack, again), eDuplicateKey);
    EXPECT_EQ(names().size(), 2u);
    EXPECT_EQ(codeOfAdding(*stack, elsewhere), eOk);
    EXPECT_EQ(names().size(), 3u);
    EXPECT_EQ(stack->lookupCmd(L"LINE").get(), &line) << "the first one counts";
}

TEST_F(CommandStack, RemovesWhatHasTheNamesOfTheGivenCommand) {
    Command stranger(L"OTHER", L"LINE"), namesake(L"Draw", L"line");
    stack->removeCmd(&stranger);
    EXPECT_EQ(names().size(), 2u);
    stack->removeCmd(&namesake);
    EXPECT_EQ(names(), std::vector<OdString>{L"CIRCLE"});
    stack->removeCmd(&namesake);
    EXPECT_EQ(names(), std::vector<OdString>{L"CIRCLE"});
}

TEST_F(CommandStack, OfTheProcessIsOne) {
    EXPECT_EQ(odedRegCmds().get(), odedRegCmds().get());
    EXPECT_NE(odedRegCmds().get(), stack.get());
}
