// Small tables of the stand-in: limits of variables, words for folders, line types and styles by name.
#include "standin/display/layer_looks.h"
#include "standin/display/linetypes.h"
#include "standin/params/std_dirs.h"
#include "standin/sysvars/sysvar_table.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

using namespace standin;

bool takes(VarType type, double number, std::optional<double> least = {}, std::optional<double> most = {}) {
    SysVarDef definition;
    definition.type = type;
    definition.minimum = least;
    definition.maximum = most;
    const OdResBufPtr value = OdResBuf::newRb(OdResBuf::kRtDouble);
    value->setDouble(number);
    return accepts(definition, *value);
}

TEST(VariableLimits, AreThoseOfTheTypeAndOfTheTable) {
    struct Limit {
        VarType type;
        double least, most;
    };
    for (const Limit& each : {Limit{VarType::Bool, 0, 1},
                              {VarType::Int8, -128, 127},
                              {VarType::Int16, -32768, 32767},
                              {VarType::Int32, -2147483648.0, 2147483647.0}}) {
        const int type = static_cast<int>(each.type);
        EXPECT_TRUE(takes(each.type, each.least)) << type;
        EXPECT_FALSE(takes(each.type, each.least - 1)) << type;
        EXPECT_TRUE(takes(each.type, each.most)) << type;
        EXPECT_FALSE(takes(each.type, each.most + 1)) << type;
    }
    EXPECT_TRUE(takes(VarType::Real, 1e308));
    EXPECT_TRUE(takes(VarType::Real, -1e308));
    EXPECT_FALSE(takes(VarType::Real, double(INFINITY)));
    EXPECT_FALSE(takes(VarType::Text, 1));
    EXPECT_TRUE(takes(VarType::Int16, 3, 3, 5));
    EXPECT_FALSE(takes(VarType::Int16, 2, 3, 5));
    EXPECT_TRUE(takes(VarType::Int16, 5, 3, 5));
    EXPECT_FALSE(takes(VarType::Int16, 6, 3, 5));
    EXPECT_FALSE(takes(VarType::Int8, 200, -1000, 1000)) << "the type bounds it in any case";
    EXPECT_FALSE(takes(VarType::Int8, -200, -1000, 1000));
}

TEST(VariableTexts, GoThereAndBack) {
    struct Form {
        VarType type;
        const char *text, *back;
    };
    for (const Form& each : {Form{VarType::Int16, " 12 ", "12"},
                             {VarType::Int16, "x", ""},
                             {VarType::Int16, "1.5", ""},
                             {VarType::Bool, "1", "1"},
                             {VarType::Real, " 0.1 ", "0.1"},
                             {VarType::Real, "x", ""},
                             {VarType::Text, " a b ", " a b "}}) {
        SysVarDef definition;
        definition.type = each.type;
        const OdResBufPtr value = valueFromText(definition, each.text);
        EXPECT_EQ(value.isNull() ? QString() : valueText(definition, *value), each.back) << each.text;
        EXPECT_TRUE(value.isNull() || value->restype() == resBufType(each.type)) << each.text;
    }
    EXPECT_TRUE(isNumber(VarType::Bool) && isNumber(VarType::Real));
    EXPECT_FALSE(isNumber(VarType::Text));
}

TEST(VariableTables, FindTheLastOfAName) {
    SysVarTable table;
    SysVarDef first, second;
    first.name = second.name = QStringLiteral("A");
    second.description = QStringLiteral("second");
    table.add(first);
    table.add(second);
    EXPECT_EQ(table.find(QStringLiteral("a"))->description, QStringLiteral("second"));
    EXPECT_EQ(table.find(QStringLiteral("b")), nullptr);
}

TEST(FolderWords, StandAtTheBeginningOfAPath) {
    const PathWords words(QStringLiteral("/opt/app/data/"), QStringLiteral("/opt/app"));
    struct Form {
        const char *path, *stored;
    };
    for (const Form& each : {Form{"/opt/app/data", "${data}"},
                             {"/opt/app/data/fonts", "${data}/fonts"},
                             {"/opt/app/datax", "${root}/datax"},
                             {"/opt/app", "${root}"},
                             {"/opt/app/x", "${root}/x"},
                             {"/opt/application", "/opt/application"},
                             {"/opt", "/opt"},
                             {"", ""},
                             {"$x", "$$x"},
                             {"$", "$$"},
                             {"${root}/y", "$${root}/y"}}) {
        EXPECT_EQ(words.contracted(each.path), each.stored);
        EXPECT_EQ(words.expanded(each.stored), each.path);
    }
    EXPECT_EQ(words.expanded(QStringLiteral("${rooty}")), QStringLiteral("${rooty}"));
    EXPECT_EQ(words.expanded(QStringLiteral("x${root}")), QStringLiteral("x${root}"));
    const PathWords none({}, {});
    EXPECT_EQ(none.expanded(QStringLiteral("${root}/x")), QStringLiteral("${root}/x"));
    EXPECT_EQ(none.contracted(QStringLiteral("/x")), QStringLiteral("/x"));
}

TEST(LinetypeScales, LengthenAPattern) {
    const Dashes pattern = std::make_shared<const std::vector<double>>(std::vector<double>{4, -2, 0});
    EXPECT_EQ(*Linetypes::scaled(pattern, 2), (std::vector<double>{8, -4, 0}));
    EXPECT_EQ(*Linetypes::scaled(pattern, 0.5), (std::vector<double>{2, -1, 0}));
    for (const double times : {1.0, 0.0, -2.0, double(NAN)})
        EXPECT_EQ(Linetypes::scaled(pattern, times), pattern) << times;
    EXPECT_EQ(Linetypes::scaled(nullptr, 2), nullptr);
}

TEST(PaletteInks, AreColoursOrTheForeground) {
    for (const int foreground : {-1, 0, 7, 256, 1000})
        EXPECT_EQ(inkOfIndex(foreground), kForeground) << foreground;
    EXPECT_EQ(inkOfIndex(1), 0xffff0000u);
    EXPECT_EQ(inkOfIndex(6), 0xffff00ffu);
    EXPECT_EQ(inkOfIndex(8), 0xff808080u);
    EXPECT_EQ(inkOfIndex(255), 0xffffffffu);
}

} // namespace
