// The page of standard directories: reading the host's lists into rows, and writing them on Apply.
#include "host/app.h"
#include "options/pages/directories/std_dir_info.h"
#include "options/pages/directories/std_dirs_page.h"
#include "options/pages/rows/clickable_label.h"
#include "options/pages/rows/page_rows.h"
#include "options/pages/rows/pref_widget.h"
#include "options/window/page_calls.h"
#include "tests/options/pages/std_dirs_fixture.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QIcon>

namespace {

using StdDirs = StdDirsFixture;

std::int64_t countOf(IStdDirInfo* info) {
    info->AddRef();
    return info->Release();
}

// The host's parameters and the section "StdDirsDescriptions" in one. It names a section "Locked" and doesn't
// open it.
struct LockedDescriptions : standin::MemParam {
    LockedDescriptions() {
        for (const char* name : {"Locked", "Open"})
            ::setValue(Ref<IParam>::take(standin::MemParam::openSection(name, 1)), "Name", CXStringW(name));
    }
    IParam* openSection(const char* name, int create) override {
        if (CXString("StdDirsDescriptions").Compare(name) == 0)
            return Ref<IParam>::share(this).detach();
        return CXString("Locked").Compare(name) == 0 ? nullptr : standin::MemParam::openSection(name, create);
    }
    IParamEnum* newEnum() override { return hasNames ? standin::MemParam::newEnum() : nullptr; }
    bool hasNames = true;
};

// Lists that the host itself has closed.
struct ClosedLists : FixtureStdDirs {
    bool GetDirList(const char*, CKWVariant* out) override {
        const auto list = Ref<StdDirList>::share(new StdDirList);
        list->append(Ref<IStdDirInfo>::take(new_StdDirInfo(".Local", L"/a", 1)).get());
        list->close();
        *out = static_cast<IKWUnknown*>(list.get());
        return true;
    }
};

// Puts these two in place of the host's own while it lives.
struct OtherHost {
    OtherHost(const Ref<standin::MemParam>& parameters, const Ref<FixtureStdDirs>& lists)
        : former(theOnlyIApp), hub(Ref<standin::ServiceHub>::share(new standin::ServiceHub)) {
        hub->add(parameters);
        hub->add(lists);
        theOnlyIApp = hub.get();
    }
    ~OtherHost() { theOnlyIApp = former; }
    IKWUnknown* former;
    Ref<standin::ServiceHub> hub;
};

} // namespace

TEST_F(StdDirs, SectionsAndPathsStandInTheOrderOfTheHost) {
    addSection("Support", L"Support files", {L"/z", L"/a"});
    addSection("Fonts", L"Fonts", {L"/f"});
    open();
    EXPECT_EQ(rowsBelow(page()), (QStringList{"Support files", "Fonts"}));
    EXPECT_EQ(rows(0), (QStringList{"/z", "/a"}));
    EXPECT_EQ(rows(1), QStringList{"/f"});
}

TEST_F(StdDirs, ASectionsNameIsTranslatedAndItsDescriptionIsNot) {
    host.translations[L"Fonts"] = L"Schriften";
    host.translations[L"About Fonts"] = L"falsch";
    addSection("Fonts", L"Fonts", {});
    open();
    EXPECT_EQ(rowsBelow(page()), QStringList{"Schriften"});
    EXPECT_EQ(section()->description, "About Fonts");
}

TEST_F(StdDirs, SectionItemsOfferAddAndKnowTheirIndex) {
    addSection("A", L"A", {L"/a"});
    addSection("B", L"B", {L"/b"});
    open();
    EXPECT_EQ(section(1)->nodeType, kNodeDirSection);
    EXPECT_EQ(section(1)->buttonMask, 4u);
    EXPECT_EQ(section(1)->numberValue, 1.0);
    EXPECT_EQ(section(1)->payload, nullptr);
    EXPECT_EQ(iconOf(section(1)).cacheKey(), iconOf(page()).cacheKey());
    EXPECT_FALSE(iconOf(section(1)).isNull());
}

TEST_F(StdDirs, PathItemsOfferEverythingAndCarryTheirElement) {
    addSection("A", L"A", {});
    addSection("B", L"B", {L"/b"});
    open();
    const TreeItem* path = section(1)->childItem(0);
    EXPECT_EQ(path->nodeType, kNodePath);
    EXPECT_EQ(path->buttonMask, 31u);
    EXPECT_EQ(path->numberValue, 1.0);
    EXPECT_EQ(path->payload, elementsOf(preferences->stdDirs[1].list)[0].get());
    EXPECT_EQ(path->description, "About B");
    EXPECT_EQ(iconOf(path).cacheKey(), iconOf(page()).cacheKey());
}

TEST_F(StdDirs, AnyItemOfTheTreeMayCarryThePage) {
    void (*const load)(Preferences&, QTreeWidgetItem*) = loadStdDirs;
    addSection("A", L"A", {L"/a"});
    open();
    QTreeWidgetItem* root = preferences->tree->topLevelItem(0);
    load(*preferences, root);
    EXPECT_EQ(rowsBelow(static_cast<TreeItem*>(root)), (QStringList{"Page", "A"}));
}

TEST_F(StdDirs, AnIconThatIsNoIconGivesAnEmptyOne) {
    addSection("A", L"A", {L"/a"});
    open();
    page()->setData(0, Qt::DecorationRole, QColor(Qt::red));
    loadStdDirs(*preferences, page());
    EXPECT_TRUE(iconOf(section(1)).isNull());
}

TEST_F(StdDirs, ASectionWithNoListShowsNoPathsAndNoDescription) {
    describe("A", L"A");
    host.stdDirs().setNoList("A");
    open();
    EXPECT_EQ(rowsBelow(page()), QStringList{"A"});
    EXPECT_EQ(section()->childCount(), 0);
    EXPECT_EQ(section()->description, "");
}

TEST_F(StdDirs, ASectionWithAnEmptyListKeepsItsDescription) {
    addSection("A", L"A", {});
    open();
    EXPECT_EQ(section()->childCount(), 0);
    EXPECT_EQ(section()->description, "About A");
}

TEST_F(StdDirs, ASectionThatTheHostDoesNotKnowGetsAnEmptyListThatTakesPaths) {
    describe("A", L"A");
    open();
    EXPECT_EQ(section()->description, "About A");
    select(section());
    add("/new");
    EXPECT_EQ(rows(), QStringList{"/new"});
    apply();
    EXPECT_EQ(stored("A"), QStringList{"/new"});
}

TEST_F(StdDirs, WithoutTheListsThePageIsLeftOutWithoutAMessage) {
    addSection("A", L"A", {L"/a"});
    host.withhold(typeid(IStdDirs));
    open();
    EXPECT_EQ(page()->childCount(), 0);
    apply();
    EXPECT_TRUE(host.messages.empty());
    EXPECT_TRUE(host.stdDirs().stored.empty());
}

TEST_F(StdDirs, WithoutTheDescriptionsThePageIsLeftOut) {
    host.stdDirs().set("A", {L"/a"});
    host.plain().removeEntry("StdDirsDescriptions");
    open();
    EXPECT_EQ(page()->childCount(), 0);
}

TEST_F(StdDirs, WithoutTheHostsParametersThePageIsLeftOut) {
    addSection("A", L"A", {L"/a"});
    host.withhold(typeid(IParam));
    open();
    EXPECT_EQ(page()->childCount(), 0);
    EXPECT_TRUE(preferences->stdDirs.empty());
}

TEST_F(StdDirs, APathThatIsNotEditableIsDisabledAndCannotBeSelected) {
    addSection("A", L"A", {L"/a", L"/b"});
    host.stdDirs().lists["A"]->append(Ref<IStdDirInfo>::take(new_StdDirInfo("Host", L"/fixed", 0)).get());
    open();
    TreeItem* fixed = row("/fixed");
    EXPECT_FALSE(fixed->isEnabled());
    EXPECT_FALSE(preferences->rowWidgets.value(fixed)->isEnabled());
    select(row("/a"));
    select(fixed);
    EXPECT_EQ(current(), row("/a"));
    whenDialogOpens([](QDialog& dialog) { clickOn(dialog, "cancelButton"); });
    QTest::mouseDClick(labelOf(fixed), Qt::LeftButton);
    EXPECT_EQ(dialogsOpened, 0);
    QTest::mouseDClick(labelOf(row("/a")), Qt::LeftButton);
    EXPECT_EQ(dialogsOpened, 1) << "as on the row beside it";
}

TEST_F(StdDirs, APathThatIsNotEditableIsPassedOverByTheKeyboardAndOffersNoMenu) {
    addSection("A", L"A", {L"/a"});
    host.stdDirs().lists["A"]->append(Ref<IStdDirInfo>::take(new_StdDirInfo("Host", L"/fixed", 0)).get());
    addSection("B", L"B", {});
    open();
    select(row("/a"));
    QTest::keyClick(preferences->tree, Qt::Key_Down);
    EXPECT_EQ(current(), section(1));
    select(row("/a"));
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(1, 1));
    QApplication::sendEvent(labelOf(row("/fixed")), &event);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(rows(), (QStringList{"/a", "/fixed"}));
}

TEST_F(StdDirs, ASectionThatCannotBeOpenedIsPassedOver) {
    open();
    const OtherHost other(Ref<LockedDescriptions>::share(new LockedDescriptions),
                          Ref<FixtureStdDirs>::share(&host.stdDirs()));
    loadStdDirs(*preferences, page());
    EXPECT_EQ(rowsBelow(page()), QStringList{"Open"});
    EXPECT_EQ(preferences->stdDirs.size(), 1u);
}

TEST_F(StdDirs, DescriptionsThatCannotBeListedLeaveThePageOut) {
    open();
    const auto descriptions = Ref<LockedDescriptions>::share(new LockedDescriptions);
    descriptions->hasNames = false;
    const OtherHost other(descriptions, Ref<FixtureStdDirs>::share(&host.stdDirs()));
    loadStdDirs(*preferences, page());
    EXPECT_EQ(page()->childCount(), 0);
    EXPECT_TRUE(preferences->stdDirs.empty());
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(StdDirs, AListThatTheHostHasClosedShowsNoPathsAndKeepsTheDescription) {
    open();
    describe("A", L"A");
    const auto parameters = Ref<standin::MemParam>::share(new standin::MemParam);
    Param_CopyTo(&host.plain(), parameters.get());
    const OtherHost other(parameters, Ref<FixtureStdDirs>::share(new ClosedLists));
    loadStdDirs(*preferences, page());
    ASSERT_EQ(page()->childCount(), 1);
    EXPECT_EQ(section()->childCount(), 0);
    EXPECT_EQ(section()->description, "About A");
    EXPECT_TRUE(preferences->stdDirs[0].list->isClosed());
}

TEST_F(StdDirs, ApplyWritesEverySectionInOrder) {
    addSection("B", L"B", {L"/b"});
    addSection("A", L"A", {L"/a"});
    open();
    apply();
    EXPECT_EQ(host.stdDirs().stored, (std::vector<std::string>{"B", "A"}));
    EXPECT_EQ(stored("B"), QStringList{"/b"});
}

TEST_F(StdDirs, ApplyComesAfterTheRasterFormatsAndBeforeThePapers) {
    addSection("A", L"A", {L"/a"});
    setValue(sectionOf(host.ioParams(), "Raster"), "Format1", "tif");
    sectionOf(host.ioParams(), "Formats\\tif");
    sectionOf(host.papers(), "P");
    open();
    std::vector<std::size_t> whenRaster, whenPapers;
    host.rules(host.ioParams()).changed = [&] { whenRaster.push_back(host.stdDirs().stored.size()); };
    host.rules(host.papers()).changed = [&] { whenPapers.push_back(host.stdDirs().stored.size()); };
    apply();
    host.rules(host.ioParams()).changed = nullptr;
    host.rules(host.papers()).changed = nullptr;
    ASSERT_FALSE(whenPapers.empty());
    EXPECT_EQ(whenPapers.front(), 1u);
    ASSERT_FALSE(whenRaster.empty());
    EXPECT_EQ(whenRaster.back(), 0u);
}

TEST_F(StdDirs, ApplyIsDroppedWhenTheListsAreGone) {
    addSection("A", L"A", {L"/a"});
    open();
    host.withhold(typeid(IStdDirs));
    apply();
    EXPECT_TRUE(host.stdDirs().stored.empty());
}

TEST_F(StdDirs, AListThatTheHostRefusesStopsNoOtherAndIsStoredByTheNextApply) {
    addSection("A", L"A", {L"/a"});
    addSection("B", L"B", {L"/b"});
    open();
    select(section(0));
    add("/new");
    select(section(1));
    add("/more");
    host.stdDirs().mayStore = [](const std::string& key) { return key != "A"; };
    apply();
    EXPECT_EQ(stored("A"), QStringList{"/a"});
    EXPECT_EQ(stored("B"), (QStringList{"/b", "/more"}));
    EXPECT_EQ(held(0), (QStringList{"/a", "/new"})) << "nothing is lost in the dialog";
    host.stdDirs().mayStore = nullptr;
    apply();
    EXPECT_EQ(stored("A"), (QStringList{"/a", "/new"}));
}

TEST_F(StdDirs, NamesAndPathsOfEveryFormSurviveApply) {
    const std::vector<std::wstring> paths{L"/quote\"s'", L"/%1 %2", L"/<b>bold</b>",         L"/two\nlines",
                                          L" /spaces ",  L"",       std::wstring(4000, L'x')};
    addSection("A", L"Name <i>with</i> \"%1\"", paths);
    open();
    EXPECT_EQ(section()->childCount(), int(paths.size()));
    EXPECT_EQ(rows()[0], "/quote\"s'");
    EXPECT_EQ(rows()[1], "/%1 %2");
    EXPECT_EQ(rows()[2], "/") << "meant: a row of this page ends at the first \"<\"";
    EXPECT_EQ(rowsBelow(page()), QStringList{"Name"});
    apply();
    EXPECT_EQ(host.stdDirs().paths("A"), paths);
}

TEST_F(StdDirs, FiveThousandPathsOpenAndApply) {
    std::vector<std::wstring> paths;
    for (int i = 0; i < 5000; ++i)
        paths.push_back(L"/path/" + std::to_wstring(i));
    addSection("A", L"A", paths);
    open();
    EXPECT_EQ(section()->childCount(), 5000);
    select(section());
    add("/path/4999");
    EXPECT_EQ(section()->childCount(), 5000) << "a duplicate of the last one";
    apply();
    EXPECT_EQ(host.stdDirs().paths("A"), paths);
}

TEST_F(StdDirs, TheDialogGivesBackEveryElementAtItsEnd) {
    addSection("A", L"A", {L"/a", L"/b"});
    open();
    const Ref<IStdDirInfo> first = elementsOf(preferences->stdDirs[0].list)[0];
    EXPECT_EQ(countOf(first.get()), 3) << "the list, the row and this test";
    const Ref<IStdDirInfo> second = elementsOf(preferences->stdDirs[0].list)[1];
    select(row("/a"));
    click(preferences->deleteButton);
    EXPECT_EQ(countOf(first.get()), 1) << "after the deletion";
    preferences.reset();
    EXPECT_EQ(countOf(second.get()), 1) << "at the end of the dialog";
}

TEST_F(StdDirs, ClearingTheTreeGivesBackTheElements) {
    addSection("A", L"A", {L"/a"});
    open();
    const Ref<IStdDirInfo> first = elementsOf(preferences->stdDirs[0].list)[0];
    preferences->rebuildTree(true);
    EXPECT_EQ(countOf(first.get()), 1);
    EXPECT_EQ(rows(), QStringList{"/a"});
}
