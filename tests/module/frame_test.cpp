// The module as the host loads it: entry points, module object, registration and execution of the two
// commands.
#include "host/documents.h"
#include "sdk/db/database.h"
#include "sdk/rx/alloc.h"
#include "standin/registry.h"
#include "tests/module/allocation_watch.h"
#include "tests/module/app_with_mode.h"
#include "tests/module/loaded_module.h"
#include "tests/support/fixture_host.h"

#include <QApplication>
#include <QTimer>
#include <algorithm>
#include <gtest/gtest.h>

namespace {

// No document is open. Notes the context in which it is asked for one, and may fail.
class NoDocuments : public HostDocumentManager {
public:
    NoDocuments() { standin::registry().documents = this; }
    ~NoDocuments() override {
        standin::registry().documents = nullptr;
        standin::registry().commandContext = nullptr;
    }
    HostDocument* currentDocument() override {
        contextSeen = standin::registry().commandContext;
        if (fails)
            throw OdError(eUserBreak);
        return nullptr;
    }
    HostCommandIO* fallbackIO() override { return nullptr; }
    HostVarService* varService() override { return nullptr; }
    OdEdCommandContext* contextSeen = nullptr;
    bool fails = false;
};

// Another object under the names of the drawing properties.
class NamesakeOfProperties : public OdStaticRxObject<OdEdCommand> {
public:
    const OdString groupName() const override { return OdString(L"dwgPropsDlg_class"); }
    const OdString globalName() const override { return OdString(L"DWGPROPS"); }
    void execute(OdEdCommandContext*) override {}
};

class ContextKept : public OdStaticRxObject<OdEdCommandContext> {};

bool isRegistered(const wchar_t* name) { return !odedRegCmds()->lookupCmd(name).isNull(); }

class ModuleFrame : public testing::Test {
protected:
    ~ModuleFrame() override { module->deleteModule(); }
    LoadedModule loaded;
    int handle = 0;
    OdRxModule* module = loaded.create(&handle, L"first name");
};

class ModuleInMode : public ModuleFrame, public testing::WithParamInterface<int> {};

} // namespace

TEST_F(ModuleFrame, TellsVersion24_8) {
    int major = -1, minor = -1, a = -1, b = -1;
    loaded.symbol<odrxGetAPIVersionFunction>("odrxGetAPIVersion")(&major, &minor, &a, &b);
    EXPECT_EQ(major, 24);
    EXPECT_EQ(minor, 8);
    EXPECT_EQ(a, 0);
    EXPECT_EQ(b, 0);
}

TEST_F(ModuleFrame, SecondCreateWithAnotherNameReturnsTheFirstObjectUnchanged) {
    int other = 0;
    EXPECT_EQ(loaded.create(&other, L"second name"), module);
    EXPECT_EQ(module->moduleName(), OdString(L"first name"));
    EXPECT_EQ(module->sysData(), &handle);
}

TEST_F(ModuleFrame, ReferenceCountStartsAtZeroAndOnlyCounts) {
    EXPECT_EQ(module->numRefs(), 0);
    module->addRef();
    EXPECT_EQ(module->numRefs(), 1);
    module->release();
    EXPECT_EQ(module->numRefs(), 0);
    EXPECT_EQ(loaded.create(), module) << "release at 0 must not destroy the module object";
}

TEST_F(ModuleFrame, DeleteModuleClearsThePointerSoThatTheNextCreateTakesItsArguments) {
    module->deleteModule();
    module = loaded.create(nullptr, L"another");
    EXPECT_EQ(module->moduleName(), OdString(L"another"));
    EXPECT_EQ(module->sysData(), nullptr);
}

TEST_P(ModuleInMode, RegistersOptionsUnlessTheModeIsOneAndDrawingPropertiesAlways) {
    AppWithMode app(GetParam());
    module->initApp();
    EXPECT_EQ(isRegistered(L"QPREF"), GetParam() != 1);
    EXPECT_TRUE(isRegistered(L"DWGPROPS"));
    module->uninitApp();
    EXPECT_FALSE(isRegistered(L"QPREF"));
    EXPECT_FALSE(isRegistered(L"DWGPROPS"));
}
INSTANTIATE_TEST_SUITE_P(Modes, ModuleInMode, testing::Values(0, 1, 2, -1));

TEST_F(ModuleFrame, WithModeOneAtTheEndOptionsIsNotRemoved) {
    AppWithMode app(0);
    module->initApp();
    app.mode = 1;
    module->uninitApp();
    EXPECT_TRUE(isRegistered(L"QPREF")) << "the mode is asked anew at the end";
    odedRegCmds()->removeCmd(odedRegCmds()->lookupCmd(L"QPREF").get());
}

TEST_F(ModuleFrame, CommandsCarryTheirGroupsAndIgnoreCounting) {
    AppWithMode app(0);
    module->initApp();
    const OdEdCommandPtr options = odedRegCmds()->lookupCmd(L"QPREF");
    const OdEdCommandPtr properties = odedRegCmds()->lookupCmd(L"DWGPROPS");
    EXPECT_EQ(options->groupName(), OdString(L"QPREF"));
    EXPECT_EQ(properties->groupName(), OdString(L"dwgPropsDlg_class"));
    EXPECT_EQ(options->globalName(), OdString(L"QPREF"));
    EXPECT_EQ(properties->globalName(), OdString(L"DWGPROPS"));
    for (OdEdCommand* command : {options.get(), properties.get()}) {
        const long before = command->numRefs();
        command->addRef();
        EXPECT_EQ(command->numRefs(), before);
        command->release();
        command->release();
        EXPECT_EQ(command->numRefs(), before);
    }
    module->uninitApp();
}

TEST_F(ModuleFrame, LeavesTheOtherPropertiesOfItsCommandsToTheirBase) {
    AppWithMode app(0);
    module->initApp();
    for (const wchar_t* name : {L"QPREF", L"DWGPROPS"}) {
        const OdEdCommandPtr command = odedRegCmds()->lookupCmd(name);
        EXPECT_EQ(command->localName(), command->globalName());
        EXPECT_EQ(command->module(), nullptr);
        EXPECT_EQ(command->flags(), 0);
    }
    module->uninitApp();
}

TEST_F(ModuleFrame, RemovesDrawingPropertiesByTheirNamesThroughAFreshObject) {
    AppWithMode app(1);
    NamesakeOfProperties namesake;
    odedRegCmds()->addCommand(&namesake);
    const std::uint64_t before = odrxAllocCount();
    module->uninitApp();
    EXPECT_FALSE(isRegistered(L"DWGPROPS")) << "the stack finds the command by group and global name";
    EXPECT_EQ(odrxAllocCount(), before + 1);
}

TEST_F(ModuleFrame, OptionsWithoutADocumentReturnsAtOnceAndClearsTheContext) {
    AppWithMode app(0);
    NoDocuments documents;
    ContextKept context;
    module->initApp();
    odedRegCmds()->lookupCmd(L"QPREF")->execute(&context);
    EXPECT_EQ(documents.contextSeen, &context) << "the context stands while the command runs";
    EXPECT_EQ(standin::registry().commandContext, nullptr);
    module->uninitApp();
}

TEST_F(ModuleFrame, OptionsTakesOneBlockAtEveryCall) {
    AppWithMode app(0);
    NoDocuments documents;
    ContextKept context;
    module->initApp();
    const std::uint64_t before = odrxAllocCount();
    for (int i = 0; i < 3; ++i)
        odedRegCmds()->lookupCmd(L"QPREF")->execute(&context);
    EXPECT_EQ(odrxAllocCount(), before + 3);
    module->uninitApp();
}

TEST_F(ModuleFrame, OptionsRunsOnRawBytesThatAreNeverFreed) {
    AppWithMode app(0);
    NoDocuments documents;
    ContextKept context;
    module->initApp();
    AllocationWatch watch;
    for (int i = 0; i < 3; ++i)
        odedRegCmds()->lookupCmd(L"QPREF")->execute(&context);
    ASSERT_EQ(watch.blocks.size(), 3u);
    for (const AllocationWatch::Block& block : watch.blocks) {
        EXPECT_EQ(block.size, 32u);
        EXPECT_FALSE(block.freed);
        EXPECT_EQ(std::count(block.bytes, block.bytes + 32, AllocationWatch::filling), 32)
            << "no constructor has run on the block, and nothing else has written to it";
    }
    module->uninitApp();
}

TEST_F(ModuleFrame, TheObjectsOfDrawingPropertiesAreNeverFreed) {
    AppWithMode app(0);
    AllocationWatch watch;
    module->initApp();
    module->uninitApp();
    ASSERT_EQ(watch.blocks.size(), 2u) << "one to register, a fresh one to remove it by";
    for (const AllocationWatch::Block& block : watch.blocks) {
        EXPECT_EQ(block.size, sizeof(OdEdCommand)) << "nothing beyond what every command has";
        EXPECT_FALSE(block.freed);
    }
}

TEST_F(ModuleFrame, RegistersOptionsBeforeDrawingProperties) {
    AppWithMode app(0);
    module->initApp();
    const std::vector<OdString> names = odedRegCmds()->globalNames();
    ASSERT_EQ(names.size(), 2u);
    EXPECT_EQ(names[0], OdString(L"QPREF"));
    EXPECT_EQ(names[1], OdString(L"DWGPROPS"));
    module->uninitApp();
}

TEST_F(ModuleFrame, GivesBackTheApplicationAlsoWhenItsModeCannotBeAsked) {
    AppWithMode app(0);
    module->initApp();
    module->uninitApp();
    EXPECT_EQ(app.AddRef(), 2) << "after start and end";
    app.Release();
    app.fails = true;
    EXPECT_THROW(module->initApp(), OdError);
    EXPECT_EQ(app.AddRef(), 2) << "after an exception";
    app.Release();
    EXPECT_FALSE(isRegistered(L"DWGPROPS"));
}

// The host is required to offer the interface: the module does not test for it.
TEST_F(ModuleFrame, EndsInANullCallWithoutAnApplicationOrItsInterface) {
    testing::GTEST_FLAG(death_test_style) = "threadsafe";
    EXPECT_DEATH(module->initApp(), "");
    EXPECT_DEATH(module->uninitApp(), "");
    FixtureHost host;
    host.withhold(typeid(IAppInterior));
    EXPECT_DEATH(module->initApp(), "");
}

TEST_F(ModuleFrame, DrawingPropertiesRunInTheirContextAndClearIt) {
    FixtureHost host;
    host.openDocument(OdDbDatabase::createEmpty());
    ContextKept context;
    OdEdCommandContext* seen = nullptr;
    module->initApp();
    QTimer::singleShot(0, qApp, [&seen] {
        seen = standin::registry().commandContext;
        if (QWidget* const dialog = QApplication::activeModalWidget())
            dialog->close();
    });
    odedRegCmds()->lookupCmd(L"DWGPROPS")->execute(&context);
    EXPECT_EQ(seen, &context) << "while the dialog is open";
    EXPECT_EQ(standin::registry().commandContext, nullptr);
    module->uninitApp();
}

TEST_F(ModuleFrame, AnExceptionLeavesBothCommandsWithTheirContextSet) {
    AppWithMode app(0);
    NoDocuments documents;
    documents.fails = true;
    ContextKept context;
    module->initApp();
    EXPECT_THROW(odedRegCmds()->lookupCmd(L"QPREF")->execute(&context), OdError);
    EXPECT_EQ(standin::registry().commandContext, &context);
    setCtx(nullptr);
    EXPECT_THROW(odedRegCmds()->lookupCmd(L"DWGPROPS")->execute(&context), OdError) << "there is no drawing";
    EXPECT_EQ(standin::registry().commandContext, &context);
    module->uninitApp();
}
