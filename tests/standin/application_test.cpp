// The application object over real files: what a module finds there and what is kept for the user.
#include "tests/standin/application_fixture.h"

namespace {

TEST_F(ApplicationTest, EveryServiceAnswersAndTheInteriorTellsRootAndMode) {
    EXPECT_EQ(hostqt::qString(appService<IAppInterior>()->rootDirectory()), root);
    EXPECT_EQ(appService<IAppInterior>()->applicationMode(), 3);
    EXPECT_TRUE(sectionOf<IConfigParam>("PrefTree/Row"));
    EXPECT_TRUE(sectionOf<IIOParams>("Formats\\png"));
    EXPECT_TRUE(sectionOf<IStdPapersParam>("Paper00000001"));
    EXPECT_TRUE(sectionOf<IParam>("StdDirsDescriptions"));
    EXPECT_TRUE(appService<IProfile>());
    EXPECT_EQ(problems, QStringList());
}

TEST_F(ApplicationTest, NamesOfBlanksOfAnyKindAreNoNamesOfProperties) {
    const auto names = appService<IPropertyNames>();
    for (const wchar_t* blank : {L"", L" ", L"\t", L"\u00a0\u2003"})
        EXPECT_FALSE(names->isName(blank));
    EXPECT_TRUE(names->isName(L" x "));
}

TEST_F(ApplicationTest, TheObjectIsGoneWithTheApplication) {
    application.reset();
    EXPECT_EQ(theOnlyIApp, nullptr);
    EXPECT_FALSE(appService<IProfile>());
}

TEST_F(ApplicationTest, LookingAtEverythingWritesNothing) {
    for (const Ref<IParam>& tree :
         {Ref<IParam>(appService<IConfigParam>()), Ref<IParam>(appService<IIOParams>()),
          Ref<IParam>(appService<IStdPapersParam>()), appService<IParam>()})
        EXPECT_FALSE(childNames(tree.get()).empty());
    EXPECT_FALSE(sectionOf<IProfile>("Cursor"));
    EXPECT_EQ(pathsOf("Fonts").size(), 2u);
    application.reset();
    EXPECT_EQ(filesOpened, 0);
    EXPECT_FALSE(QFile::exists(root));
}

TEST_F(ApplicationTest, TheOptionTreeCannotBeChanged) {
    const auto row = sectionOf<IConfigParam>("PrefTree/Row");
    const CKWVariant value(7, kVtInt);
    EXPECT_EQ(row->setValue("Default", &value), 0);
    EXPECT_EQ(row->createChild("New"), nullptr);
}

TEST_F(ApplicationTest, ABrokenOptionTreeIsToldOnceAndWhatCanBeReadIsThere) {
    ship("preftree", "PrefTree:\n  Row: {Default: 1}\n  Bad: [\n");
    start();
    ASSERT_EQ(problems.size(), 1);
    EXPECT_TRUE(problems[0].contains(QStringLiteral("preftree.yaml:")));
    EXPECT_TRUE(sectionOf<IConfigParam>("PrefTree/Row"));
}

TEST_F(ApplicationTest, AMissingOptionTreeIsTold) {
    QFile::remove(shipped("preftree"));
    start();
    ASSERT_EQ(problems.size(), 1);
    EXPECT_TRUE(problems[0].contains(QStringLiteral("preftree.yaml")));
}

TEST_F(ApplicationTest, AProfileValueIsThereAfterARestart) {
    setInteger(sectionOf<IProfile>("Dialogs\\QPref", 1).get(), "Width", 640);
    start();
    int width = 0;
    EXPECT_EQ(readValue(sectionOf<IProfile>("Dialogs\\QPref").get(), "Width", &width), 1);
    EXPECT_EQ(width, 640);
}

TEST_F(ApplicationTest, TheProfileOfTheSameRootIsTheSameTree) {
    setInteger(sectionOf<IProfile>("Cursor", 1).get(), "Size", 7);
    const auto byRoot = Ref<IProfile>::take(new_IProfileByRootDir(hostqt::cxStringW(root + "/.")));
    int size = 0;
    EXPECT_EQ(readValue(openChild(byRoot.get(), "Cursor").get(), "Size", &size), 1);
    EXPECT_EQ(byRoot.get(), appService<IProfile>().get());
}

TEST_F(ApplicationTest, AProfileOfAnotherRootIsATreeOfItsOwn) {
    const CXStringW other = hostqt::cxStringW(dir.filePath(QStringLiteral("other")));
    auto profile = Ref<IProfile>::take(new_IProfileByRootDir(other));
    ASSERT_TRUE(profile);
    setInteger(openChild(profile.get(), "Cursor", 1).get(), "Size", 9);
    EXPECT_FALSE(sectionOf<IProfile>("Cursor"));
    profile = nullptr;
    EXPECT_TRUE(QFile::exists(dir.filePath(QStringLiteral("other/profile.yaml"))));
}

TEST_F(ApplicationTest, ARootThatCanHoldNoFilesHasNoProfile) {
    EXPECT_EQ(new_IProfileByRootDir(CXStringW()), nullptr);
    EXPECT_EQ(new_IProfileByRootDir(hostqt::cxStringW(shipped("papers"))), nullptr);
}

TEST_F(ApplicationTest, TheShippedProfileDefaultsServeUntilTheUserHasAProfile) {
    ship("profile_defaults", "Profiles: {default: {}, Review: {}}\n");
    start();
    EXPECT_EQ(childNames(sectionOf<IProfile>("Profiles").get()),
              (std::vector<std::string>{"default", "Review"}));
    sectionOf<IProfile>("Profiles")->removeEntry("Review");
    start();
    EXPECT_EQ(childNames(sectionOf<IProfile>("Profiles").get()), std::vector<std::string>{"default"});
}

TEST_F(ApplicationTest, UnknownValuesAndSectionsOfAFormatSurvive) {
    setInteger(sectionOf<IIOParams>("Formats\\png").get(), "Enabled", 0);
    start();
    int secret = 0, depth = 0, enabled = 1;
    readValue(sectionOf<IIOParams>("Formats\\png").get(), "Secret", &secret);
    readValue(sectionOf<IIOParams>("Formats\\png\\Options").get(), "Depth", &depth);
    readValue(sectionOf<IIOParams>("Formats\\png").get(), "Enabled", &enabled);
    EXPECT_EQ(secret, 5);
    EXPECT_EQ(depth, 8);
    EXPECT_EQ(enabled, 0);
}

TEST_F(ApplicationTest, AThousandPapersAreOneWrite) {
    const auto papers = appService<IStdPapersParam>();
    papers->clear();
    for (int i = 1; i <= 1000; ++i) {
        CXString name;
        name.Format("Paper%08d", i);
        const auto paper = Ref<IParam>::take(papers->createChild(name.c_str()));
        setInteger(paper.get(), "Used", 1);
        CKWVariant size;
        size = tagRSIZE{double(i), 297.5};
        paper->setValue("Size", &size);
    }
    EXPECT_TRUE(application->flush());
    EXPECT_EQ(filesOpened, 1);
    start();
    EXPECT_EQ(childNames(appService<IStdPapersParam>().get()).size(), 1000u);
}

TEST_F(ApplicationTest, ARootThatCannotBeWrittenIsToldAndTheProgramGoesOn) {
    start(shipped("papers") + "/below");
    const auto list = listOf("Fonts");
    list->append(standin::newDirEntry(".Local", L"/x", 1).get());
    EXPECT_TRUE(store("Fonts", list));
    EXPECT_FALSE(application->flush());
    EXPECT_EQ(problems.size(), 1);
    EXPECT_EQ(pathsOf("Fonts").size(), 3u);
}

TEST_F(ApplicationTest, ABrokenListFileIsToldAndTheShippedListsServe) {
    application.reset();
    QDir().mkpath(root);
    writeText(user("stddirs"), "Lists: {Fonts: [");
    start();
    ASSERT_EQ(problems.size(), 1);
    EXPECT_TRUE(problems[0].contains(QStringLiteral("stddirs.yaml:1:")));
    EXPECT_EQ(pathsOf("Fonts").size(), 2u);
    EXPECT_TRUE(sectionOf<IParam>("StdDirsDescriptions"));
}

TEST_F(ApplicationTest, TheShippedDataOfTheWorkbenchServesWithoutAProblem) {
    data = QStringLiteral(SHIPPED_DATA_DIR);
    start();
    EXPECT_EQ(problems, QStringList());
    const auto described = childNames(sectionOf<IParam>("StdDirsDescriptions").get());
    EXPECT_FALSE(described.empty());
    for (const std::string& key : described)
        EXPECT_TRUE(listOf(key.c_str())) << key;
    EXPECT_FALSE(childNames(appService<IStdPapersParam>().get()).empty());
}

} // namespace
