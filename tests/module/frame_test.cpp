// The module as the host loads it: entry points, module object, registration of the two commands.
#include "host/app.h"
#include "host/documents.h"
#include "standin/registry.h"
#include "tests/module/loaded_module.h"

#include <gtest/gtest.h>

namespace {

// An application that knows its mode and nothing else.
class AppWithMode : public CKWUnknownImpl<IAppInterior> {
public:
    explicit AppWithMode(int modeToTell) : mode(modeToTell) {
        AddRef();
        theOnlyIApp = this;
    }
    ~AppWithMode() override { theOnlyIApp = nullptr; }
    const wchar_t* rootDirectory() override { return L""; }
    int applicationMode() override { return mode; }
    int mode;
};

class NoDocuments : public HostDocumentManager {
public:
    NoDocuments() { standin::registry().documents = this; }
    ~NoDocuments() override { standin::registry().documents = nullptr; }
    HostDocument* currentDocument() override { return nullptr; }
    HostCommandIO* fallbackIO() override { return nullptr; }
    HostVarService* varService() override { return nullptr; }
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
    properties->release();
    EXPECT_EQ(properties->globalName(), OdString(L"DWGPROPS")) << "release does nothing";
    module->uninitApp();
}

TEST_F(ModuleFrame, OptionsWithoutADocumentReturnsAtOnceAndClearsTheContext) {
    AppWithMode app(0);
    NoDocuments documents;
    ContextKept context;
    module->initApp();
    odedRegCmds()->lookupCmd(L"QPREF")->execute(&context);
    EXPECT_EQ(standin::registry().commandContext, nullptr);
    module->uninitApp();
}
