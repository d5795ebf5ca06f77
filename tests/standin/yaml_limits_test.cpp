// The written form of trees character by character, and what is read at the limits.
#include "standin/params/yaml_scalar.h"
#include "standin/params/yaml_text_check.h"
#include "standin/params/yaml_tree.h"

#include <gtest/gtest.h>

namespace {

using namespace standin;

// "type value" of a scalar as it stands in a file.
std::string read(const std::string& text, const std::string& tag = "?") {
    const auto value = scalarFromYaml(tag, text);
    if (!value)
        return "none";
    switch (value->vt) {
    case kVtInt:
        return "int " + std::to_string(value->integer);
    case kVtUInt:
        return "unsigned " + std::to_string(value->integer);
    case kVtInt64:
        return "long " + std::to_string(value->integer);
    case kVtDouble:
        return "real " + QString::number(value->real, 'g', 17).toStdString();
    case kVtString:
        return std::string("text ") + value->text;
    case kVtWideString:
        return "wide " + QString::fromWCharArray(value->wideText).toStdString();
    default:
        return "other";
    }
}

TEST(YamlScalars, AreReadByTheirForm) {
    for (const auto& [text, expected] : std::initializer_list<std::pair<const char*, const char*>>{
             {"0", "int 0"},
             {"-2147483648", "int -2147483648"},
             {"-2147483649", "long -2147483649"},
             {"2147483647", "int 2147483647"},
             {"2147483648", "unsigned 2147483648"},
             {"4294967295", "unsigned 4294967295"},
             {"4294967296", "long 4294967296"},
             {"9223372036854775807", "long 9223372036854775807"},
             {"9223372036854775808", "text 9223372036854775808"},
             {"+5", "int 5"},
             {"+", "text +"},
             {"-", "text -"},
             {"+-5", "text +-5"},
             {"0x10", "int 16"},
             {"0XfF", "int 255"},
             {"0x", "text 0x"},
             {"0x-1", "text 0x-1"},
             {"1x10", "text 1x10"},
             {"0xg", "text 0xg"},
             {"1.5", "real 1.5"},
             {"+1.5", "real 1.5"},
             {"-1.5e2", "real -150"},
             {".5", "real 0.5"},
             {"1e5", "text 1e5"},
             {"1.5x", "text 1.5x"},
             {"1.5.5", "text 1.5.5"},
             {".", "text ."},
             {"", "text "},
             {".inf", "real inf"},
             {"-.inf", "real -inf"},
             {".nan", "real nan"},
             {"1.", "real 1"}})
        EXPECT_EQ(read(text), expected) << text;
    EXPECT_EQ(read("12", "!"), "text 12");
    EXPECT_EQ(read("12", ""), "int 12");
    EXPECT_EQ(read("12", "!wide"), "wide 12");
    EXPECT_EQ(read("4142", "!bytes"), "text AB");
    EXPECT_EQ(read("12", "!other"), "none");
}

TEST(YamlScalars, OfListsHaveTwoNumbers) {
    const auto readList = [](const char* tag, const std::vector<std::string>& items) -> std::string {
        const auto value = listFromYaml(tag, items);
        return value ? *valueToYaml(*value) : "none";
    };
    EXPECT_EQ(readList("!size", {"1", "-2"}), "!size [1, -2]");
    EXPECT_EQ(readList("!size", {"2147483647", "-2147483648"}), "!size [2147483647, -2147483648]");
    EXPECT_EQ(readList("!size", {"2147483648", "1"}), "none");
    EXPECT_EQ(readList("!size", {"1", "-2147483649"}), "none");
    EXPECT_EQ(readList("!size", {"1.5", "1"}), "none");
    EXPECT_EQ(readList("!size", {"1", "x"}), "none");
    EXPECT_EQ(readList("!size", {"1"}), "none");
    EXPECT_EQ(readList("!size", {"1", "2", "3"}), "none");
    EXPECT_EQ(readList("!rsize", {"1", "2.5"}), "!rsize [1.0, 2.5]");
    EXPECT_EQ(readList("!rsize", {"x", "2.5"}), "none");
    EXPECT_EQ(readList("!rsize", {"1", "x"}), "none");
    EXPECT_EQ(readList("!rpoint", {"1.5", "-2"}), "!rpoint [1.5, -2.0]");
    EXPECT_TRUE(isListTag("!size") && isListTag("!rsize") && isListTag("!rpoint"));
    EXPECT_FALSE(isListTag("!wide"));
}

TEST(YamlScalars, AreWrittenSoThatTheyReadBack) {
    const auto real = [](double number) {
        CKWVariant value;
        value = number;
        return *valueToYaml(value);
    };
    EXPECT_EQ(real(1), "1.0");
    EXPECT_EQ(real(-0.5), "-0.5");
    EXPECT_EQ(real(1e300), "1.0e+300");
    EXPECT_EQ(real(1.5e-7), "1.5e-07");
    const auto text = [](const char* bytes) {
        CKWVariant value;
        value = bytes;
        return *valueToYaml(value);
    };
    EXPECT_EQ(text("a\"b\\c"), R"("a\"b\\c")");
    EXPECT_EQ(text("a\nb\tc\x1f d\x7f~"), R"("a\nb\x09c\x1F d\x7F~")");
    EXPECT_EQ(text("\xff"), R"(!bytes "ff")");
    EXPECT_EQ(valueToYaml(CKWVariant()), std::nullopt);
}

TEST(YamlNames, StandPlainWhereTheyCanBe) {
    for (const char* name : {"a", "Z", "_", "a9", "nullx", "nUll", "azAZ09_"})
        EXPECT_EQ(nameToYaml(name), name);
    for (const char* name :
         {"", "9a", "0", "a b", "a-b", "null", "Null", "NULL", "a@", "a[", "a`", "a{", "a/", "a:"})
        EXPECT_EQ(nameToYaml(name), '"' + std::string(name) + '"');
    const std::string long99(99, 'n'), long100(100, 'n');
    EXPECT_EQ(nameToYaml(long99), long99);
    EXPECT_EQ(nameToYaml(long100), '"' + long100 + '"');
}

TEST(YamlTexts, OfATreeHaveALineForEachEntry) {
    const auto tree = newTree<IParam>();
    EXPECT_EQ(writeYaml(tree->section()), "{}\n");
    CKWVariant one(1, kVtInt);
    tree->setValue("First", &one);
    const auto outer = Ref<IParam>::take(tree->openSection("Outer", 1));
    Ref<IParam>::take(outer->openSection("Empty", 1));
    const auto inner = Ref<IParam>::take(outer->openSection("Inner", 1));
    inner->setValue("Second", &one);
    outer->setValue("Third", &one);
    EXPECT_EQ(writeYaml(tree->section()),
              "First: 1\nOuter:\n  Third: 1\n  Empty: {}\n  Inner:\n    Second: 1\n");
}

TEST(YamlTexts, WriteSectionsBelowAHundredLevelsByTheirPaths) {
    const auto tree = newTree<IParam>();
    std::string path;
    for (int level = 0; level < 103; ++level)
        path += (level == 0 ? "s" : "/s");
    const auto deepest = Ref<IParam>::take(tree->openSection(path.c_str(), 1));
    CKWVariant one(1, kVtInt);
    deepest->setValue("V", &one);
    const std::string text = writeYaml(tree->section());
    EXPECT_EQ(text.substr(0, 8), "s:\n  s:\n");
    EXPECT_NE(text.find("\n" + std::string(200, ' ') + "\"s/s/s\":\n" + std::string(202, ' ') + "V: 1\n"),
              std::string::npos);
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 102);
}

TEST(YamlTexts, WriteNamesOfMoreThanAThousandCharactersOnALineOfTheirOwn) {
    const auto tree = newTree<IParam>();
    CKWVariant one(1, kVtInt);
    const std::string longest(998, 'n'), longer(999, 'n');
    tree->setValue(longest.c_str(), &one);
    tree->setValue(longer.c_str(), &one);
    EXPECT_EQ(writeYaml(tree->section()), '"' + longest + "\": 1\n? \"" + longer + "\"\n: 1\n");
}

std::string check(const std::string& text) {
    const auto problem = findUnreadableText(text, "f");
    return problem ? problem->text() : "";
}

TEST(YamlTextChecks, FindWhatIsNoText) {
    for (const std::string& good :
         {std::string("\t\r\n ~"), std::string("\x80", 0), std::string("\xC2\x80"), std::string("\xDF\xBF"),
          std::string("\xE0\xA0\x80"), std::string("\xEF\xBF\xBF"), std::string("\xF0\x90\x80\x80"),
          std::string("\xF4\x8F\xBF\xBF")})
        EXPECT_EQ(check(good), "");
    for (const std::string& bad :
         {std::string("\x80"), std::string("\xC1\x80"), std::string("\xC2"), std::string("\xC2\x7F"),
          std::string("\xC2\xC0"), std::string("\xE0\xA0"), std::string("\xE0\xA0 "),
          std::string("\xF0\x90\x80"), std::string("\xF5\x80\x80\x80"), std::string("\xFF")})
        EXPECT_EQ(check("ab" + bad), "f:1:3: text that is not UTF-8");
    for (const char control : {'\x01', '\x08', '\x0b', '\x0e', '\x1f', '\x7f'})
        EXPECT_EQ(check(std::string("a\nbc\n\xC3\xA4 ") + control), "f:3:4: a control character")
            << int(control);
    EXPECT_EQ(check(std::string("a\0", 2)), "f:1:2: a control character");
}

// Sections with `count` entries in all, named by an alias as often as asked.
std::string aliases(int entries, int times) {
    std::string text = "a: &a {";
    for (int i = 0; i + 1 < entries; ++i)
        text += "k" + std::to_string(i) + ": 1, ";
    text += "}\n";
    for (int i = 0; i < times; ++i)
        text += "b" + std::to_string(i) + ": *a\n";
    return text;
}

TEST(YamlAliases, StandForAHundredThousandEntriesAndNoMore) {
    EXPECT_TRUE(parseYaml(aliases(1000, 100), "f").clean());
    const YamlResult result = parseYaml(aliases(1000, 100) + "c: &c 1\nd: *c\n", "f");
    ASSERT_TRUE(result.problem);
    EXPECT_EQ(result.problem->text(), "f:103:4: the aliases stand for more than 100000 entries");
}

TEST(YamlAliases, OfNestedSectionsCountAllThatIsInThem) {
    std::string inner = "a: &a {x: {";
    for (int i = 0; i < 996; ++i)
        inner += "k" + std::to_string(i) + ": 1, ";
    inner += "}, y: {}, z: 1}\n";
    std::string text = inner;
    for (int i = 0; i < 100; ++i)
        text += "b" + std::to_string(i) + ": *a\n";
    EXPECT_TRUE(parseYaml(text, "f").clean()) << "1000 each";
    EXPECT_TRUE(parseYaml(text + "c: &c 1\nd: *c\n", "f").problem);
}

TEST(YamlAliases, StandForSixteenMegabytesAndNoMore) {
    const std::string longText(1 << 20, 'x');
    const auto times = [&](const std::string& value, int count) {
        std::string text = "a: &a " + value + "\n";
        for (int i = 0; i < count; ++i)
            text += "b" + std::to_string(i) + ": *a\n";
        return parseYaml(text, "f");
    };
    for (const std::string& value :
         {'"' + longText + '"', "{long: \"" + longText + "\"}", "{deep: {er: \"" + longText + "\"}}",
          "!wide \"" + longText.substr(0, longText.size() / sizeof(wchar_t)) + '"'}) {
        EXPECT_TRUE(times(value, 15).clean()) << value.substr(0, 20);
        EXPECT_TRUE(times(value, 16).problem) << value.substr(0, 20) << ": there is more than the text alone";
    }
}

TEST(YamlReports, NameLongTextsByTheirBeginning) {
    const std::string name60(60, 'n'), name61(61, 'n');
    EXPECT_EQ(parseYaml(name60 + ": !x 1\n", "f").report(),
              "f:1:63: the value of \"" + name60 + "\" has the unknown type \"!x\"");
    EXPECT_EQ(parseYaml(name61 + ": !x 1\n", "f").report(),
              "f:1:64: the value of \"" + name60 + "...\" has the unknown type \"!x\"");
    EXPECT_EQ(parseYaml("a: !x 1\nb: !x 2\n", "f").report(),
              "f:1:4: the value of \"a\" has the unknown type \"!x\" (and 1 more)");
}

TEST(YamlLevels, AreReadDownTo256) {
    const auto chain = [](int levels) {
        std::string text;
        for (int i = 0; i < levels; ++i)
            text += "{a: ";
        return text + "1" + std::string(static_cast<std::size_t>(levels), '}');
    };
    EXPECT_TRUE(parseYaml(chain(256), "f").clean());
    EXPECT_TRUE(parseYaml(chain(257), "f").problem);
}

} // namespace
