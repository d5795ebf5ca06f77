// These tests need the stand-in's own application object, which catches exceptions where it delivers events.
#include "standin/qt_application/host_application.h"

#include <gtest/gtest.h>

// Qt gives nothing back where an exception passes through it, which is what these tests do all the time: what
// is lost is not looked for here. Accesses are checked as everywhere.
extern "C" int __lsan_is_turned_off() { return 1; }

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (testing::GTEST_FLAG(list_tests))
        return RUN_ALL_TESTS(); // the build lists the tests of a binary, without a display
    standin::HostApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
