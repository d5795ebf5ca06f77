// The main function of every test binary: an application object as the host has one, then the tests.
#include "tests/support/test_application.h"

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen"); // the build lists the tests of a binary without a display
    testing::InitGoogleTest(&argc, argv);
    TestApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("tests"));
    return RUN_ALL_TESTS();
}
