// A list of directories on its way between host and page: the elements that the page makes, and the item that
// takes a list out of a variant and puts it back.
#include "host/param.h"
#include "options/pages/directories/std_dir_info.h"
#include "options/pages/directories/std_dir_item.h"
#include "options/pages/directories/std_dir_list.h"
#include "tests/support/fixture_host.h"

#include <gtest/gtest.h>

namespace {

Ref<IStdDirInfo> made(const wchar_t* path) {
    return Ref<IStdDirInfo>::take(new_StdDirInfo(".Local", path, 1));
}

Ref<StdDirList> listWith(std::initializer_list<const wchar_t*> paths) {
    const auto list = Ref<StdDirList>::share(new StdDirList);
    for (const wchar_t* path : paths)
        list->append(made(path).get());
    return list;
}

CKWVariant variantOf(const Ref<StdDirList>& list) {
    CKWVariant value;
    value = static_cast<IKWUnknown*>(list.get());
    return value;
}

std::vector<std::wstring> pathsOf(const Ref<StdDirList>& list) {
    std::vector<std::wstring> paths;
    for (const Ref<IStdDirInfo>& info : elementsOf(list))
        paths.push_back(info->GetPath());
    return paths;
}

std::int64_t countOf(StdDirList* list) {
    list->AddRef();
    return list->Release();
}

// An item whose Load and Store are those of the base.
class PlainItem : public CStdDirItem {
public:
    using Base = CStdParamItem<_TWrapper<StdDirList>>;
    int Load(IKWUnknown* source) override { return Base::Load(source); }
    int Store(IKWUnknown* source) override { return Base::Store(source); }
};

using Paths = std::vector<std::wstring>;

class DirLists : public testing::Test {
protected:
    FixtureHost host;
};

} // namespace

TEST_F(DirLists, AnElementIsMadeWithOneReferenceAndItsTexts) {
    IStdDirInfo* info = new_StdDirInfo("Key", L"/path", 3);
    EXPECT_STREQ(info->GetKey(), "Key");
    EXPECT_STREQ(info->GetPath(), L"/path");
    EXPECT_EQ(info->GetEditable(), 3);
    EXPECT_EQ(info->AddRef(), 2);
    EXPECT_EQ(info->Release(), 1);
    EXPECT_EQ(info->Release(), 0);
}

TEST_F(DirLists, NullTextsGiveEmptyOnes) {
    const auto info = Ref<IStdDirInfo>::take(new_StdDirInfo(nullptr, nullptr, 0));
    EXPECT_STREQ(info->GetKey(), "");
    EXPECT_STREQ(info->GetPath(), L"");
    info->SetPath(L"/path");
    EXPECT_STREQ(info->GetPath(), L"/path");
    info->SetPath(nullptr);
    EXPECT_STREQ(info->GetPath(), L"");
}

TEST_F(DirLists, AnElementAnswersItsTwoInterfacesAndNothingElse) {
    const Ref<IStdDirInfo> info = made(L"/path");
    void* found = &found;
    EXPECT_EQ(info->QueryInterface(typeid(IParam), &found), 0);
    EXPECT_EQ(found, nullptr);
    EXPECT_EQ(queryFor<IStdDirInfo>(info.get()).get(), info.get());
    EXPECT_EQ(queryFor<IKWUnknown>(info.get()).get(), static_cast<IKWUnknown*>(info.get()));
    EXPECT_EQ(info->AddRef(), 2) << "what was handed out is given back";
    info->Release();
}

TEST_F(DirLists, AnItemTakesTheListOutOfAVariantWithAReference) {
    const Ref<StdDirList> list = listWith({L"/a"});
    {
        CStdDirItem item;
        item.SetValue(variantOf(list));
        EXPECT_EQ(item.list.get(), list.get());
        EXPECT_EQ(countOf(list.get()), 2);
    }
    EXPECT_EQ(countOf(list.get()), 1);
}

TEST_F(DirLists, AnItemMayTakeTheListThatItAlreadyHolds) {
    CStdDirItem item;
    item.SetValue(variantOf(listWith({L"/a"})));
    CKWVariant value;
    EXPECT_EQ(item.GetValue(value), 1);
    item.SetValue(value);
    value.Clear();
    EXPECT_EQ(pathsOf(item.list), Paths{L"/a"});
    EXPECT_EQ(countOf(item.list.get()), 1);
}

TEST_F(DirLists, AnEmptyVariantLeavesNoList) {
    CStdDirItem item;
    item.SetValue(variantOf(listWith({L"/a"})));
    item.SetValue(CKWVariant());
    EXPECT_FALSE(item.list);
    CKWVariant value;
    EXPECT_EQ(item.GetValue(value), 1);
    EXPECT_EQ(static_cast<IKWUnknown*>(value), nullptr);
}

TEST_F(DirLists, ClearingAnItemGivesItANewEmptyList) {
    CStdDirItem item;
    const Ref<StdDirList> list = listWith({L"/a"});
    item.SetValue(variantOf(list));
    item.ClearValue();
    ASSERT_TRUE(item.list);
    EXPECT_NE(item.list.get(), list.get());
    EXPECT_EQ(item.list->size(), 0);
    EXPECT_EQ(countOf(list.get()), 1);
}

TEST_F(DirLists, AnItemReadsAndWritesTheHostsListOfItsKey) {
    host.stdDirs().set("Fonts", {L"/f", L"/g"});
    CStdDirItem item;
    item.key = "Fonts";
    EXPECT_EQ(item.Load(theOnlyIApp), 1);
    EXPECT_EQ(pathsOf(item.list), (Paths{L"/f", L"/g"}));
    appendTo(item.list, made(L"/h"));
    EXPECT_EQ(item.Store(theOnlyIApp), 1);
    EXPECT_EQ(host.stdDirs().paths("Fonts"), (Paths{L"/f", L"/g", L"/h"}));
}

TEST_F(DirLists, AReadThatFailsLeavesAnEmptyList) {
    CStdDirItem item;
    item.key = "Missing";
    item.SetValue(variantOf(listWith({L"/a"})));
    EXPECT_EQ(item.Load(theOnlyIApp), 0);
    ASSERT_TRUE(item.list);
    EXPECT_EQ(item.list->size(), 0);
}

TEST_F(DirLists, WithoutTheInterfaceReadAndWriteReturnZero) {
    host.withhold(typeid(IStdDirs));
    CStdDirItem item;
    EXPECT_EQ(item.Load(theOnlyIApp), 0);
    EXPECT_EQ(item.Store(theOnlyIApp), 0);
    EXPECT_EQ(item.Store(nullptr), 0);
}

TEST_F(DirLists, TheBaseReadsAndWritesThroughAParameterNode) {
    PlainItem item;
    item.key = "Paths";
    item.SetValue(variantOf(listWith({L"/a"})));
    EXPECT_EQ(item.Store(&host.plain()), 1);
    PlainItem other;
    other.key = "Paths";
    EXPECT_EQ(other.Load(&host.plain()), 1);
    EXPECT_EQ(pathsOf(other.list), Paths{L"/a"});
    other.key = "Missing";
    EXPECT_EQ(other.Load(&host.plain()), 0);
    EXPECT_EQ(other.list->size(), 0);
    EXPECT_EQ(other.Load(nullptr), 0);
    EXPECT_EQ(other.Store(nullptr), 0);
}

TEST_F(DirLists, CopiesOfAnItemShareTheList) {
    CStdDirItem item;
    item.SetValue(variantOf(listWith({L"/a"})));
    const CStdDirItem copy = item;
    EXPECT_EQ(copy.list.get(), item.list.get());
    EXPECT_EQ(countOf(item.list.get()), 2);
}

TEST_F(DirLists, OnlyTheVeryObjectIsRemoved) {
    const Ref<StdDirList> list = listWith({L"/a", L"/a", L"/b"});
    const Ref<IStdDirInfo> second = elementsOf(list)[1];
    removeFrom(list, made(L"/a").get());
    EXPECT_EQ(list->size(), 3);
    removeFrom(list, second.get());
    EXPECT_EQ(pathsOf(list), (Paths{L"/a", L"/b"}));
    EXPECT_EQ(second->AddRef(), 2);
    second->Release();
}

TEST_F(DirLists, AMissingOrClosedListCountsAsEmptyAndTakesNothing) {
    const Ref<StdDirList> none;
    appendTo(none, made(L"/a"));
    removeFrom(none, made(L"/a").get());
    EXPECT_TRUE(elementsOf(none).empty());
    const Ref<StdDirList> closed = listWith({L"/a"});
    closed->close();
    const Ref<IStdDirInfo> offered = made(L"/b");
    appendTo(closed, offered);
    EXPECT_EQ(offered->AddRef(), 2) << "nobody else holds it";
    offered->Release();
    removeFrom(closed, offered.get());
    EXPECT_TRUE(elementsOf(closed).empty());
}
