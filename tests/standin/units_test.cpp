// Lengths and angles as text.
#include "standin/units/unit_text.h"

#include "host/command_io.h"

#include <cmath>
#include <gtest/gtest.h>

using namespace standin;

namespace {

TEST(UnitsLength, NumbersAreReadWithAPoint) {
    EXPECT_EQ(lengthFromText("2.5", kDecimal), 2.5);
    EXPECT_EQ(lengthFromText(" -.5 ", kDecimal), -0.5);
    EXPECT_EQ(lengthFromText("1e3", kDecimal), 1000);
    EXPECT_FALSE(lengthFromText("2,5", kDecimal));
}

TEST(UnitsLength, TextThatIsNoLengthIsRefused) {
    for (const char* text : {"", " ", "abc", "1.2.3", "--1", "nan", "inf", "1e999", "1/0", "5x"})
        EXPECT_FALSE(lengthFromText(text, kDecimal)) << text;
}

TEST(UnitsLength, FractionsAreRead) {
    EXPECT_EQ(lengthFromText("3/4", kDecimal), 0.75);
    EXPECT_EQ(lengthFromText("3/1", kDecimal), 3);
    EXPECT_EQ(lengthFromText("1-3/4", kFractional), 1.75);
    EXPECT_EQ(lengthFromText("-1 1/2", kFractional), -1.5);
}

TEST(UnitsLength, FeetAndInchesAreReadInTheStylesThatHaveThem) {
    EXPECT_EQ(lengthFromText("5'2-1/2\"", kArchitectural), 62.5);
    EXPECT_EQ(lengthFromText("5'-6.5\"", kEngineering), 66.5);
    EXPECT_EQ(lengthFromText("2'", kArchitectural), 24);
    EXPECT_EQ(lengthFromText("7", kArchitectural), 7);
    EXPECT_EQ(lengthFromText("5'2", kArchitectural), 62);
    EXPECT_EQ(lengthFromText("5'-2", kArchitectural), 62);
    EXPECT_EQ(lengthFromText("-5'2", kEngineering), -62);
    EXPECT_EQ(lengthFromText("+1/2\"", kEngineering), 0.5);
    for (const char* text : {"'2", "x'2", "5'x", "5'--2", "5'2'", "1e308'"})
        EXPECT_FALSE(lengthFromText(text, kArchitectural)) << text;
    EXPECT_FALSE(lengthFromText("5'2\"", kDecimal));
    EXPECT_FALSE(lengthFromText("5'2\"", kFractional));
}

TEST(UnitsLength, TextsFollowStyleAndPrecision) {
    EXPECT_EQ(lengthText(2.50, {kDecimal, 4}), "2.5");
    EXPECT_EQ(lengthText(-0.00001, {kDecimal, 4}), "0");
    EXPECT_EQ(lengthText(1234.5, {kScientific, 2}), "1.23E+03");
    EXPECT_EQ(lengthText(62.5, {kArchitectural, 4}), "5'-2-1/2\"");
    EXPECT_EQ(lengthText(66.25, {kEngineering, 2}), "5'-6.25\"");
    EXPECT_EQ(lengthText(-1.75, {kFractional, 3}), "-1-3/4");
    EXPECT_EQ(lengthText(0.75, {kFractional, 3}), "3/4");
    EXPECT_EQ(lengthText(2.03, {kFractional, 3}), "2");
    EXPECT_EQ(lengthText(0.09, {kFractional, 3}), "1/8") << "the nearest eighth";
    EXPECT_EQ(lengthText(1.5, {kDecimal, 0}), "2");
    EXPECT_EQ(lengthText(100, {kDecimal, 0}), "100") << "zeros of a whole number stay";
    EXPECT_EQ(lengthText(24, {kEngineering, 2}), "2'-0\"");
    EXPECT_EQ(lengthText(-0.4, {kFractional, 0}), "0");
}

TEST(UnitsLength, NumbersOfHundredsOfDigitsAreWrittenWithAnExponentInEveryStyle) {
    for (int style = kScientific; style <= kFractional; ++style) {
        const QString text = lengthText(-1e300, {style, 4});
        EXPECT_EQ(text, "-1.0000E+300") << style;
        EXPECT_EQ(lengthFromText(text, style), -1e300) << style;
    }
    EXPECT_EQ(lengthText(999999999999999.0, {kDecimal, 0}), "999999999999999");
    EXPECT_EQ(lengthText(1e15, {kDecimal, 0}), "1E+15");
}

TEST(UnitsAngle, DegreesMinutesAndSecondsAreRead) {
    EXPECT_NEAR(*angleFromText("45", {}), M_PI / 4, 1e-12);
    EXPECT_NEAR(*angleFromText("45d30'", {}), 45.5 * M_PI / 180, 1e-12);
    EXPECT_NEAR(*angleFromText("-10d0'36\"", {}), -10.01 * M_PI / 180, 1e-12);
}

TEST(UnitsAngle, MarksNameOtherStyles) {
    EXPECT_NEAR(*angleFromText("100g", {}), M_PI / 2, 1e-12);
    EXPECT_NEAR(*angleFromText("1.5r", {}), 1.5, 1e-12);
    EXPECT_NEAR(*angleFromText("N45dE", {}), M_PI / 4, 1e-12);
    EXPECT_NEAR(*angleFromText("S30dW", {}), 240 * M_PI / 180, 1e-12);
    EXPECT_NEAR(*angleFromText("n30dw", {}), 120 * M_PI / 180, 1e-12);
    EXPECT_NEAR(*angleFromText("S30dE", {}), 300 * M_PI / 180, 1e-12);
    EXPECT_NEAR(*angleFromText("N90dE", {}), 0, 1e-12);
    EXPECT_NEAR(*angleFromText("N0E", {}), M_PI / 2, 1e-12);
    EXPECT_NEAR(*angleFromText("N45dE", {kDegrees, 1, true}), M_PI / 4, 1e-12) << "never turned";
    EXPECT_FALSE(angleFromText("N-5E", {}));
}

TEST(UnitsAngle, PlainNumberFollowsTheStyle) {
    EXPECT_NEAR(*angleFromText("100", {kGradians, 0, false}), M_PI / 2, 1e-12);
    EXPECT_NEAR(*angleFromText("2", {kRadians, 0, false}), 2, 1e-12);
}

TEST(UnitsAngle, BaseAndDirectionOfTheDrawingCount) {
    EXPECT_NEAR(*angleFromText("30", {kDegrees, M_PI / 2, true}), M_PI / 3, 1e-12);
}

TEST(UnitsAngle, TextThatIsNoAngleIsRefused) {
    for (const char* text : {"", "abc", "45x", "N95dE", "d", "nan"})
        EXPECT_FALSE(angleFromText(text, {})) << text;
}

TEST(UnitsFunctions, FailedReadLeavesTheValue) {
    double value = 7;
    EXPECT_FALSE(hostdbDisToF(L"wide", -1, value));
    EXPECT_FALSE(hostdbAngToF(L"wide", -1, value, 3));
    EXPECT_EQ(value, 7);
    EXPECT_TRUE(hostdbDisToF(L"2.5", -1, value));
    EXPECT_EQ(value, 2.5);
    EXPECT_TRUE(hostdbAngToF(L"180", -1, value, 3));
    EXPECT_NEAR(value, M_PI, 1e-12);
}

TEST(UnitsFunctions, RealIsWrittenInAStyleOrElseAsThePlainNumberThatReadsBack) {
    OdString text;
    hostdbRToS(62.5, kArchitectural, 1, text, -1, -1);
    EXPECT_EQ(text, OdString(L"5'-2-1/2\""));
    for (const wchar_t* number : {L"2.5", L"0.125", L"-0.00001", L"0.1", L"1000000", L"123456.789012345"}) {
        const double value = QString::fromWCharArray(number).toDouble();
        hostdbRToS(value, -1, 1, text, -1, -1);
        EXPECT_EQ(text, OdString(number));
    }
    hostdbRToS(1e300, -1, 1, text, -1, -1);
    EXPECT_EQ(QString::fromStdWString(text.wide()).toDouble(), 1e300);
}

} // namespace
