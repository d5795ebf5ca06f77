// The main function of every test binary: an application object as the host has one, then the tests.
#include "tests/support/test_application.h"

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (testing::GTEST_FLAG(list_tests))
        return RUN_ALL_TESTS(); // the build lists the tests of a binary, without a display
    TestApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("tests"));
    return RUN_ALL_TESTS();
}
