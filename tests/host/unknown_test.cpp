// Reference counting, the question for interfaces, and the way to the application's services.
#include "host/app.h"
#include "host/std_dirs.h"

#include "tests/support/fixture_host.h"

#include <gtest/gtest.h>

namespace {

class Entry : public CKWUnknownImpl<IStdDirInfo> {
public:
    explicit Entry(bool* goneFlag = nullptr) : gone(goneFlag) {}
    ~Entry() override {
        if (gone)
            *gone = true;
    }
    const char* GetKey() override { return ""; }
    const wchar_t* GetPath() override { return L""; }
    int GetEditable() override { return 0; }
    void SetPath(const wchar_t*) override {}

private:
    bool* gone;
};

TEST(UnknownTest, ANewObjectStartsAtZeroAndGoesWithItsLastReference) {
    bool gone = false;
    auto* entry = new Entry(&gone);
    EXPECT_EQ(entry->AddRef(), 1);
    EXPECT_EQ(entry->AddRef(), 2);
    EXPECT_EQ(entry->Release(), 1);
    EXPECT_FALSE(gone);
    EXPECT_EQ(entry->Release(), 0);
    EXPECT_TRUE(gone);
}

TEST(UnknownTest, AKnownInterfaceIsHandedOutWithAReference) {
    const auto entry = Ref<Entry>::share(new Entry);
    void* found = nullptr;
    EXPECT_EQ(entry->QueryInterface(typeid(IStdDirInfo), &found), 1);
    EXPECT_EQ(found, static_cast<IStdDirInfo*>(entry.get()));
    EXPECT_EQ(Ref<IStdDirInfo>::take(static_cast<IStdDirInfo*>(found)).get(), entry.get());
    EXPECT_EQ(entry->AddRef(), 2) << "the reference was given back";
    EXPECT_EQ(entry->Release(), 1);
    EXPECT_EQ(entry->QueryInterface(typeid(IKWUnknown), nullptr), 1) << "the answer alone adds none";
    EXPECT_EQ(entry->AddRef(), 2);
    EXPECT_EQ(entry->Release(), 1);
}

TEST(UnknownTest, AnUnknownInterfaceStoresNull) {
    const auto entry = Ref<Entry>::share(new Entry);
    int something = 0;
    void* found = &something;
    EXPECT_EQ(entry->QueryInterface(typeid(IProfile), &found), 0);
    EXPECT_EQ(found, nullptr);
}

// Type information as another library, or a local class of it, has it under a name.
class TypeInfoOfAnother : public std::type_info {
public:
    explicit TypeInfoOfAnother(const char* markedName) : std::type_info(markedName) {}
};

TEST(UnknownTest, AnEqualNameFromAnotherLibraryMatchesButNotThatOfALocalType) {
    const auto entry = Ref<Entry>::share(new Entry);
    const std::string name = typeid(IStdDirInfo).name();
    const std::string markedName = "*" + name;
    const TypeInfoOfAnother library(name.c_str()), local(markedName.c_str());
    EXPECT_STREQ(local.name(), name.c_str()) << "the mark of a local type does not show in its name";
    EXPECT_EQ(entry->QueryInterface(library, nullptr), 1);
    EXPECT_EQ(entry->QueryInterface(local, nullptr), 0);
}

TEST(UnknownTest, AReferenceCountsThroughCopiesAndMoves) {
    bool gone = false;
    auto first = Ref<IStdDirInfo>::share(new Entry(&gone));
    Ref<IStdDirInfo> second = first;
    Ref<IKWUnknown> third = second;
    first = nullptr;
    second = Ref<IStdDirInfo>();
    EXPECT_FALSE(gone);
    Ref<IKWUnknown> fourth = std::move(third);
    EXPECT_FALSE(third);
    fourth = nullptr;
    EXPECT_TRUE(gone);
}

TEST(ApplicationObjectTest, EachServiceIsNullWithoutAnApplication) {
    FixtureHost host;
    host.withholdApplication();
    EXPECT_FALSE(appService<IAppInterior>());
    EXPECT_FALSE(appService<IProfile>());
    EXPECT_FALSE(appService<IConfigParam>());
    EXPECT_FALSE(appService<IIOParams>());
    EXPECT_FALSE(appService<IStdDirs>());
    EXPECT_FALSE(appService<IStdPapersParam>());
}

TEST(ApplicationObjectTest, ALookupLeavesTheCountOfTheApplicationAsItWas) {
    FixtureHost host;
    const std::int64_t before = theOnlyIApp->AddRef();
    EXPECT_TRUE(appService<IProfile>());
    EXPECT_FALSE(appService<IStdDirInfo>());
    EXPECT_EQ(theOnlyIApp->Release(), before - 1);
}

TEST(HostFunctionsTest, TranslationTakesBothWidthsAndLeavesUnknownTexts) {
    FixtureHost host;
    host.translations[L"Files"] = L"Dateien";
    EXPECT_STREQ(Supp_Translate(L"Files"), L"Dateien");
    EXPECT_STREQ(Supp_Translate("Files"), L"Dateien");
    EXPECT_STREQ(Supp_Translate(L"Other"), L"Other");
}

TEST(HostFunctionsTest, HelpNoticesAndBoxesReachTheHost) {
    FixtureHost host;
    host.answer(EV_MB_YES);
    const auto help = Ref<IHelpService>::take(Get_IHelpService());
    help->showTopic("IDH_X");
    const auto events = Ref<IEvents>::take(Get_IEvents());
    events->notify(12, L"text", 0, 7);
    using host_qt_ui_core::QHostMessageBox;
    EXPECT_EQ(QHostMessageBox::question(QStringLiteral("t"), QStringLiteral("q"), EV_MB_YES | EV_MB_NO),
              EV_MB_YES);
    EXPECT_EQ(QHostMessageBox::critical(QStringLiteral("t"), QStringLiteral("c"), EV_MB_OK), EV_MB_OK);
    EXPECT_EQ(host.helpTopics(), QStringList{QStringLiteral("IDH_X")});
    EXPECT_EQ(host.notices().at(0).kind, 12);
    EXPECT_EQ(host.messages.at(0).buttons, EV_MB_YES | EV_MB_NO);
    EXPECT_EQ(host.messages.at(1).kind, standin::MessageKind::Critical);
}

TEST(HostFunctionsTest, HelpIsShownOrWithoutAServicePassedOver) {
    FixtureHost host;
    showHelp("IDH_X");
    EXPECT_EQ(host.helpTopics(), QStringList{QStringLiteral("IDH_X")});
    standin::registry().help = nullptr;
    showHelp("IDH_Y");
    EXPECT_EQ(host.helpTopics(), QStringList{QStringLiteral("IDH_X")});
}

TEST(HostFunctionsTest, TheCurrentDocumentIsNullWithoutAManagerOrADocument) {
    FixtureHost host;
    EXPECT_EQ(currentDocument(), nullptr);
    const HostDocument* const opened = &host.openDocument();
    EXPECT_EQ(currentDocument(), opened);
    standin::registry().documents = nullptr;
    EXPECT_EQ(currentDocument(), nullptr);
}

TEST(HostFunctionsTest, AChangeOfThemeIsToldToTheWatcher) {
    FixtureHost host;
    int changes = 0;
    QObject context;
    QObject::connect(hostGetQtStyleManager()->themeWatcher(),
                     &hostui::qt::style::hostQtThemeChangeWatcher::clicked, &context, [&] { ++changes; });
    ASSERT_EQ(hostGetQtStyleManager()->themeNumber(), 0);
    EXPECT_EQ(changes, 0);
    host.setTheme(1);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(hostGetQtStyleManager()->themeNumber(), 1);
}

} // namespace
