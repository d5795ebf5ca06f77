// Units, dates, name patterns, previews, system variables and coordinate systems.
#include "tests/sdk/db/drawing_fixture.h"

#include "sdk/db/application_variables.h"
#include "sdk/db/layer_table.h"
#include "sdk/db/thumbnail.h"
#include "sdk/rx/wildcard.h"
#include "tests/support/time_zone.h"

#include <cmath>

TEST(Units, FactorsAreInMetres) {
    double metres = 0;
    EXPECT_EQ(GetUnitFactor(OdDb::kUnitsMillimeters, metres), eOk);
    EXPECT_DOUBLE_EQ(metres, 0.001);
    EXPECT_EQ(GetUnitFactor(OdDb::kUnitsInches, metres), eOk);
    EXPECT_DOUBLE_EQ(metres, 0.0254);
    EXPECT_EQ(GetUnitFactor(OdDb::kUnitsUSSurveyMile, metres), eOk);
    EXPECT_NEAR(metres, 1609.347, 1e-3);
}

TEST(Units, EachHasItsSizeInMetres) {
    const double sizes[] = {0.0254,    0.3048,    1609.344,     0.001,       0.01,        1,
                            1000,      2.54e-8,   2.54e-5,      0.9144,      1e-10,       1e-9,
                            1e-6,      0.1,       10,           100,         1e9,         149597870700.0,
                            9.4607e15, 3.0857e16, 0.3048006096, 0.025400051, 0.914401829, 1609.347219};
    for (int unit = 1; unit <= 24; ++unit) {
        double metres = 0;
        EXPECT_EQ(GetUnitFactor(static_cast<OdDb::UnitsValue>(unit), metres), eOk) << unit;
        EXPECT_NEAR(metres / sizes[unit - 1], 1, 1e-5) << unit;
    }
}

TEST(Units, NoUnitAndUnknownUnitsFailAndLeaveTheTargetAlone) {
    double metres = 7;
    EXPECT_NE(GetUnitFactor(OdDb::kUnitsUndefined, metres), eOk);
    EXPECT_NE(GetUnitFactor(static_cast<OdDb::UnitsValue>(25), metres), eOk);
    EXPECT_NE(GetUnitFactor(static_cast<OdDb::UnitsValue>(-1), metres), eOk);
    EXPECT_EQ(metres, 7);
}

TEST(Units, FormOfTwoUnitsIsOneWhenOneIsUnknown) {
    EXPECT_DOUBLE_EQ(GetUnitFactor(OdDb::kUnitsMeters, OdDb::kUnitsMillimeters), 1000);
    EXPECT_DOUBLE_EQ(GetUnitFactor(OdDb::kUnitsMillimeters, OdDb::kUnitsMeters), 0.001);
    EXPECT_EQ(GetUnitFactor(OdDb::kUnitsUndefined, OdDb::kUnitsMeters), 1.0);
    EXPECT_EQ(GetUnitFactor(OdDb::kUnitsMeters, static_cast<OdDb::UnitsValue>(99)), 1.0);
    EXPECT_EQ(GetUnitFactor(OdDb::kUnitsUndefined, OdDb::kUnitsUndefined), 1.0);
}

TEST(Dates, FieldsAreThoseOfTheJulianDay) {
    const OdTimeStamp date(2460377, ((14 * 60 + 5) * 60 + 9) * 1000 + 250);
    EXPECT_EQ(date.day(), 7);
    EXPECT_EQ(date.month(), 3);
    EXPECT_EQ(date.year(), 2024);
    EXPECT_EQ(date.hour(), 14);
    EXPECT_EQ(date.minute(), 5);
    EXPECT_EQ(date.second(), 9);
    EXPECT_EQ(date.millisecond(), 250);
}

TEST(Dates, SettersComeInAnyOrder) {
    OdDbDate date;
    date.setSecond(9);
    date.setMinute(5);
    date.setHour(14);
    date.setDay(31);
    date.setMonth(3);
    date.setYear(2024);
    EXPECT_EQ(date.year(), 2024);
    EXPECT_EQ(date.hour(), 14);
    EXPECT_EQ(date.second(), 9);
    EXPECT_EQ(date.day(), 31);
}

TEST(Dates, FractionOfTheDayGoesThereAndBack) {
    const OdTimeStamp date(2460377, 86399999);
    EXPECT_EQ(OdTimeStamp::fromJulianFraction(date.asJulianFraction()), date);
    EXPECT_EQ(OdTimeStamp::fromJulianFraction(std::nan("")), OdTimeStamp());
    EXPECT_EQ(OdTimeStamp::fromJulianFraction(1e30), OdTimeStamp());
    EXPECT_EQ(OdTimeStamp::fromJulianFraction(-0.5), OdTimeStamp());
    EXPECT_EQ(OdTimeStamp::fromJulianFraction(1e7), OdTimeStamp());
    EXPECT_EQ(OdTimeStamp::fromJulianFraction(2460377.5), OdTimeStamp(2460377, 43200000));
    EXPECT_EQ(OdTimeStamp::fromJulianFraction(2460377.9999999999), OdTimeStamp(2460378, 0))
        << "the last half of a millisecond belongs to the next day";
}

TEST(Dates, LocalAndUniversalTimeAreEachOthersReverse) {
    const TimeZone east("EAST-9");
    OdTimeStamp date(2460377, 61200000); // 17 hours: 2 hours past midnight in the east
    date.universalToLocal();
    EXPECT_EQ(date, OdTimeStamp(2460378, 7200000));
    date.localToUniversal();
    EXPECT_EQ(date, OdTimeStamp(2460377, 61200000));
}

TEST(Dates, OfNowAreThoseOfTheirClock) {
    const TimeZone east("EAST-9");
    const double universal = OdTimeStamp(OdTimeStamp::kInitUniversalTime).asJulianFraction();
    const double local = OdTimeStamp(OdTimeStamp::kInitLocalTime).asJulianFraction();
    EXPECT_NEAR(local - universal, 9 / 24.0, 1e-3);
    OdTimeStamp converted(OdTimeStamp::kInitUniversalTime);
    converted.universalToLocal();
    EXPECT_NEAR(converted.asJulianFraction(), local, 1e-3);
}

TEST(Dates, OfANewDrawingAreThoseOfItsMaking) {
    const TimeZone east("EAST-9");
    const OdDbDatabasePtr made = OdDbDatabase::createEmpty();
    const double universal = OdTimeStamp(OdTimeStamp::kInitUniversalTime).asJulianFraction();
    for (const auto& [name, hours] :
         {std::pair(L"TDCREATE", 9), {L"TDUPDATE", 9}, {L"TDUCREATE", 0}, {L"TDUUPDATE", 0}})
        EXPECT_NEAR(made->getSysVar(name)->getDouble(), universal + hours / 24.0, 1e-3) << hours;
    EXPECT_NEAR(made->getTDCREATE().asJulianFraction(), universal + 9 / 24.0, 1e-3);
    EXPECT_NEAR(made->getTDUPDATE().asJulianFraction(), universal + 9 / 24.0, 1e-3);
    EXPECT_NEAR(made->getTDINDWG().asJulianFraction(), 0, 1e-3);
    EXPECT_FALSE(made->isModified());
}

TEST(NamePatterns, WildcardsIgnoreCase) {
    EXPECT_TRUE(odutWcMatchNoCase(L"Walls", L"*"));
    EXPECT_TRUE(odutWcMatchNoCase(L"", L"*"));
    EXPECT_TRUE(odutWcMatchNoCase(L"Walls", L"w*S"));
    EXPECT_FALSE(odutWcMatchNoCase(L"Walls", L"w"));
    EXPECT_TRUE(odutWcMatchNoCase(L"G12", L"g##"));
    EXPECT_FALSE(odutWcMatchNoCase(L"G1a", L"g##"));
    EXPECT_TRUE(odutWcMatchNoCase(L"ab", L"@?"));
    EXPECT_TRUE(odutWcMatchNoCase(L"b", L"[a-c]"));
    EXPECT_FALSE(odutWcMatchNoCase(L"b", L"[~a-c]"));
    EXPECT_TRUE(odutWcMatchNoCase(L"door", L"wall*,d*"));
    EXPECT_FALSE(odutWcMatchNoCase(L"door", L"~d*"));
    EXPECT_TRUE(odutWcMatchNoCase(L"*A1", L"`*a*"));
    EXPECT_FALSE(odutWcMatchNoCase(L"xA1", L"`*a*"));
    EXPECT_FALSE(odutWcMatchNoCase(std::wstring(5000, L'a'), L"*a*a*a*a*a*a*a*b"));
}

namespace {

// Two by one pixels, red and blue, 24 bits each.
std::string smallBitmap() {
    std::string bitmap(40, '\0');
    bitmap[0] = 40;
    bitmap[4] = 2;
    bitmap[8] = 1;
    bitmap[12] = 1;
    bitmap[14] = 24;
    return bitmap + std::string("\x00\x00\xFF\xFF\x00\x00\x00\x00", 8);
}

} // namespace

TEST(Previews, BitmapGoesIntoTheFileAndBack) {
    const OdDbDatabasePtr database = OdDbDatabase::createEmpty();
    OdThumbnailImage image;
    image.bmp = smallBitmap();
    odDbPutPreviewBitmap(database.get(), image);
    const std::string bytes = database->writeBytes();
    OdStreamBufPtr stream(new OdStreamBuf(bytes));
    OdThumbnailImage read;
    ASSERT_EQ(odDbGetPreviewBitmap(stream.get(), &read), eOk);
    EXPECT_EQ(read.bmp, image.bmp);
    EXPECT_FALSE(read.hasPng());
    EXPECT_TRUE(read.convBmpToPng());
    EXPECT_EQ(read.png.substr(0, 8), "\x89PNG\r\n\x1a\n");
    const OdDbDatabasePtr again = OdDbDatabase::readBytes(bytes);
    EXPECT_EQ(again->writeBytes(), bytes);
    image.bmp += std::string(300, 'x');
    odDbPutPreviewBitmap(again.get(), image);
    OdStreamBufPtr second(new OdStreamBuf(again->writeBytes()));
    OdThumbnailImage other;
    ASSERT_EQ(odDbGetPreviewBitmap(second.get(), &other), eOk);
    EXPECT_EQ(other.bmp, image.bmp);
}

// One bit a pixel: the picture is 24 times the file.
TEST(Previews, LargeBitmapsLoseRowsAndColumns) {
    const int width = 5000, height = 3000;
    std::string bitmap(48, '\0');
    const auto put = [&bitmap](std::size_t at, int value) {
        for (std::size_t byte = 0; byte < 4; ++byte)
            bitmap[at + byte] = static_cast<char>(value >> (8 * byte));
    };
    put(0, 40);
    put(4, width);
    put(8, height);
    put(12, 1 | 1 << 16);
    OdThumbnailImage image;
    image.bmp = bitmap + std::string(std::size_t{(width + 31) / 32 * 4} * height, '\0');
    ASSERT_TRUE(image.convBmpToPng());
    EXPECT_EQ(image.png.substr(16, 8), std::string("\0\0\x06\x83\0\0\x03\xe8", 8)) << "1667 by 1000";
}

TEST(Previews, DrawingWithoutOneAndOtherFilesSaySo) {
    OdThumbnailImage image;
    OdStreamBufPtr without(new OdStreamBuf(OdDbDatabase::createEmpty()->writeBytes()));
    EXPECT_EQ(odDbGetPreviewBitmap(without.get(), &image), eKeyNotFound);
    OdStreamBufPtr garbage(new OdStreamBuf("no drawing"));
    EXPECT_EQ(odDbGetPreviewBitmap(garbage.get(), &image), eInvalidDrawing);
    EXPECT_EQ(codeOf([] { odSystemServices()->createFile(L"/nonexistent.dxf"); }), eCantOpenFile);
    image.bmp = "too short";
    EXPECT_FALSE(image.convBmpToPng());
}

class Variables : public DrawingTest {};

TEST_F(Variables, HeaderValuesAreFoundInAnyCase) {
    EXPECT_EQ(database->getSysVar(L"luprec")->getInt16(), 4);
    EXPECT_EQ(database->getSysVar(L"TEXTSTYLE")->getString(), OdString(L"Standard"));
    EXPECT_EQ(database->getSysVar(L"LTSCALE")->getDouble(), 1.0);
    EXPECT_EQ(codeOf([&] { database->getSysVar(L"NOSUCH"); }), eKeyNotFound);
}

TEST_F(Variables, PickStyleIsOneUntilItIsSet) {
    EXPECT_EQ(database->getSysVar(L"PICKSTYLE")->getInt8(), 1);
    const OdResBufPtr zero = OdResBuf::newRb(OdResBuf::kDxfInt8);
    zero->setInt8(0);
    database->setSysVar(L"pickstyle", zero.get());
    EXPECT_EQ(database->getSysVar(L"PICKSTYLE")->getInt8(), 0);
    EXPECT_FALSE(database->isModified());
}

TEST_F(Variables, ThoseOfTheApplicationComeFirst) {
    struct Own : OdDbApplicationVariables {
        OdResBufPtr getVariable(const OdString& name) override {
            return name.iCompare(L"PICKSTYLE") == 0 ? value : OdResBufPtr();
        }
        bool setVariable(const OdString&, const OdResBuf*) override { return false; }
        OdResBufPtr value = OdResBuf::newRb(OdResBuf::kDxfInt8);
    } own;
    own.value->setInt8(3);
    odDbSetApplicationVariables(&own);
    const int value = database->getSysVar(L"PICKSTYLE")->getInt8();
    odDbSetApplicationVariables(nullptr);
    EXPECT_EQ(value, 3);
}

TEST_F(Variables, CoordinateSystemOfTheDrawing) {
    OdGeMatrix3d matrix;
    getCurrentUCS(database.get(), matrix);
    EXPECT_EQ(matrix, OdGeMatrix3d::kIdentity);
    EXPECT_EQ(get_UCSXDIR(database.get()), OdGeVector3d::kXAxis);
    setCurrentUCS(database.get(), {10, 20, 0}, {0, 1, 0}, {-1, 0, 0});
    getCurrentUCS(database.get(), matrix);
    EXPECT_EQ(matrix * OdGePoint3d(1, 0, 0), OdGePoint3d(10, 21, 0));
    const OdDbDatabasePtr read = OdDbDatabase::readBytes(database->writeBytes());
    EXPECT_EQ(get_UCSXDIR(read.get()), OdGeVector3d::kYAxis);
    EXPECT_EQ(get_UCSORG(read.get()), OdGePoint3d(10, 20, 0));
}

TEST(VariablesOfOldFiles, HaveTheUsualCoordinateSystem) {
    const OdDbDatabasePtr old = OdDbDatabase::readBytes("0\nSECTION\n2\nENTITIES\n0\nENDSEC\n0\nEOF\n");
    EXPECT_EQ(get_UCSORG(old.get()), OdGePoint3d(0, 0, 0));
    EXPECT_EQ(get_UCSXDIR(old.get()), OdGeVector3d(1, 0, 0));
    EXPECT_EQ(get_UCSYDIR(old.get()), OdGeVector3d(0, 1, 0));
    EXPECT_EQ(old->getINSUNITS(), OdDb::kUnitsUndefined);
    old->setINSUNITS(OdDb::kUnitsMeters);
    EXPECT_TRUE(old->isModified());
    EXPECT_EQ(OdDbDatabase::readBytes(old->writeBytes())->getINSUNITS(), OdDb::kUnitsMeters);
}

TEST_F(Variables, AreSetInTheTypeThatTheyHave) {
    const auto set = [this](const wchar_t* name, auto change) {
        const OdResBufPtr value = database->getSysVar(name)->clone();
        change(*value);
        database->setSysVar(name, value.get());
    };
    set(L"LTSCALE", [](OdResBuf& value) { value.setDouble(2.5); });
    set(L"ClAyEr", [](OdResBuf& value) { value.setString(L"Walls"); });
    set(L"LUPREC", [](OdResBuf& value) { value.setInt16(6); });
    EXPECT_TRUE(database->isModified());
    const OdDbDatabasePtr read = OdDbDatabase::readBytes(database->writeBytes());
    EXPECT_EQ(read->getSysVar(L"LTSCALE")->getDouble(), 2.5);
    EXPECT_EQ(read->getSysVar(L"CLAYER")->getString(), OdString(L"Walls"));
    EXPECT_EQ(read->getSysVar(L"LUPREC")->getInt16(), 6);
    read->setSysVar(L"LTSCALE", database->getSysVar(L"LTSCALE").get());
    EXPECT_FALSE(read->isModified()) << "the value that it has is no change";
}

TEST_F(Variables, EditingTimeCounts) {
    const double before = database->getTDINDWG().asJulianFraction();
    const auto start = std::chrono::steady_clock::now();
    while (std::chrono::steady_clock::now() - start < std::chrono::milliseconds(3)) {
    }
    EXPECT_GT(database->getTDINDWG().asJulianFraction(), before);
}

TEST_F(Variables, SpacesAndViewports) {
    EXPECT_EQ(database->currentSpaceId(), database->getModelSpaceId());
    const OdResBufPtr off = OdResBuf::newRb(70);
    database->setSysVar(L"TILEMODE", off.get());
    EXPECT_EQ(database->currentSpaceId(), database->getPaperSpaceId());
    const auto paper =
        odrxCast<OdDbBlockTableRecord>(database->getPaperSpaceId().safeOpenObject(OdDb::kForWrite));
    OdDbViewportPtr layout(new OdDbViewport), floating(new OdDbViewport);
    layout->setNumber(1);
    paper->appendOdDbEntity(layout.get());
    paper->appendOdDbEntity(floating.get());
    EXPECT_EQ(odrxCast<OdDbViewport>(database->activeViewportId().safeOpenObject())->number(), 1);
    database->setActiveViewportId(floating->objectId());
    EXPECT_EQ(odrxCast<OdDbViewport>(database->activeViewportId().safeOpenObject())->number(), 2);
}
