// Merging of three states of a store, entry by entry.
#include "standin/params/store_merge.h"

#include "standin/params/mem_param.h"
#include "standin/params/yaml_tree.h"

#include <gtest/gtest.h>

namespace {

using namespace standin;

Ref<MemParam> tree(const std::string& yaml) {
    const YamlResult result = parseYaml(yaml, "t");
    EXPECT_EQ(result.report(), "") << yaml;
    return result.tree;
}

struct Merged {
    const char *ours, *base, *theirs;
    int wholeDepth;
    const char *result, *overruled;
};

// "path state" of each; whole sections in brackets.
std::string listOf(const std::vector<Overruled>& overruled) {
    std::string text;
    for (const Overruled& each : overruled) {
        std::string state = each.value.value_or("gone");
        for (char& c : state)
            c = c == '\n' ? ' ' : c;
        text += (each.whole ? "[" + each.path + "] " : each.path + " ") + state + ";";
    }
    return text;
}

TEST(StoreMerges, TakeWhatTheOtherChangedAndKeepTheOwn) {
    for (const Merged& each : {
             Merged{"{a: 1}", "{a: 1}", "{a: 2}", 9, "a: 2\n", ""},
             {"{a: 2}", "{a: 1}", "{a: 1}", 9, "a: 2\n", ""},
             {"{a: 2}", "{a: 1}", "{a: 3}", 9, "a: 2\n", "a 3;"},
             {"{a: 2}", "{a: 1}", "{a: 2}", 9, "a: 2\n", ""},
             {"{a: 1}", "{a: 1}", "{}", 9, "{}\n", ""},
             {"{a: 2}", "{a: 1}", "{}", 9, "a: 2\n", "a gone;"},
             {"{}", "{a: 1}", "{a: 2}", 9, "{}\n", "a 2;"},
             {"{}", "{a: 1}", "{a: 1}", 9, "{}\n", ""},
             {"{}", "{}", "{a: 1}", 9, "a: 1\n", ""},
             {"{a: 1}", "{}", "{b: 2}", 9, "a: 1\nb: 2\n", ""},
             {"{s: {a: 1}}", "{s: {a: 1}}", "{s: {a: 1, b: 2}}", 9, "s:\n  a: 1\n  b: 2\n", ""},
             {"{s: {a: 1}}", "{s: {a: 1}}", "{}", 9, "{}\n", ""},
             {"{s: {a: 2}}", "{s: {a: 1}}", "{}", 9, "s:\n  a: 2\n", "[s] gone;"},
             {"{}", "{s: {a: 1}}", "{s: {a: 2}}", 9, "{}\n", "[s] a: 2 ;"},
             {"{}", "{}", "{s: {a: 1}}", 9, "s:\n  a: 1\n", ""},
             {"{s: {a: 2}}", "{s: {a: 1}}", "{s: {a: 3}}", 9, "s:\n  a: 2\n", "s/a 3;"},
             {"{s: {a: 2}}", "{s: {a: 1}}", "{s: {a: 1, b: 3}}", 1, "s:\n  a: 2\n", "[s] a: 1 b: 3 ;"},
             {"{s: {a: 1}}", "{s: {a: 1}}", "{s: {b: 3}}", 1, "s:\n  b: 3\n", ""},
             {"{s: {t: {a: 2}}}", "{s: {t: {a: 1}}}", "{s: {t: {a: 1, b: 3}}}", 2, "s:\n  t:\n    a: 2\n",
              "[s/t] a: 1 b: 3 ;"},
             {"{s: {t: {a: 2}}}", "{s: {t: {a: 1}}}", "{s: {t: {a: 1, b: 3}}}", 3,
              "s:\n  t:\n    a: 2\n    b: 3\n", ""},
             {"{a: 1}", "{a: 1}", "{b: 2}", 0, "b: 2\n", ""},
             {"{a: 2}", "{a: 1}", "{b: 2}", 0, "a: 2\n", "[] b: 2 ;"},
             {"{a: 2}", "{a: 1}", "{a: 2}", 0, "a: 2\n", ""},
             {"{a: 2}", "{a: 1}", "{a: 1}", 0, "a: 2\n", ""},
         }) {
        const Ref<MemParam> ours = tree(each.ours), base = tree(each.base), theirs = tree(each.theirs);
        const auto overruled =
            mergeInto(ours->section(), base->section(), theirs->section(), each.wholeDepth);
        const std::string name = std::string(each.ours) + " of " + each.base + " with " + each.theirs +
                                 " down to " + std::to_string(each.wholeDepth);
        EXPECT_EQ(writeYaml(ours->section()), each.result) << name;
        EXPECT_EQ(listOf(overruled), each.overruled) << name;
    }
}

} // namespace
