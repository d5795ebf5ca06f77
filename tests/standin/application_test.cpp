// The application object over real files: what a module finds there and what is kept for the user.
#include "standin/params/application.h"

#include "host/app.h"
#include "host/property_names.h"
#include "host/std_dirs.h"
#include "host/text.h"
#include "host/typed_reads.h"
#include "standin/params/dir_entry.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using standin::Application;

namespace {

void writeText(const QString& path, const QByteArray& text) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
}

QByteArray readText(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

template <class I> Ref<IParam> sectionOf(const char* path, int create = 0) {
    return openChild(appService<I>().get(), path, create);
}

void setInteger(IParam* node, const char* name, int value) {
    const CKWVariant variant(value, kVtInt);
    ASSERT_TRUE(node);
    EXPECT_EQ(node->setValue(name, &variant), 1);
}

class ApplicationTest : public testing::Test {
protected:
    QTemporaryDir dir;
    QString data = dir.filePath(QStringLiteral("data")), root = dir.filePath(QStringLiteral("root"));
    QStringList problems;
    int filesOpened = 0;
    std::unique_ptr<Application> application;

    void SetUp() override {
        QDir().mkpath(data);
        ship("preftree", "PrefTree:\n  Row: {Name: !wide \"Row\", Default: 1}\n");
        ship("formats", "Raster: {Format1: \"png\"}\n"
                        "Formats:\n  png: {DefExt: \"png\", Secret: 5, Options: {Depth: 8}}\n");
        ship("papers", "Paper00000001: {Name: !wide \"A4\", Size: !rsize [210, 297], Secret: 3}\n");
        ship("stddirs",
             "StdDirsDescriptions:\n  Fonts: {Name: !wide \"Fonts\"}\n  Empty: {Name: !wide \"Empty\"}\n"
             "Lists:\n"
             "  Fonts:\n    1: {path: \"${root}/fonts\", key: \".Local\", editable: 1, note: \"kept\"}\n"
             "    2: {path: \"${data}/fonts\", key: \".Shipped\", editable: 0, sub: {x: 1}}\n"
             "Dirs: {TemplatesDir: !wide \"${data}/templates\"}\n");
        start();
    }
    void ship(const char* name, const QByteArray& text) { writeText(shipped(name), text); }
    QString shipped(const char* name) const { return data + '/' + QLatin1String(name) + ".yaml"; }
    QString user(const char* name) const { return root + '/' + QLatin1String(name) + ".yaml"; }
    void start(const QString& rootDir = {}) {
        application.reset();
        standin::ApplicationSetup setup{data, rootDir.isEmpty() ? root : rootDir, {}, 3};
        setup.io.reportProblem = [this](const QString& text) { problems << text; };
        setup.io.newSaveFile = [this](const QString& path) {
            ++filesOpened;
            return std::make_unique<QSaveFile>(path);
        };
        application = std::make_unique<Application>(setup);
    }
    Ref<StdDirList> listOf(const char* key) {
        CKWVariant value;
        return appService<IStdDirs>()->GetDirList(key, &value) ? stdDirListOf(value) : Ref<StdDirList>();
    }
    std::vector<QString> pathsOf(const char* key) {
        std::vector<QString> paths;
        for (const auto& element : elementsOf(listOf(key)))
            paths.push_back(QString::fromWCharArray(element->GetPath()));
        return paths;
    }
    bool store(const char* key, const Ref<StdDirList>& list) {
        CKWVariant value;
        value = static_cast<IKWUnknown*>(list.get());
        return appService<IStdDirs>()->SetDirList(key, value);
    }
};

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

TEST_F(ApplicationTest, DirectoryListsNameTheRealFolders) {
    EXPECT_EQ(pathsOf("Fonts"), (std::vector<QString>{root + "/fonts", data + "/fonts"}));
    const auto elements = elementsOf(listOf("Fonts"));
    EXPECT_STREQ(elements[0]->GetKey(), ".Local");
    EXPECT_EQ(elements[0]->GetEditable(), 1);
    EXPECT_STREQ(elements[1]->GetKey(), ".Shipped");
    EXPECT_EQ(elements[1]->GetEditable(), 0);
}

TEST_F(ApplicationTest, ASectionWithoutAListFails) {
    CKWVariant value;
    EXPECT_FALSE(appService<IStdDirs>()->GetDirList("Empty", &value));
    EXPECT_FALSE(appService<IStdDirs>()->GetDirList("Missing", &value));
}

TEST_F(ApplicationTest, TheListThatIsHandedOutIsACopy) {
    const auto list = listOf("Fonts");
    elementsOf(list)[0]->SetPath(L"/elsewhere");
    list->append(standin::newDirEntry(".Local", L"/more", 1).get());
    EXPECT_EQ(pathsOf("Fonts").size(), 2u);
    EXPECT_EQ(pathsOf("Fonts")[0], root + "/fonts");
}

TEST_F(ApplicationTest, AListThatIsStoredReplacesTheOldOneAndIsThereAfterARestart) {
    const auto list = Ref<StdDirList>::share(new StdDirList);
    list->append(standin::newDirEntry(".Local", L"/a \"b\" %1 <i>\nc", 1).get());
    list->append(standin::newDirEntry(".Shipped", L"/z", 0).get());
    EXPECT_TRUE(store("Fonts", list));
    start();
    EXPECT_EQ(pathsOf("Fonts"), (std::vector<QString>{"/a \"b\" %1 <i>\nc", "/z"}));
    EXPECT_EQ(elementsOf(listOf("Fonts"))[1]->GetEditable(), 0);
    EXPECT_TRUE(store("Fonts", Ref<StdDirList>::share(new StdDirList)));
    start();
    EXPECT_TRUE(listOf("Fonts"));
    EXPECT_TRUE(pathsOf("Fonts").empty());
}

TEST_F(ApplicationTest, AStoredListStaysItsOwn) {
    const auto list = listOf("Fonts");
    EXPECT_TRUE(store("Fonts", list));
    elementsOf(list)[0]->SetPath(L"/elsewhere");
    EXPECT_EQ(pathsOf("Fonts")[0], root + "/fonts");
}

TEST_F(ApplicationTest, StoringTheListAsItIsWritesNothing) {
    EXPECT_TRUE(store("Fonts", listOf("Fonts")));
    EXPECT_TRUE(application->flush());
    EXPECT_EQ(filesOpened, 0);
}

TEST_F(ApplicationTest, EntriesThatMoveKeepWhatElseTheyHoldAndTheirPlaceWords) {
    const auto elements = elementsOf(listOf("Fonts"));
    const auto turned = Ref<StdDirList>::share(new StdDirList);
    turned->append(elements[1].get());
    turned->append(elements[0].get());
    EXPECT_TRUE(store("Fonts", turned));
    start();
    const auto first = sectionOf<IParam>("Lists/Fonts/1"), second = sectionOf<IParam>("Lists/Fonts/2");
    CXString note, path;
    readValue(second.get(), "note", &note);
    readValue(first.get(), "path", &path);
    EXPECT_STREQ(note.c_str(), "kept");
    EXPECT_STREQ(path.c_str(), "${data}/fonts");
    EXPECT_TRUE(openChild(first.get(), "sub"));
}

// What a move in the Options dialog does to two elements: it exchanges their paths and nothing else.
void exchangePaths(IStdDirInfo& one, IStdDirInfo& other) {
    const std::wstring path = one.GetPath();
    one.SetPath(other.GetPath());
    other.SetPath(path.c_str());
}

TEST_F(ApplicationTest, APathThatTheSectionHadKeepsItsOriginWhenItChangesPlacesWithALockedOne) {
    const auto list = listOf("Fonts");
    exchangePaths(*elementsOf(list)[0], *elementsOf(list)[1]);
    EXPECT_TRUE(store("Fonts", list));
    start();
    EXPECT_EQ(pathsOf("Fonts"), (std::vector<QString>{data + "/fonts", root + "/fonts"}));
    const auto stored = elementsOf(listOf("Fonts"));
    EXPECT_STREQ(stored[0]->GetKey(), ".Shipped");
    EXPECT_EQ(stored[0]->GetEditable(), 0) << "the shipped folder stays locked";
    EXPECT_STREQ(stored[1]->GetKey(), ".Local");
    EXPECT_EQ(stored[1]->GetEditable(), 1) << "the user's own isn't";
}

TEST_F(ApplicationTest, ANewPathThatChangesPlacesWithALockedOneIsTheUsers) {
    const auto list = listOf("Fonts");
    list->append(standin::newDirEntry(".Local", L"/new", 1).get());
    exchangePaths(*elementsOf(list)[1], *elementsOf(list)[2]);
    EXPECT_TRUE(store("Fonts", list));
    start();
    EXPECT_EQ(pathsOf("Fonts"), (std::vector<QString>{root + "/fonts", "/new", data + "/fonts"}));
    const auto stored = elementsOf(listOf("Fonts"));
    EXPECT_STREQ(stored[1]->GetKey(), ".Local");
    EXPECT_EQ(stored[1]->GetEditable(), 1);
    EXPECT_STREQ(stored[2]->GetKey(), ".Shipped");
    EXPECT_EQ(stored[2]->GetEditable(), 0);
}

TEST_F(ApplicationTest, ANewPathBelowTheRootMovesWithTheRoot) {
    const auto list = listOf("Fonts");
    list->append(standin::newDirEntry(".Local", (root + "/mine").toStdWString().c_str(), 1).get());
    list->append(standin::newDirEntry(".Local", (root + "less").toStdWString().c_str(), 1).get());
    EXPECT_TRUE(store("Fonts", list));
    EXPECT_TRUE(application->flush());
    EXPECT_TRUE(readText(user("stddirs")).contains("${root}/mine"));
    EXPECT_TRUE(readText(user("stddirs")).contains(root.toUtf8() + "less"));
}

TEST_F(ApplicationTest, APathThatHoldsOrLooksLikeAPlaceWordStaysAsTyped) {
    const std::vector<QString> typed{"/a/${data}/b", "${root}/mine", "${data}",
                                     "$HOME/x",      "$$/y",         "${rootless}"};
    const auto list = Ref<StdDirList>::share(new StdDirList);
    for (const QString& path : typed)
        list->append(standin::newDirEntry(".Local", path.toStdWString().c_str(), 1).get());
    EXPECT_TRUE(store("Fonts", list));
    EXPECT_TRUE(store("Fonts", listOf("Fonts")));
    start();
    EXPECT_EQ(pathsOf("Fonts"), typed);
}

TEST_F(ApplicationTest, AListIsNotStoredWithoutAList) {
    CKWVariant nothing;
    EXPECT_FALSE(appService<IStdDirs>()->SetDirList("Fonts", nothing));
    EXPECT_EQ(pathsOf("Fonts").size(), 2u);
}

TEST_F(ApplicationTest, FiveThousandPathsAndAVeryLongOneAreKept) {
    const auto list = Ref<StdDirList>::share(new StdDirList);
    for (int i = 0; i < 5000; ++i)
        list->append(standin::newDirEntry(".Local", (L"/folder" + std::to_wstring(i)).c_str(), 1).get());
    const std::wstring longPath = L"/" + std::wstring(4000, L'x');
    list->append(standin::newDirEntry(".Local", longPath.c_str(), 1).get());
    EXPECT_TRUE(store("Fonts", list));
    EXPECT_TRUE(store("Fonts", listOf("Fonts")));
    start();
    const auto paths = pathsOf("Fonts");
    ASSERT_EQ(paths.size(), 5001u);
    EXPECT_EQ(paths[5000], QString::fromStdWString(longPath));
    EXPECT_EQ(problems, QStringList());
}

TEST_F(ApplicationTest, ASingleDirectoryIsFoundByItsNameOrAsTheFirstOfItsList) {
    CKWVariant value;
    value.vt = kVtWideString;
    ASSERT_TRUE(appService<IStdDirs>()->GetDir("TemplatesDir", &value, 1));
    EXPECT_EQ(QString::fromWCharArray(value), data + "/templates");
    value.Clear();
    ASSERT_TRUE(appService<IStdDirs>()->GetDir("Fonts", &value, 1));
    EXPECT_EQ(QString::fromWCharArray(value), root + "/fonts");
    value.Clear();
    EXPECT_FALSE(appService<IStdDirs>()->GetDir("Missing", &value, 1));
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
