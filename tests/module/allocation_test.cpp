// The allocation functions that the module exports, found as the host's loader finds them.
#include "sdk/rx/alloc.h"
#include "tests/module/app_with_mode.h"
#include "tests/module/loaded_module.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <new>
#include <stdexcept>

namespace {

using NewFunction = void* (*)(std::size_t);
using NothrowNewFunction = void* (*)(std::size_t, const std::nothrow_t&);
using DeleteFunction = void (*)(void*);
using SizedDeleteFunction = void (*)(void*, std::size_t);
using NothrowDeleteFunction = void (*)(void*, const std::nothrow_t&);

int handlerCalls = 0;
void countingHandler() { ++handlerCalls; }

class OutOfMemory {
public:
    explicit OutOfMemory(std::new_handler handler) : former(std::set_new_handler(handler)) {
        handlerCalls = 0;
        odrxFailAllocations(true);
    }
    ~OutOfMemory() {
        odrxFailAllocations(false);
        std::set_new_handler(former);
    }

private:
    std::new_handler former;
};

class ModuleAllocation : public testing::Test {
protected:
    LoadedModule loaded;
    DeleteFunction free = loaded.symbol<DeleteFunction>("_ZdlPv");
};

} // namespace

TEST_F(ModuleAllocation, EveryFormGoesThroughTheDrawingAllocator) {
    for (const char* name : {"_Znwm", "_Znam"}) {
        const std::uint64_t before = odrxAllocCount();
        void* const block = loaded.symbol<NewFunction>(name)(24);
        EXPECT_EQ(odrxAllocCount(), before + 1) << name;
        free(block);
    }
    for (const char* name : {"_ZnwmRKSt9nothrow_t", "_ZnamRKSt9nothrow_t"}) {
        const std::uint64_t before = odrxAllocCount();
        void* const block = loaded.symbol<NothrowNewFunction>(name)(24, std::nothrow);
        EXPECT_EQ(odrxAllocCount(), before + 1) << name;
        free(block);
    }
}

// Loaded by dlopen, a library takes the program's operator new unless it is linked to take its own.
TEST_F(ModuleAllocation, TheModuleItselfUsesItsOwnOperatorNew) {
    AppWithMode app(1);
    OdRxModule* const module = loaded.create();
    const std::uint64_t before = odrxAllocCount();
    module->initApp();
    EXPECT_EQ(odrxAllocCount(), before + 1) << "the object of the drawing properties";
    module->uninitApp();
    module->deleteModule();
}

TEST_F(ModuleAllocation, TheModuleObjectComesFromTheDrawingAllocator) {
    const std::uint64_t before = odrxAllocCount();
    loaded.create()->deleteModule();
    EXPECT_EQ(odrxAllocCount(), before + 1);
}

TEST_F(ModuleAllocation, TheModuleObjectIsNotMadeWithoutMemoryAndCanBeMadeLater) {
    {
        const OutOfMemory none(nullptr);
        EXPECT_THROW(loaded.create(), std::bad_alloc);
    }
    loaded.create()->deleteModule();
}

TEST_F(ModuleAllocation, TheModuleObjectCallsANewHandlerOnce) {
    {
        const OutOfMemory none([] {
            countingHandler();
            throw std::runtime_error("no memory");
        });
        EXPECT_THROW(loaded.create(), std::runtime_error);
        EXPECT_EQ(handlerCalls, 1);
    }
    loaded.create()->deleteModule();
}

// Even where the handler has made room there is no second attempt: the module is built on the null pointer.
TEST_F(ModuleAllocation, TheModuleObjectIsNotAskedForAgainAfterItsNewHandler) {
    testing::GTEST_FLAG(death_test_style) = "threadsafe";
    EXPECT_EXIT(
        {
            const OutOfMemory none([] { odrxFailAllocations(false); });
            loaded.create();
        },
        [](int status) { return status != 0; }, "");
    EXPECT_DEATH(
        {
            const OutOfMemory none(countingHandler);
            try {
                loaded.create();
            } catch (const std::bad_alloc&) {
                std::_Exit(0); // a handler that has returned is not followed by this
            }
        },
        "");
}

TEST_F(ModuleAllocation, OutOfMemoryWithAHandlerThatMakesRoomStillGivesNull) {
    const OutOfMemory none([] {
        countingHandler();
        odrxFailAllocations(false);
    });
    EXPECT_EQ(loaded.symbol<NewFunction>("_Znwm")(8), nullptr);
    EXPECT_EQ(handlerCalls, 1);
}

TEST_F(ModuleAllocation, OutOfMemoryWithoutAHandlerThrows) {
    const OutOfMemory none(nullptr);
    EXPECT_THROW(loaded.symbol<NewFunction>("_Znwm")(8), std::bad_alloc);
    EXPECT_THROW(loaded.symbol<NewFunction>("_Znam")(8), std::bad_alloc);
}

TEST_F(ModuleAllocation, OutOfMemoryWithAHandlerCallsItOnceAndReturnsNull) {
    const OutOfMemory none(countingHandler);
    EXPECT_EQ(loaded.symbol<NewFunction>("_Znwm")(8), nullptr);
    EXPECT_EQ(handlerCalls, 1) << "there is no second attempt";
    EXPECT_EQ(loaded.symbol<NewFunction>("_Znam")(8), nullptr);
    EXPECT_EQ(loaded.symbol<NothrowNewFunction>("_ZnwmRKSt9nothrow_t")(8, std::nothrow), nullptr);
    EXPECT_EQ(loaded.symbol<NothrowNewFunction>("_ZnamRKSt9nothrow_t")(8, std::nothrow), nullptr);
    EXPECT_EQ(handlerCalls, 4);
}

TEST_F(ModuleAllocation, TheNothrowFormsThrowAllTheSame) {
    const OutOfMemory none(nullptr);
    EXPECT_THROW(loaded.symbol<NothrowNewFunction>("_ZnwmRKSt9nothrow_t")(8, std::nothrow), std::bad_alloc);
    EXPECT_THROW(loaded.symbol<NothrowNewFunction>("_ZnamRKSt9nothrow_t")(8, std::nothrow), std::bad_alloc);
}

TEST_F(ModuleAllocation, SizeZeroThatYieldsNullIsReturnedAsItIs) {
    const OutOfMemory none(nullptr);
    EXPECT_EQ(loaded.symbol<NewFunction>("_Znwm")(0), nullptr);
}

TEST_F(ModuleAllocation, EveryFormOfDeleteGivesTheBlockToTheDrawingAllocatorAndPassesOverNull) {
    for (const std::size_t size : {std::size_t{0}, std::size_t{16}}) {
        const auto block = [size] { return size ? odrxAlloc(size) : nullptr; };
        const std::uint64_t before = odrxFreeCount();
        for (const char* name : {"_ZdlPv", "_ZdaPv"})
            loaded.symbol<DeleteFunction>(name)(block());
        for (const char* name : {"_ZdlPvm", "_ZdaPvm"})
            loaded.symbol<SizedDeleteFunction>(name)(block(), 1); // the size doesn't matter
        for (const char* name : {"_ZdlPvRKSt9nothrow_t", "_ZdaPvRKSt9nothrow_t"})
            loaded.symbol<NothrowDeleteFunction>(name)(block(), std::nothrow);
        EXPECT_EQ(odrxFreeCount() - before, size ? 6u : 0u);
    }
}
