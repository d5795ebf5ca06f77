// The allocation functions that the module exports, found as the host's loader finds them.
#include "sdk/rx/alloc.h"
#include "tests/module/loaded_module.h"

#include <gtest/gtest.h>
#include <new>

namespace {

using NewFunction = void* (*)(std::size_t);
using NothrowNewFunction = void* (*)(std::size_t, const std::nothrow_t&);
using DeleteFunction = void (*)(void*);
using SizedDeleteFunction = void (*)(void*, std::size_t);

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

TEST_F(ModuleAllocation, TheModuleItselfUsesItsOwnOperatorNew) {
    OdRxModule* const module = loaded.create(nullptr, L"a name long enough to need a block of its own");
    module->deleteModule();
    const std::uint64_t before = odrxAllocCount();
    loaded.create(nullptr, L"a name long enough to need a block of its own")->deleteModule();
    EXPECT_GE(odrxAllocCount(), before + 1) << "the module object comes from odrxAlloc";
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

TEST_F(ModuleAllocation, DeleteAcceptsNullInEveryForm) {
    free(nullptr);
    loaded.symbol<DeleteFunction>("_ZdaPv")(nullptr);
    loaded.symbol<SizedDeleteFunction>("_ZdlPvm")(nullptr, 16);
    loaded.symbol<SizedDeleteFunction>("_ZdaPvm")(nullptr, 16);
}
