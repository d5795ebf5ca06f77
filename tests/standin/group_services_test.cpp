// What the workbench's host supplies to the group commands.
#include "host/app.h"
#include "host/group_services.h"
#include "sdk/rx/od_error.h"
#include "standin/console/console.h"
#include "standin/documents/document_manager.h"
#include "standin/params/application.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace standin;

namespace {

class GroupServicesTest : public testing::Test {
protected:
    GroupServicesTest() {
        ApplicationSetup setup;
        setup.dataDir = QStringLiteral(SHIPPED_DATA_DIR);
        setup.rootDir = root.filePath("root");
        application = std::make_unique<Application>(setup);
    }
    static Ref<IGroupServices> services() { return appService<IGroupServices>(); }
    QTemporaryDir root;
    std::unique_ptr<Application> application;
};

TEST_F(GroupServicesTest, ReasonIsPrintedWithTheNameThatItConcerns) {
    Console console;
    DocumentManager documents(console, SysVarTable());
    services()->creationFailed(OdError(eWasErased));
    services()->creationFailed(OdError(eDuplicateKey, L"TABLE"));
    EXPECT_EQ(console.transcript(), QStringList({"The group was not made: Object was erased.",
                                                 "The group was not made: Name is already in use (TABLE)."}));
}

TEST_F(GroupServicesTest, ReasonIsLostWithoutAConsole) {
    ASSERT_TRUE(services());
    EXPECT_NO_THROW(services()->creationFailed(OdError(eWasErased)));
}

TEST_F(GroupServicesTest, ExplodeGivesUpItsRow) { EXPECT_TRUE(services()->explodeGivesUpRow()); }

} // namespace
