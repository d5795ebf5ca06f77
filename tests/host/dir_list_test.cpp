// The counted list classes that travel in a variant.
#include "host/dir_list.h"

#include <gtest/gtest.h>

namespace {

class Element : public CKWUnknownImpl<IStdDirInfo> {
public:
    explicit Element(int& liveElements) : live(liveElements) { ++live; }
    ~Element() override { --live; }
    const char* GetKey() override { return ".Local"; }
    const wchar_t* GetPath() override { return L"/a"; }
    int GetEditable() override { return 1; }
    void SetPath(const wchar_t*) override {}

private:
    int& live;
};

class DirListTest : public testing::Test {
protected:
    int live = 0;
    Ref<StdDirList> list = Ref<StdDirList>::share(new StdDirList);
    IStdDirInfo* append() {
        const auto element = Ref<IStdDirInfo>::share(new Element(live));
        list->append(element.get());
        return element.get();
    }
    std::vector<IStdDirInfo*> walk() {
        std::vector<IStdDirInfo*> found;
        const auto elements = Ref<CTEnum<IStdDirInfo*>>::take(list->newEnum());
        IStdDirInfo* element = nullptr;
        while (elements->Next(1, &element, nullptr))
            found.push_back(Ref<IStdDirInfo>::take(element).get());
        return found;
    }
};

TEST_F(DirListTest, ASingleNodePointsAtItself) {
    append();
    StdDirList::Node* node = list->headNode();
    EXPECT_EQ(node, list->tailNode());
    EXPECT_EQ(node->next, node);
    EXPECT_EQ(node->prev, node);
}

TEST_F(DirListTest, TheChainIsCircular) {
    for (int i = 0; i < 3; ++i)
        append();
    EXPECT_EQ(list->size(), 3);
    EXPECT_EQ(list->headNode()->prev, list->tailNode());
    EXPECT_EQ(list->tailNode()->next, list->headNode());
}

TEST_F(DirListTest, UnlinkingKeepsTheRingAndReleasesTheElement) {
    IStdDirInfo* first = append();
    IStdDirInfo* middle = append();
    IStdDirInfo* last = append();
    list->unlink(list->find(middle));
    EXPECT_EQ(walk(), (std::vector<IStdDirInfo*>{first, last}));
    list->unlink(list->find(last));
    EXPECT_EQ(list->tailNode()->next, list->headNode());
    list->unlink(list->find(first));
    EXPECT_EQ(list->headNode(), nullptr);
    EXPECT_EQ(list->size(), 0);
    EXPECT_EQ(live, 0);
}

TEST_F(DirListTest, FindingWhatIsNotThereGivesNull) {
    append();
    EXPECT_EQ(list->find(nullptr), nullptr);
}

TEST_F(DirListTest, AClosedListCountsAsEmptyAndTakesNothing) {
    append();
    list->close();
    EXPECT_EQ(live, 0);
    append();
    EXPECT_EQ(live, 0);
    EXPECT_EQ(list->size(), 0);
    EXPECT_TRUE(walk().empty());
}

TEST_F(DirListTest, NextHandsOutUpToTheCountAndSaysHowMany) {
    for (int i = 0; i < 3; ++i)
        append();
    const auto elements = Ref<CTEnum<IStdDirInfo*>>::take(list->newEnum());
    IStdDirInfo* out[2] = {};
    int fetched = -1;
    EXPECT_TRUE(elements->Next(2, out, &fetched));
    EXPECT_EQ(fetched, 2);
    for (IStdDirInfo* element : out)
        Ref<IStdDirInfo>::take(element);
    EXPECT_TRUE(elements->Next(2, out, &fetched));
    EXPECT_EQ(fetched, 1);
    Ref<IStdDirInfo>::take(out[0]);
    EXPECT_FALSE(elements->Next(2, out, &fetched));
    EXPECT_EQ(fetched, 0);
}

TEST_F(DirListTest, SkipMovesForwardAndResetStartsAgain) {
    IStdDirInfo* first = append();
    IStdDirInfo* second = append();
    const auto elements = Ref<CTEnum<IStdDirInfo*>>::take(list->newEnum());
    IStdDirInfo* out = nullptr;
    elements->Skip(1);
    ASSERT_TRUE(elements->Next(1, &out, nullptr));
    EXPECT_EQ(Ref<IStdDirInfo>::take(out).get(), second);
    elements->Reset();
    ASSERT_TRUE(elements->Next(1, &out, nullptr));
    EXPECT_EQ(Ref<IStdDirInfo>::take(out).get(), first);
    elements->Skip(5);
    EXPECT_FALSE(elements->Next(1, &out, nullptr));
}

TEST_F(DirListTest, TheEnumeratorKeepsItsListAlive) {
    append();
    const auto elements = Ref<CTEnum<IStdDirInfo*>>::take(list->newEnum());
    list = nullptr;
    EXPECT_EQ(live, 1);
    IStdDirInfo* out = nullptr;
    ASSERT_TRUE(elements->Next(1, &out, nullptr));
    Ref<IStdDirInfo>::take(out);
}

TEST_F(DirListTest, AVariantCarriesTheListAndHoldsAReference) {
    append();
    CKWVariant value;
    value = static_cast<IKWUnknown*>(list.get());
    StdDirList* carried = list.get();
    list = nullptr;
    EXPECT_EQ(live, 1);
    EXPECT_EQ(stdDirListOf(value).get(), carried);
    value.Clear();
    EXPECT_EQ(live, 0);
    EXPECT_FALSE(stdDirListOf(value));
}

TEST_F(DirListTest, TheListAnswersNothingButTheRootInterface) {
    EXPECT_TRUE(queryFor<IKWUnknown>(list.get()));
    EXPECT_FALSE(queryFor<IStdDirInfo>(list.get()));
}

} // namespace
