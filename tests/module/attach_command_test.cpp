// The attach command as the module hands it out.
#include "host/cmd_process.h"
#include "tests/module/loaded_module.h"

#include <gtest/gtest.h>

TEST(AttachCommandOfTheModule, ComesByItsClassNameWithOneReferenceAndAnswersLikeACommand) {
    LoadedModule loaded;
    const auto factory = loaded.symbol<ICmdProcess* (*)(const char*)>("createHostCommand");
    ICmdProcess* const command = factory("OdQCmd_hostAttachExternalReferenceCommand");
    ASSERT_NE(command, nullptr);
    EXPECT_EQ(command->getStatus(), 0);
    EXPECT_EQ(command->constantZero(), 0);
    EXPECT_EQ(command->enableQuery(), 1);
    EXPECT_TRUE(queryFor<ICmdProcess>(command));
    EXPECT_FALSE(queryFor<ICmdRun>(command)); // not answered, on purpose
    EXPECT_EQ(command->Release(), 0);
}
