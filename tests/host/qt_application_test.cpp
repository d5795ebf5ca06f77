// The way to the interfaces of the Qt application object, and what it gives where it does not offer them.
#include "host/qt_application.h"

#include "tests/support/test_application.h"

#include <gtest/gtest.h>

namespace {

class QtInterfaces : public testing::Test {
protected:
    ~QtInterfaces() override {
        application.offersConsole = true;
        application.console.database = nullptr;
    }
    TestApplication& application = *TestApplication::self();
};

} // namespace

TEST_F(QtInterfaces, AreFoundByTheirNames) {
    EXPECT_EQ(qtApplicationInterface(), static_cast<IqApplication*>(&application));
    EXPECT_EQ(qtConsoleInterface(), static_cast<IqConsole*>(&application.console));
}

TEST_F(QtInterfaces, OfTheConsoleGiveTheCurrentDatabase) {
    const OdRxObjectPtr database(new OdRxObject);
    EXPECT_EQ(qtCurrentDatabaseObject(), nullptr);
    application.console.database = database.get();
    EXPECT_EQ(qtCurrentDatabaseObject(), database.get());
}

TEST_F(QtInterfaces, GiveNothingWithoutAConsole) {
    const OdRxObjectPtr database(new OdRxObject);
    application.console.database = database.get();
    application.offersConsole = false;
    EXPECT_EQ(qtConsoleInterface(), nullptr);
    EXPECT_EQ(qtCurrentDatabaseObject(), nullptr);
}

TEST_F(QtInterfaces, MakeANewContextForEachRead) {
    application.testServices.contextNumbers.clear();
    const OdRxObjectPtr first = newReadContext(), second = newReadContext();
    ASSERT_FALSE(first.isNull());
    EXPECT_NE(first.get(), second.get());
    EXPECT_EQ(application.testServices.contextNumbers, (std::vector<int>{0, 0}));
}
