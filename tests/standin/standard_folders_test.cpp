// Standard folders of the application, over real files: what lists of them hand out, and what storing keeps.
#include "tests/standin/application_fixture.h"

namespace {

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

} // namespace
