// Tables of typed points, lengths and angles, and of what they are written as.
#include "standin/console/point_text.h"
#include "standin/units/unit_text.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

using namespace standin;

std::string place(const std::optional<OdGePoint3d>& point) {
    if (!point)
        return "none";
    std::string text;
    for (const double number : {point->x, point->y, point->z})
        text += QString::number(std::fabs(number) < 1e-12 ? 0 : number, 'g', 10).toStdString() + " ";
    return text;
}

TEST(TypedPoints, AreReadInEveryForm) {
    struct Form {
        const char *text, *point;
    };
    const OdGePoint3d from(10, 20, 30);
    for (const Form& each : {Form{"1,2", "1 2 0 "}, {"1,2,3", "1 2 3 "},     {" 1.5,-2 ", "1.5 -2 0 "},
                             {"@1,2", "11 22 30 "}, {"@1,2,3", "11 22 33 "}, {"@", "10 20 30 "},
                             {" @ ", "10 20 30 "},  {"2<90", "0 2 0 "},      {"@2<180", "8 20 30 "},
                             {"2<0", "2 0 0 "},     {"1/2,1", "0.5 1 0 "},   {"", "none"},
                             {"1", "none"},         {"1,2,3,4", "none"},     {"1,x", "none"},
                             {"x,1", "none"},       {"1,2,x", "none"},       {"1,,2", "none"},
                             {"2<x", "none"},       {"x<90", "none"},        {"1<2<3", "none"},
                             {"@@1,2", "none"},     {"@1", "none"}})
        EXPECT_EQ(place(pointFromText(each.text, from)), each.point) << each.text;
}

TEST(TypedPoints, AreWrittenWithTheirHeightAlone) {
    EXPECT_EQ(pointText({1.5, -2, 0}), "1.5,-2");
    EXPECT_EQ(pointText({1, 2, 3}), "1,2,3");
    EXPECT_EQ(pointText({0, 0, -0.5}), "0,0,-0.5");
    EXPECT_EQ(place(pointFromText(pointText({1, 2, 3}), {9, 9, 9})), "1 2 3 ");
}

TEST(Lengths, AreWrittenAtTheLimitsOfTheirStyles) {
    struct Form {
        double value;
        int style, precision;
        const char* text;
    };
    for (const Form& each : {Form{11.99, kEngineering, 1, "1'-0\""},
                             {11.94, kEngineering, 1, "0'-11.9\""},
                             {12, kEngineering, 1, "1'-0\""},
                             {11.75, kArchitectural, 2, "0'-11-3/4\""},
                             {12.5, kArchitectural, 1, "1'-0-1/2\""},
                             {23232.8125, kArchitectural, 4, "1936'-0-13/16\""},
                             {23.999, kArchitectural, 4, "2'-0\""},
                             {0.25, kArchitectural, 2, "0'-0-1/4\""},
                             {1, kArchitectural, 2, "0'-1\""},
                             {0.5, kFractional, 1, "1/2"},
                             {1.5, kFractional, 1, "1-1/2"},
                             {0.0625, kFractional, 4, "1/16"},
                             {0.1875, kFractional, 4, "3/16"},
                             {-3, kFractional, 2, "-3"},
                             {1e15, kFractional, 2, "1.00E+15"},
                             {0, kScientific, 3, "0.000E+00"},
                             {-0.0, kDecimal, 3, "0"},
                             {-0.0005, kDecimal, 3, "-0.001"},
                             {10, kDecimal, 3, "10"},
                             {0.125, kDecimal, 3, "0.125"}})
        EXPECT_EQ(lengthText(each.value, {each.style, each.precision}), each.text)
            << each.value << " in style " << each.style;
}

TEST(Angles, AreWrittenInTheFormAndWithThePrecisionOfTheDrawing) {
    struct Form {
        double degrees;
        AngleUnits units;
        const char* text;
    };
    const double east = 0, north = M_PI / 2;
    for (const Form& each : {Form{45, {kDegrees, east, false, 0}, "45°"},
                             {22.5, {kDegrees, east, false, 0}, "23°"},
                             {22.5, {kDegrees, east, false, 4}, "22.5°"},
                             {100, {kDegrees, east, false, 2}, "100°"},
                             {-90, {kDegrees, east, false, 0}, "270°"},
                             {359.7, {kDegrees, east, false, 0}, "0°"},
                             {765, {kDegrees, east, false, 0}, "45°"},
                             {30, {kDegrees, north, false, 0}, "300°"},
                             {30, {kDegrees, north, true, 0}, "60°"},
                             {45.51, {kDegreesMinutesSeconds, east, false, 0}, "46°"},
                             {45.51, {kDegreesMinutesSeconds, east, false, 2}, "45°31'"},
                             {45.51, {kDegreesMinutesSeconds, east, false, 3}, "45°30'36\""},
                             {45.51, {kDegreesMinutesSeconds, east, false, 4}, "45°30'36\""},
                             {45.5101, {kDegreesMinutesSeconds, east, false, 6}, "45°30'36.36\""},
                             {59.9999, {kDegreesMinutesSeconds, east, false, 2}, "60°0'"},
                             {59.9999, {kDegreesMinutesSeconds, east, false, 3}, "60°0'0\""},
                             {359.9999, {kDegreesMinutesSeconds, east, false, 4}, "0°0'0\""},
                             {90, {kGradians, east, false, 0}, "100g"},
                             {45.45, {kGradians, east, false, 1}, "50.5g"},
                             {90, {kRadians, east, false, 4}, "1.5708r"},
                             {0, {kRadians, east, false, 4}, "0r"},
                             {59.5, {kSurveyor, east, false, 2}, "N30°30'E"},
                             {59.5, {kSurveyor, north, true, 2}, "N30°30'E"},
                             {135, {kSurveyor, east, false, 0}, "N45°W"},
                             {225, {kSurveyor, east, false, 0}, "S45°W"},
                             {300, {kSurveyor, east, false, 0}, "S30°E"},
                             {0, {kSurveyor, east, false, 0}, "N90°E"},
                             {90, {kSurveyor, east, false, 0}, "N0°E"},
                             {180, {kSurveyor, east, false, 0}, "N90°W"},
                             {270, {kSurveyor, east, false, 0}, "S0°W"}})
        EXPECT_EQ(angleText(each.degrees * M_PI / 180, each.units), QString::fromUtf8(each.text))
            << each.degrees << " in style " << each.units.style;
}

TEST(Angles, ReadAsTheyAreWritten) {
    for (int style = kDegrees; style <= kSurveyor; ++style)
        for (int degrees = 0; degrees < 360; degrees += 7) {
            const AngleUnits units{style, 0.5, true, 8};
            const QString text = angleText(degrees * M_PI / 180, units);
            const auto read = angleFromText(text, units);
            ASSERT_TRUE(read) << text.toStdString();
            EXPECT_NEAR(std::cos(*read - degrees * M_PI / 180), 1, 1e-9) << text.toStdString();
        }
}

TEST(Angles, AreReadInEveryForm) {
    struct Form {
        const char* text;
        double degrees;
    };
    for (const Form& each :
         {Form{"45", 45},        {" 45 ", 45},       {"-45", -45},  {"45d", 45},    {"45D30'", 45.5},
          {"45d30'36\"", 45.51}, {"45d36\"", 45.01}, {"+.5d", 0.5}, {"-.5d", -0.5}, {"100g", 90},
          {"100G", 90},          {"-50g", -45},      {"N0E", 90},   {"N90E", 0},    {"N90W", 180},
          {"S0E", 270},          {"S90W", 180},      {"S45W", 225}, {"S45E", 315},  {"N30d30'E", 59.5}}) {
        const auto read = angleFromText(each.text, {});
        ASSERT_TRUE(read) << each.text;
        EXPECT_NEAR(*read * 180 / M_PI, each.degrees, 1e-9) << each.text;
    }
    EXPECT_NEAR(*angleFromText("2r", {}), 2, 1e-12);
    EXPECT_NEAR(*angleFromText("-2R", {}), -2, 1e-12);
    for (const char* text : {"N91E", "N-1E", "NE", "N45", "45d30", "45'", "r", "g", "1e999", "1e999r", "inf"})
        EXPECT_FALSE(angleFromText(text, {})) << text;
}

TEST(Angles, FollowTheStyleTheBaseAndTheDirection) {
    EXPECT_NEAR(*angleFromText("100", {kGradians, 0, false}), M_PI / 2, 1e-12);
    EXPECT_NEAR(*angleFromText("45d", {kGradians, 0, false}), M_PI / 4, 1e-12);
    EXPECT_NEAR(*angleFromText("1", {kRadians, 0.5, false}), 1.5, 1e-12);
    EXPECT_NEAR(*angleFromText("1", {kRadians, 0.5, true}), -0.5, 1e-12);
    EXPECT_NEAR(*angleFromText("90", {kDegrees, 1, true}), 1 - M_PI / 2, 1e-12);
}

} // namespace
