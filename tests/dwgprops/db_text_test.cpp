// Texts of dates.
#include "dwgprops/db_text.h"
#include "tests/dwgprops/dialog_driver.h"

#include "tests/support/time_zone.h"

namespace {
constexpr std::uint32_t seventhOfMarch2024 = 2460377;
OdDbDate at(std::uint32_t day, int hour, int minute, int second) {
    return {day, static_cast<std::uint32_t>(((hour * 60 + minute) * 60 + second) * 1000)};
}
} // namespace

TEST(DateText, ReadsDayMonthNameYearAndTime) {
    EXPECT_EQ(DbDateToLocalString(at(seventhOfMarch2024, 14, 5, 9)),
              QStringLiteral("07 March 2024 14:05:09"));
    EXPECT_EQ(formatDate(QDateTime(QDate(2024, 3, 7), QTime(14, 5, 9))),
              QStringLiteral("07 March 2024 14:05:09"));
}

TEST(DateText, ConvertsNoTimeZone) {
    for (const char* zone : {"UTC", "EAST-9", "WEST8"}) {
        const TimeZone inZone(zone);
        EXPECT_EQ(DbDateToLocalString(at(seventhOfMarch2024, 0, 30, 0)),
                  QStringLiteral("07 March 2024 00:30:00"))
            << zone;
    }
}

TEST(DateText, AnHourThatSummerTimeLeavesOutIsShownAsItIsStored) {
    const TimeZone inZone("CET-1CEST,M3.5.0,M10.5.0/3");
    EXPECT_EQ(DbDateToLocalString(at(seventhOfMarch2024 + 24, 2, 30, 0)),
              QStringLiteral("31 March 2024 02:30:00"));
}

TEST(DateText, WhatIsNoDateReadsEmpty) { EXPECT_EQ(formatDate(QDateTime()), QString()); }

TEST(DateText, DatesOutOfRangeAreHarmless) {
    EXPECT_TRUE(DbDateToLocalString(OdDbDate(0, 0)).endsWith("00:00:00"));
    EXPECT_TRUE(DbDateToLocalString(OdDbDate(seventhOfMarch2024, 4000000000U)).startsWith("07 March 2024"));
    EXPECT_NO_THROW(DbDateToLocalString(OdDbDate(0xFFFFFFFF, 0xFFFFFFFF)));
}

TEST(DateText, AWideTextIsShownWithAllItsCharacters) {
    EXPECT_EQ(convertToNormalShow(L"a\u0416\U0001F3E0"), QString::fromUtf8("a\xD0\x96\xF0\x9F\x8F\xA0"));
}
