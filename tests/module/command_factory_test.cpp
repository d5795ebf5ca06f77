// The command objects that the module hands out by their class names.
#include "host/cmd_process.h"
#include "tests/module/loaded_module.h"

#include <gtest/gtest.h>

namespace {

class CommandFactory : public testing::Test {
protected:
    ICmdProcess* create(const char* className) { return factory(className); }

private:
    using Factory = ICmdProcess* (*)(const char* className);
    LoadedModule loaded;
    Factory factory = loaded.symbol<Factory>("createHostCommand");
};

} // namespace

TEST_F(CommandFactory, EachGroupCommandComesByItsClassNameWithOneReference) {
    for (const char* name :
         {"CGroupCmd", "CCommandLineGroupUnified", "CCommandLineGroupEdit", "CCommandLineGroupCreate",
          "CCommandLineGroupUngroup", "CCommandLineGroupFromSelection", "CCommandLineGroupRemoveObject"}) {
        ICmdProcess* const command = create(name);
        ASSERT_NE(command, nullptr) << name;
        EXPECT_EQ(command->constantZero(), 0);
        EXPECT_TRUE(queryFor<ICmdProcess>(command));
        EXPECT_EQ(Ref<ICmdProcess>::take(command)->AddRef(), 2) << name;
        EXPECT_EQ(command->Release(), 0) << name;
    }
}

TEST_F(CommandFactory, EachCallMakesAnObjectOfItsOwn) {
    const auto first = Ref<ICmdProcess>::take(create("CGroupCmd"));
    const auto second = Ref<ICmdProcess>::take(create("CGroupCmd"));
    EXPECT_NE(first.get(), second.get());
}

TEST_F(CommandFactory, UnknownNamesGiveNull) {
    for (const char* name : {"", "cgroupcmd", "CGroupCmd ", "OdDbGroup"})
        EXPECT_EQ(create(name), nullptr) << name;
    EXPECT_EQ(create(nullptr), nullptr);
}
