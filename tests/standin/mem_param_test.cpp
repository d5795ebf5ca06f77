// Parameter trees in memory.
#include "standin/params/mem_param.h"

#include "host/typed_reads.h"
#include "tests/support/fixture_host.h"

#include <gtest/gtest.h>

namespace {

class MemParamTest : public testing::Test {
protected:
    Ref<IParam> root = Ref<IParam>::take(new_MemParam());
    Ref<IParam> open(const char* path, int create) {
        return Ref<IParam>::take(root->openSection(path, create));
    }
    template <class T> void set(const char* name, T value, IParam* node = nullptr) {
        CKWVariant variant;
        variant = value;
        ASSERT_EQ((node ? node : root.get())->setValue(name, &variant), 1);
    }
};

TEST_F(MemParamTest, OpeningAMissingSectionWithoutCreateGivesNullAndCreatesNothing) {
    EXPECT_FALSE(open("Missing", 0));
    EXPECT_FALSE(open("Missing\\Below", 0));
    EXPECT_TRUE(childNames(root.get()).empty());
}

TEST_F(MemParamTest, OneNodeObjectServesASectionForTheLifeOfTheTree) {
    IParam* first = open("Cursor", 1).get();
    EXPECT_EQ(open("Cursor", 0).get(), first);
    EXPECT_EQ(open("Cursor", 1).get(), first);
}

TEST_F(MemParamTest, PathsTakeBothDelimitersMixed) {
    IParam* deep = open("A\\B/C", 1).get();
    EXPECT_EQ(open("A/B\\C", 0).get(), deep);
    EXPECT_EQ(openChild(open("A", 0).get(), "B\\C").get(), deep);
}

TEST_F(MemParamTest, AnEmptyNameIsASectionOfItsOwn) {
    EXPECT_FALSE(open("", 0));
    const auto formats = open("Formats", 1);
    EXPECT_FALSE(open("Formats\\", 0));
    root->removeEntry("Formats\\");
    EXPECT_EQ(open("Formats", 0).get(), formats.get());
    EXPECT_NE(open("Formats\\", 1).get(), formats.get());
}

TEST_F(MemParamTest, ChildrenKeepTheOrderOfInsertion) {
    for (const char* name : {"z", "a", "m"})
        open(name, 1);
    root->removeEntry("a");
    open("b", 1);
    EXPECT_EQ(childNames(root.get()), (std::vector<std::string>{"z", "m", "b"}));
}

TEST_F(MemParamTest, TheEnumeratorKeepsItsNamesWhileTheTreeChanges) {
    open("one", 1);
    open("two", 1);
    const auto names = Ref<IParamEnum>::take(root->newEnum());
    const char* first = nullptr;
    ASSERT_EQ(names->next(1, &first, 0), 1);
    root->clear();
    const char* second = nullptr;
    EXPECT_EQ(names->next(1, &second, 0), 1);
    EXPECT_STREQ(first, "one");
    EXPECT_STREQ(second, "two");
    EXPECT_EQ(names->next(1, &second, 0), 0);
}

TEST_F(MemParamTest, ARemovedSectionStaysUsableForItsHolderAndComesBackEmpty) {
    const auto held = open("Paper", 1);
    set("Used", 1, held.get());
    root->removeEntry("Paper");
    int used = 0;
    EXPECT_EQ(readValue(held.get(), "Used", &used), 1);
    EXPECT_EQ(readValue(open("Paper", 1).get(), "Used", &used), 0);
}

TEST_F(MemParamTest, RemovingTakesPathsAndToleratesMissingEntries) {
    open("Formats\\PNG\\Options", 1);
    open("Formats\\BMP", 1);
    root->removeEntry("Formats\\GIF");
    root->removeEntry("Nothing\\Here");
    root->removeEntry("Formats\\PNG");
    EXPECT_EQ(childNames(open("Formats", 0).get()), std::vector<std::string>{"BMP"});
}

TEST_F(MemParamTest, ClearRemovesTheChildrenAndKeepsTheValues) {
    open("Child", 1);
    set("Value", 7);
    root->clear();
    int value = 0;
    EXPECT_TRUE(childNames(root.get()).empty());
    EXPECT_EQ(readValue(root.get(), "Value", &value), 1);
}

TEST_F(MemParamTest, CreateChildEmptiesASectionThatIsThere) {
    set("Used", 0, open("Paper", 1).get());
    const auto fresh = Ref<IParam>::take(root->createChild("Paper"));
    int used = 5;
    EXPECT_EQ(readValue(fresh.get(), "Used", &used), 0);
    EXPECT_EQ(childNames(root.get()).size(), 1u);
}

TEST_F(MemParamTest, AnIntegerIsNotReadAsARealSoTheDefaultStands) {
    set("Size", 3);
    double size = 0.5;
    EXPECT_EQ(readValue(root.get(), "Size", &size), 0);
    EXPECT_EQ(size, 0.5);
}

TEST_F(MemParamTest, ARequestForWideTextIsHonouredForEightBitText) {
    set("Name", "plain");
    CKWVariant request;
    request.vt = kVtWideString;
    ASSERT_EQ(root->getValue("Name", &request), 1);
    EXPECT_EQ(request.vt, kVtWideString);
    EXPECT_STREQ(static_cast<wchar_t*>(request), L"plain");
}

TEST_F(MemParamTest, NothingElseConverts) {
    set("Wide", L"wide");
    set("Real", 1.0);
    CXString text("before");
    int number = 9;
    EXPECT_EQ(readValue(root.get(), "Wide", &text), 0);
    EXPECT_EQ(readValue(root.get(), "Real", &number), 0);
    EXPECT_STREQ(text.c_str(), "before");
    EXPECT_EQ(number, 9);
}

TEST_F(MemParamTest, AMissingValueLeavesTheVariantAsItWas) {
    CKWVariant request;
    request.vt = kVtWideString;
    EXPECT_EQ(root->getValue("Missing", &request), 0);
    EXPECT_EQ(request.vt, kVtWideString);
    KWVariantInit(&request);
}

TEST_F(MemParamTest, CopyToTakesValuesAndChildrenAndKeepsWhatIsThere) {
    set("A", 1);
    set("B", 2, open("Child\\Options", 1).get());
    const auto copy = Ref<IParam>::take(new_MemParam());
    set("Kept", 3, copy.get());
    Param_CopyTo(root.get(), copy.get());
    int a = 0, b = 0, kept = 0;
    EXPECT_EQ(readValue(copy.get(), "A", &a), 1);
    EXPECT_EQ(readValue(openChild(copy.get(), "Child/Options").get(), "B", &b), 1);
    EXPECT_EQ(readValue(copy.get(), "Kept", &kept), 1);
    EXPECT_EQ(a + b + kept, 6);
    set("B", 9, open("Child\\Options", 0).get());
    readValue(openChild(copy.get(), "Child/Options").get(), "B", &b);
    EXPECT_EQ(b, 2) << "the copy is of its own";
}

TEST_F(MemParamTest, CopyToItselfAndToNothingDoesNothing) {
    set("A", 1);
    Param_CopyTo(root.get(), root.get());
    Param_CopyTo(root.get(), nullptr);
    Param_CopyTo(nullptr, root.get());
    int a = 0;
    EXPECT_EQ(readValue(root.get(), "A", &a), 1);
}

TEST_F(MemParamTest, ATreeThatMayNotChangeRefusesEveryChange) {
    auto rules = std::make_shared<standin::TreeRules>();
    Ref<IParam> tree = standin::newTree<IParam>(rules);
    Ref<IParam>::take(tree->openSection("Old", 1));
    rules->mayChange = [] { return false; };
    CKWVariant value(1, kVtInt);
    EXPECT_EQ(tree->setValue("A", &value), 0);
    EXPECT_EQ(tree->createChild("New"), nullptr);
    EXPECT_EQ(tree->openSection("New", 1), nullptr);
    tree->removeEntry("Old");
    tree->clear();
    EXPECT_EQ(childNames(tree.get()), std::vector<std::string>{"Old"});
}

TEST_F(MemParamTest, EachRootAnswersItsInterfaceAndTheTreeInterface) {
    Ref<IKWUnknown> profile = standin::newTree<IProfile>();
    EXPECT_TRUE(queryFor<IProfile>(profile.get()));
    EXPECT_TRUE(queryFor<IParam>(profile.get()));
    EXPECT_TRUE(queryFor<IKWUnknown>(profile.get()));
    EXPECT_FALSE(queryFor<IConfigParam>(profile.get()));
}

TEST_F(MemParamTest, TenThousandSectionsAreMadeAndFoundAtOnce) {
    for (int i = 0; i < 10000; ++i) {
        CXString name;
        name.Format("Paper%08d", i + 1);
        open(name.c_str(), 1);
    }
    EXPECT_EQ(childNames(root.get()).size(), 10000u);
    EXPECT_TRUE(open("Paper00010000", 0));
}

TEST(ServicesTest, EachLookupIsNullWhenThereIsNoApplication) {
    FixtureHost host;
    host.withholdApplication();
    EXPECT_FALSE(appService<IAppInterior>());
    EXPECT_FALSE(appService<IProfile>());
    EXPECT_FALSE(appService<IConfigParam>());
    EXPECT_FALSE(appService<IIOParams>());
    EXPECT_FALSE(appService<IStdPapersParam>());
}

TEST(ServicesTest, TheFixtureHostAnswersAndWithholds) {
    FixtureHost host;
    EXPECT_EQ(appService<IProfile>().get(), &host.profile());
    EXPECT_EQ(appService<IConfigParam>().get(), &host.config());
    EXPECT_EQ(appService<IParam>().get(), &host.plain());
    host.withhold(typeid(IProfile));
    EXPECT_FALSE(appService<IProfile>());
    EXPECT_TRUE(appService<IConfigParam>());
}

} // namespace
