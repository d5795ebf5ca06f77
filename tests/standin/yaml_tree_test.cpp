// The file form of parameter trees.
#include "standin/params/yaml_tree.h"

#include "host/typed_reads.h"
#include "tests/support/memory_bound.h"

#include <QFile>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

using standin::parseYaml;
using standin::writeYaml;
using standin::YamlResult;

namespace {

CKWVariant valueOf(IParam* node, const char* name) {
    CKWVariant value;
    EXPECT_EQ(node->getValue(name, &value), 1) << name;
    return value;
}

CKWVariant valueIn(const std::string& yaml) {
    const YamlResult result = parseYaml("Value: " + yaml, "t");
    EXPECT_EQ(result.report(), "");
    return valueOf(result.tree.get(), "Value");
}

std::string repeated(const std::string& text, int times) {
    std::string all;
    for (int i = 0; i < times; ++i)
        all += text;
    return all;
}

TEST(YamlTreeTest, PlainScalarsHaveTheirTypes) {
    EXPECT_EQ(valueIn("42").vt, kVtInt);
    EXPECT_EQ(int(valueIn("-7")), -7);
    EXPECT_EQ(int(valueIn("0x80000")), 0x80000);
    EXPECT_EQ(valueIn("0xFFFFFFFF").vt, kVtUInt);
    EXPECT_EQ(valueIn("5000000000").vt, kVtInt64);
    EXPECT_EQ(valueIn("2.0").vt, kVtDouble);
    EXPECT_EQ(double(valueIn("-1.5e-3")), -0.0015);
    EXPECT_STREQ(static_cast<char*>(valueIn("IProfile")), "IProfile");
    EXPECT_STREQ(static_cast<char*>(valueIn("true")), "true");
}

TEST(YamlTreeTest, QuotedTextStaysTextWhateverItLooksLike) {
    EXPECT_STREQ(static_cast<char*>(valueIn("\"42\"")), "42");
    EXPECT_STREQ(static_cast<char*>(valueIn("'1.5'")), "1.5");
    EXPECT_STREQ(static_cast<char*>(valueIn("\"\"")), "");
}

TEST(YamlTreeTest, TaggedValuesHaveTheirTypes) {
    EXPECT_STREQ(static_cast<wchar_t*>(valueIn("!wide \"Z\\u00fcrich\"")), L"Zürich");
    EXPECT_STREQ(static_cast<wchar_t*>(valueIn("!wide 12")), L"12");
    const tagSIZE size = valueIn("!size [-1, 0x10]");
    EXPECT_EQ(size.cx, -1);
    EXPECT_EQ(size.cy, 16);
    const tagRSIZE rsize = valueIn("!rsize [210, 297.5]");
    EXPECT_EQ(rsize.cx, 210.0);
    EXPECT_EQ(rsize.cy, 297.5);
    EXPECT_EQ(valueIn("!rpoint [0.5, 1]").vt, kVtRPoint);
}

class YamlRoundTrip : public testing::Test {
protected:
    Ref<standin::MemParam> tree = standin::newTree<IParam>();
    template <class T> void set(const char* name, const T& value) {
        CKWVariant variant;
        variant = value;
        tree->setValue(name, &variant);
    }
    Ref<standin::MemParam> again() {
        const YamlResult result = parseYaml(writeYaml(tree->section()), "t");
        EXPECT_EQ(result.report(), "");
        return result.tree;
    }
};

TEST_F(YamlRoundTrip, IntegersKeepTheirValue) {
    for (const std::int64_t number :
         {std::int64_t(0), std::int64_t(-1), std::numeric_limits<std::int64_t>::min(),
          std::numeric_limits<std::int64_t>::max(), std::int64_t(0xFFFFFFFF)}) {
        CKWVariant value(0, kVtInt64);
        value.integer = number;
        tree->setValue("N", &value);
        EXPECT_EQ(valueOf(again().get(), "N").integer, number);
    }
}

TEST_F(YamlRoundTrip, RealsKeepTheirTypeAndEveryBit) {
    for (const double number :
         {0.0, 1.0, -3.0, 0.1, 1e300, 1e-310, 123456789012345680.0, std::numeric_limits<double>::max(),
          std::numeric_limits<double>::infinity()}) {
        set("R", number);
        const CKWVariant value = valueOf(again().get(), "R");
        EXPECT_EQ(value.vt, kVtDouble) << number;
        EXPECT_EQ(value.real, number);
    }
    set("R", std::nan(""));
    EXPECT_TRUE(std::isnan(valueOf(again().get(), "R").real));
}

TEST_F(YamlRoundTrip, TextsOfBothWidthsKeepTheirTypeAndEveryCharacter) {
    for (const wchar_t* text : {L"", L"plain", L"  edges  ", L"\"quoted\" 'single' \\ %1 <b>&amp;</b>",
                                L"two\nlines\ttab", L"# no comment: - ? [x] {y} *a &b !c", L"null", L"12",
                                L"1.5", L"日本語 \U0001F600", L"\x85\u2028\ufeff\x1", L"\ufeffmark"}) {
        set("W", text);
        set("T", CXString(text));
        const auto copy = again();
        EXPECT_STREQ(static_cast<wchar_t*>(valueOf(copy.get(), "W")), text);
        EXPECT_STREQ(static_cast<char*>(valueOf(copy.get(), "T")), CXString(text).c_str());
    }
}

TEST_F(YamlRoundTrip, BytesThatAreNoTextOfTheLocaleSurvive) {
    set("T", "a\xFF\xC0z");
    EXPECT_STREQ(static_cast<char*>(valueOf(again().get(), "T")), "a\xFF\xC0z");
}

TEST_F(YamlRoundTrip, RecordsKeepTheirNumbers) {
    set("S", tagSIZE{-5, 2147483647});
    set("R", tagRSIZE{210, 297.25});
    set("P", tagRPOINT{-0.125, 1e-20});
    const auto copy = again();
    EXPECT_EQ(tagSIZE(valueOf(copy.get(), "S")).cy, 2147483647);
    EXPECT_EQ(tagRSIZE(valueOf(copy.get(), "R")).cy, 297.25);
    EXPECT_EQ(tagRPOINT(valueOf(copy.get(), "P")).y, 1e-20);
}

TEST_F(YamlRoundTrip, OrderAndEmptySectionsAndOddNamesStay) {
    for (const char* name : {"z", "a b", "", "null", "12", "- x", "a: b", "Paper00000001", "#", "\ufeffmark"})
        Ref<IParam>::take(tree->openSection(name, 1));
    EXPECT_EQ(childNames(again().get()), childNames(tree.get()));
}

TEST_F(YamlRoundTrip, AValueAndASectionMayShareTheirName) {
    set("Cursor", 1);
    Ref<IParam>::take(tree->openSection("Cursor", 1));
    const auto copy = again();
    EXPECT_EQ(int(valueOf(copy.get(), "Cursor")), 1);
    EXPECT_TRUE(openChild(copy.get(), "Cursor"));
}

TEST_F(YamlRoundTrip, SectionsOfAnyDepthComeBack) {
    const std::string path = "top/" + repeated("a/", 1999) + "b";
    CKWVariant value(5, kVtInt);
    Ref<IParam>::take(tree->openSection(path.c_str(), 1))->setValue("V", &value);
    const auto deep = openChild(again().get(), path.c_str());
    ASSERT_TRUE(deep);
    EXPECT_EQ(int(valueOf(deep.get(), "V")), 5);
}

TEST_F(YamlRoundTrip, NamesOfAnyLengthComeBack) {
    const std::string name(5000, 'n');
    set(name.c_str(), L"text");
    CKWVariant value(5, kVtInt);
    Ref<IParam>::take(tree->openSection(("S" + name).c_str(), 1))->setValue(name.c_str(), &value);
    Ref<IParam>::take(tree->openSection(("E" + name).c_str(), 1));
    const auto copy = again();
    EXPECT_STREQ(static_cast<wchar_t*>(valueOf(copy.get(), name.c_str())), L"text");
    EXPECT_EQ(int(valueOf(openChild(copy.get(), ("S" + name).c_str()).get(), name.c_str())), 5);
    EXPECT_EQ(childNames(copy.get()), childNames(tree.get()));
}

TEST_F(YamlRoundTrip, AnEmptyTreeIsAnEmptyTree) {
    EXPECT_TRUE(childNames(again().get()).empty());
    EXPECT_TRUE(parseYaml("", "t").clean());
    EXPECT_TRUE(parseYaml("# nothing\n", "t").clean());
}

TEST_F(YamlRoundTrip, AnInterfaceHasNoFileFormAndLeavesTheRestReadable) {
    const auto section = Ref<IParam>::take(tree->openSection("S", 1));
    CKWVariant value;
    value = static_cast<IKWUnknown*>(section.get());
    tree->setValue("I", &value);
    value.Clear();
    section->setValue("Empty", &value);
    EXPECT_EQ(childNames(again().get()), std::vector<std::string>{"S"});
}

TEST(YamlBadInput, BrokenSyntaxIsToldWithFileLineAndColumnAndWhatStandsBeforeIsKept) {
    const YamlResult result = parseYaml("A: 1\nB:\n  C: [1, 2\nD: }\n", "options.yaml");
    ASSERT_TRUE(result.problem);
    EXPECT_EQ(result.problem->file, "options.yaml");
    EXPECT_GE(result.problem->line, 3);
    EXPECT_GE(result.problem->column, 1);
    EXPECT_FALSE(result.problem->reason.empty());
    EXPECT_EQ(int(valueOf(result.tree.get(), "A")), 1);
}

struct BadEntry {
    const char* yaml;
    int line;
    int column;
    const char* reason;
};

class YamlFaults : public testing::TestWithParam<BadEntry> {};

TEST_P(YamlFaults, TheEntryIsLeftOutAndToldWhileTheRestIsRead) {
    const YamlResult result = parseYaml(std::string("First: 1\n") + GetParam().yaml + "\nLast: 2\n", "t");
    EXPECT_FALSE(result.problem) << result.report();
    ASSERT_EQ(result.faults.size(), 1u);
    EXPECT_EQ(result.faults[0].line, GetParam().line);
    EXPECT_EQ(result.faults[0].column, GetParam().column);
    EXPECT_NE(result.faults[0].reason.find(GetParam().reason), std::string::npos) << result.faults[0].reason;
    EXPECT_EQ(int(valueOf(result.tree.get(), "First")), 1);
    EXPECT_EQ(int(valueOf(result.tree.get(), "Last")), 2);
}

INSTANTIATE_TEST_SUITE_P(Entries, YamlFaults,
                         testing::Values(BadEntry{"V: !size [1]", 2, 4, "no !size [a, b]"},
                                         BadEntry{"V: !size [1, x]", 2, 4, "no !size [a, b]"},
                                         BadEntry{"V: !size [1, 3000000000]", 2, 4, "no !size [a, b]"},
                                         BadEntry{"V: !rsize [1, [2]]", 2, 4, "no !rsize [a, b]"},
                                         BadEntry{"V: !rpoint [1, ~]", 2, 4, "no !rpoint [a, b]"},
                                         BadEntry{"V: [1, 2]", 2, 4, "lacks its type"},
                                         BadEntry{"V: [[1], {a: b}]", 2, 4, "lacks its type"},
                                         BadEntry{"V: !colour red", 2, 4, "unknown type"},
                                         BadEntry{"V:", 3, 1, "neither a value nor a section"},
                                         BadEntry{"V: 1\nV: 2", 3, 4, "given twice"},
                                         BadEntry{"V: {a: 1}\nV: {b: 1}", 3, 4, "stands here twice"},
                                         BadEntry{"? {a: 1}\n: 2", 2, 3, "a name is plain text"},
                                         BadEntry{"? [a, b]\n: {c: [1]}", 2, 3, "a name is plain text"},
                                         BadEntry{"~: 3", 2, 1, "a name is missing"},
                                         BadEntry{"V: &v {a: {b: *v}}", 2, 15, "would hold itself"},
                                         BadEntry{"V: !kind {a: 1}", 2, 4, "has no type"}));

TEST(YamlTreeTest, AliasesCopyWhatTheyStandFor) {
    const YamlResult result = parseYaml("A: &a {n: 1, s: {m: 2}}\nB: *a\nC: &c 7\nD: *c\n"
                                        "E: &e !size [1, 2]\nF: *e\n",
                                        "t");
    EXPECT_EQ(result.report(), "");
    EXPECT_EQ(int(valueOf(openChild(result.tree.get(), "B/s").get(), "m")), 2);
    EXPECT_NE(openChild(result.tree.get(), "A").get(), openChild(result.tree.get(), "B").get());
    EXPECT_EQ(int(valueOf(result.tree.get(), "D")), 7);
    EXPECT_EQ(valueOf(result.tree.get(), "F").vt, kVtSize);
}

TEST(YamlBadInput, AliasesThatMultiplyEndInAnError) {
    std::string text = "a0: &a0 {x: 1}\n";
    for (int i = 1; i < 40; ++i) {
        const std::string before = "*a" + std::to_string(i - 1);
        text += "a" + std::to_string(i) + ": &a" + std::to_string(i) + " {p: " + before + " , q: " + before +
                " }\n";
    }
    const MemoryBound bound(200);
    const YamlResult result = parseYaml(text, "t");
    ASSERT_TRUE(result.problem);
    EXPECT_NE(result.problem->reason.find("aliases"), std::string::npos);
}

TEST(YamlBadInput, SeveralDocumentsAreToldAndTheFirstIsRead) {
    const YamlResult result = parseYaml("A: 1\n---\nA: 2\n", "t");
    EXPECT_EQ(result.faults.size(), 1u);
    EXPECT_EQ(int(valueOf(result.tree.get(), "A")), 1);
}

TEST(YamlBadInput, ATextThatIsNoMappingIsAnError) {
    EXPECT_TRUE(parseYaml("just text", "t").problem);
    EXPECT_TRUE(parseYaml("- 1\n- 2\n", "t").problem);
    EXPECT_TRUE(parseYaml("!wide x", "t").problem);
}

TEST(YamlBadInput, TextThatTheLibraryWouldCutOrReplaceIsAnError) {
    const YamlResult control = parseYaml("A: 1\nB: x\x04y\nC: 2\n", "t");
    ASSERT_TRUE(control.problem);
    EXPECT_EQ(control.problem->line, 2);
    EXPECT_EQ(control.problem->column, 5);
    EXPECT_TRUE(parseYaml("A: caf\xE9\n", "t").problem);
    EXPECT_TRUE(parseYaml(std::string("A: 1\0B: 2", 9), "t").problem);
    EXPECT_TRUE(parseYaml("A: \xC3", "t").problem);
}

TEST(YamlBadInput, TooManyFaultsAreCountedUpToALimit) {
    const YamlResult result = parseYaml(repeated("V: !x 1\n", 5000), "t");
    EXPECT_EQ(result.faults.size(), 100u);
    EXPECT_NE(result.report().find("t:1:4: "), std::string::npos);
    EXPECT_NE(result.report().find("(and 99 more)"), std::string::npos);
}

std::string indentedChain(int depth) {
    std::string text;
    for (int i = 0; i < depth; ++i)
        text += std::string(static_cast<std::size_t>(i), ' ') + "a:\n";
    return text + std::string(static_cast<std::size_t>(depth), ' ') + "v: 1\n";
}

TEST(YamlBadInput, ADepthOfTwoThousandIsToldWithItsLineAndTheUpperLevelsAreKept) {
    const YamlResult result = parseYaml(indentedChain(2000), "deep.yaml");
    ASSERT_TRUE(result.problem);
    EXPECT_NE(result.problem->reason.find("256 levels"), std::string::npos);
    EXPECT_EQ(result.problem->line, 257);
    EXPECT_TRUE(openChild(result.tree.get(), "a/a/a/a"));
}

class YamlHugeText : public testing::TestWithParam<std::pair<const char*, std::string>> {};

TEST_P(YamlHugeText, AMebibyteIsReadToItsEnd) {
    const YamlResult result = parseYaml(GetParam().second, "t");
    ASSERT_TRUE(result.tree);
}

INSTANTIATE_TEST_SUITE_P(Texts, YamlHugeText,
                         testing::Values(std::pair("brackets", "a: " + repeated("[", 1 << 20)),
                                         std::pair("braces", repeated("{a: ", 1 << 18)),
                                         std::pair("dashes", repeated("- ", 1 << 19)),
                                         std::pair("questions", repeated("? ", 1 << 19)),
                                         std::pair("plainText", "a: " + repeated("x", 1 << 20)),
                                         std::pair("quotedText", "a: \"" + repeated("x ", 1 << 19) + "\""),
                                         std::pair("openQuote", "a: \"" + repeated("x\n ", 1 << 18)),
                                         std::pair("longName", repeated("n", 1 << 20) + ": 1"),
                                         std::pair("anchors", "a: " + repeated("&a ", 1 << 18)),
                                         std::pair("entries", repeated("abc: {def: 1}\n", 1 << 16)),
                                         std::pair("flowEntries", "a: {" + repeated("k: 1, ", 1 << 17)),
                                         std::pair("blanks", repeated(" \n", 1 << 19)),
                                         std::pair("colons", repeated(": ", 1 << 19)),
                                         std::pair("block", "a: |\n" + repeated("  text\n", 1 << 17)),
                                         std::pair("deep", indentedChain(1400))),
                         [](const auto& test) { return test.param.first; });

TEST(YamlTreeTest, ATextOfAMebibyteIsReadWhole) {
    const std::string text(1 << 20, 'x');
    EXPECT_EQ(std::string(static_cast<char*>(valueIn("\"" + text + "\""))), text);
}

TEST(YamlTreeTest, TheShippedFilesAreClean) {
    for (const char* name : {"preftree", "formats", "papers", "stddirs"}) {
        QFile file(QStringLiteral(SHIPPED_DATA_DIR "/%1.yaml").arg(QLatin1String(name)));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << name;
        const YamlResult result = parseYaml(file.readAll().toStdString(), name);
        EXPECT_EQ(result.report(), "");
        EXPECT_FALSE(childNames(result.tree.get()).empty());
    }
}

TEST(YamlBadInput, AliasesAreBoundedByTheBytesThatTheyStandFor) {
    const std::string longText(60000, 'x');
    std::string values = "First: &a \"" + longText + "\"\n",
                sections = "First: &a {Long: \"" + longText + "\"}\n";
    for (int i = 0; i < 20000; ++i) {
        values += "V" + std::to_string(i) + ": *a\n";
        sections += "S" + std::to_string(i) + ": *a\n";
    }
    const MemoryBound bound(200);
    for (const std::string& text : {values, sections}) {
        const YamlResult result = parseYaml(text, "f");
        ASSERT_TRUE(result.problem);
        EXPECT_EQ(result.problem->reason, "the aliases stand for more than 16 MB");
        EXPECT_LT(result.problem->line, 300) << "as soon as it is clear";
    }
    EXPECT_TRUE(parseYaml("A: &a text\nB: *a\nC: {D: *a}\n", "f").clean());
}

} // namespace
