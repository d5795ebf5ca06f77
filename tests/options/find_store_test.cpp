// Where an option's value is looked for: its own node, then one level up and no further.
#include "options/store/option_store.h"
#include "tests/options/option_data.h"

#include <gtest/gtest.h>

namespace {

OptionTreeWriter newNode() { return OptionTreeWriter(Ref<IParam>::take(new_MemParam())); }

struct Found {
    int result;
    std::string key, section, store;
};

Found find(IParam* node, IParam* parent) {
    CXString key("stale"), section("stale"), store("stale");
    const int result = findStore(node, parent, key, section, store);
    return {result, key.c_str(), section.c_str(), store.c_str()};
}

void expectFound(const Found& found, const char* key, const char* section, const char* store) {
    EXPECT_EQ(found.result, 1);
    EXPECT_EQ(found.key, key);
    EXPECT_EQ(found.section, section);
    EXPECT_EQ(found.store, store);
}

} // namespace

TEST(FindStore, TakesEverythingFromTheNodeItself) {
    OptionTreeWriter node = newNode();
    node.set("Key", "Size").set("Section", "Drawing").set("IFace", "IProfile");
    expectFound(find(node.get(), newNode().get()), "Size", "Drawing", "IProfile");
    expectFound(find(node.get(), nullptr), "Size", "Drawing", "IProfile");
}

TEST(FindStore, TakesTheKeyOfTheParentWhenTheNodeHasNone) {
    OptionTreeWriter parent = newNode();
    parent.set("Key", "Size");
    OptionTreeWriter node = newNode();
    node.set("Section", "Drawing").set("IFace", "IProfile");
    expectFound(find(node.get(), parent.get()), "Size", "Drawing", "IProfile");
}

TEST(FindStore, FailsWithoutAKeyInNodeOrParent) {
    OptionTreeWriter node = newNode();
    node.set("Section", "Drawing").set("IFace", "IProfile");
    EXPECT_EQ(find(node.get(), newNode().get()).result, 0);
    OptionTreeWriter parent = newNode();
    parent.set("Key", "");
    EXPECT_EQ(find(node.get(), parent.get()).result, 0);
}

TEST(FindStore, GoesOnWithAnEmptyKeyWhenThereIsNoParent) {
    OptionTreeWriter node = newNode();
    node.set("Section", "Drawing").set("IFace", "IProfile");
    expectFound(find(node.get(), nullptr), "", "Drawing", "IProfile");
}

TEST(FindStore, FindsNothingButThreeEmptyTextsWithoutNodeAndParent) {
    expectFound(find(nullptr, nullptr), "", "", "");
}

TEST(FindStore, UsesTheParentAloneForAMissingNode) {
    OptionTreeWriter parent = newNode();
    parent.set("Key", "Size").set("Section", "Drawing");
    EXPECT_EQ(find(nullptr, parent.get()).result, 0) << "no store";
    parent.set("IFace", "IProfile");
    expectFound(find(nullptr, parent.get()), "Size", "Drawing", "IProfile");
    parent.set("Section", "");
    EXPECT_EQ(find(nullptr, parent.get()).result, 0) << "no section";
}

TEST(FindStore, IgnoresTheSectionOfASystemVariable) {
    OptionTreeWriter node = newNode();
    node.set("Key", "GRIPSIZE").set("sysvar", 1).set("Section", "Drawing").set("IFace", "IProfile");
    expectFound(find(node.get(), nullptr), "GRIPSIZE", "", "SysVar");
    expectFound(find(node.get(), newNode().get()), "GRIPSIZE", "", "SysVar");
}

TEST(FindStore, ReadsASystemVariableWhoseKeyStandsInTheParent) {
    OptionTreeWriter parent = newNode();
    parent.set("Key", "OSMODE");
    OptionTreeWriter node = newNode();
    node.set("sysvar", 1);
    expectFound(find(node.get(), parent.get()), "OSMODE", "", "SysVar");
}

TEST(FindStore, TakesASysvarOfZeroAsNone) {
    OptionTreeWriter node = newNode();
    node.set("Key", "Size").set("sysvar", 0).set("Section", "Drawing").set("IFace", "IProfile");
    expectFound(find(node.get(), nullptr), "Size", "Drawing", "IProfile");
}

TEST(FindStore, DoesNotTakeSysvarFromTheParent) {
    OptionTreeWriter parent = newNode();
    parent.set("sysvar", 1).set("Section", "Drawing").set("IFace", "IProfile");
    OptionTreeWriter node = newNode();
    node.set("Key", "Size");
    expectFound(find(node.get(), parent.get()), "Size", "Drawing", "IProfile");
}

TEST(FindStore, CompletesAnOwnSectionWithTheStoreOfTheParent) {
    OptionTreeWriter node = newNode();
    node.set("Key", "Size").set("Section", "Drawing");
    OptionTreeWriter parent = newNode();
    EXPECT_EQ(find(node.get(), parent.get()).result, 0);
    parent.set("IFace", "");
    EXPECT_EQ(find(node.get(), parent.get()).result, 0);
    parent.set("IFace", "IProfile").set("Section", "Other");
    expectFound(find(node.get(), parent.get()), "Size", "Drawing", "IProfile");
}

TEST(FindStore, LeavesTheStoreEmptyForAnOwnSectionWithoutAParent) {
    OptionTreeWriter node = newNode();
    node.set("Key", "Size").set("Section", "Drawing");
    expectFound(find(node.get(), nullptr), "Size", "Drawing", "");
}

TEST(FindStore, TakesTheSectionOfTheParentWithTheNodesOwnStore) {
    OptionTreeWriter node = newNode();
    node.set("Key", "Size").set("IFace", "IProfile");
    OptionTreeWriter parent = newNode();
    EXPECT_EQ(find(node.get(), parent.get()).result, 0) << "no section anywhere";
    parent.set("Section", "Drawing").set("IFace", "Elsewhere");
    expectFound(find(node.get(), parent.get()), "Size", "Drawing", "IProfile");
}

TEST(FindStore, TakesSectionAndStoreOfTheParent) {
    OptionTreeWriter node = newNode();
    node.set("Key", "Size");
    OptionTreeWriter parent = newNode();
    parent.set("Section", "Drawing");
    EXPECT_EQ(find(node.get(), parent.get()).result, 0) << "no store anywhere";
    parent.set("IFace", "IProfile");
    expectFound(find(node.get(), parent.get()), "Size", "Drawing", "IProfile");
}

TEST(FindStore, TakesAStoreWithoutAnySectionWhenThereIsNoParent) {
    OptionTreeWriter node = newNode();
    node.set("Key", "Size").set("IFace", "IProfile");
    expectFound(find(node.get(), nullptr), "Size", "", "IProfile");
}

TEST(FindStore, TakesNoTextThatIsWide) {
    OptionTreeWriter node = newNode();
    node.set("Key", L"Size").set("Section", L"Drawing").set("IFace", L"IProfile");
    expectFound(find(node.get(), nullptr), "", "", "");
}

TEST(FindStore, ClimbsOneLevelAndNoFurther) {
    OptionTreeWriter grandparent = newNode();
    grandparent.set("Key", "Size").set("Section", "Drawing").set("IFace", "IProfile");
    OptionTreeWriter parent = grandparent.node("group");
    OptionTreeWriter node = parent.node("option");
    EXPECT_EQ(find(node.get(), parent.get()).result, 0);
    expectFound(find(parent.get(), grandparent.get()), "Size", "Drawing", "IProfile");
}
