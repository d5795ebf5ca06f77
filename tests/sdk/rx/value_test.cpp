// Typed values, their group codes, colours, and the memory of the SDK.
#include "sdk/rx/alloc.h"
#include "sdk/rx/color.h"
#include "sdk/rx/res_buf.h"
#include "sdk/rx/stream_buf.h"

#include <cstring>
#include <gtest/gtest.h>

namespace {

struct CodeCase {
    int first, last;
    OdDxfCode::Type type;
};

// Every class of codes by its first and its last one; what lies between is none.
const CodeCase codeCases[] = {{0, 4, OdDxfCode::String},          {5, 5, OdDxfCode::Integer64},
                              {6, 9, OdDxfCode::String},          {10, 59, OdDxfCode::Double},
                              {60, 79, OdDxfCode::Integer16},     {80, 89, OdDxfCode::Unknown},
                              {90, 99, OdDxfCode::Integer32},     {100, 102, OdDxfCode::String},
                              {103, 104, OdDxfCode::Unknown},     {105, 105, OdDxfCode::Integer64},
                              {106, 109, OdDxfCode::Unknown},     {110, 149, OdDxfCode::Double},
                              {150, 159, OdDxfCode::Unknown},     {160, 169, OdDxfCode::Integer64},
                              {170, 179, OdDxfCode::Integer16},   {180, 209, OdDxfCode::Unknown},
                              {210, 239, OdDxfCode::Double},      {240, 269, OdDxfCode::Unknown},
                              {270, 279, OdDxfCode::Integer16},   {280, 289, OdDxfCode::Integer8},
                              {290, 299, OdDxfCode::Bool},        {300, 309, OdDxfCode::String},
                              {310, 369, OdDxfCode::Unknown},     {370, 389, OdDxfCode::Integer16},
                              {390, 399, OdDxfCode::Unknown},     {400, 409, OdDxfCode::Integer16},
                              {410, 419, OdDxfCode::String},      {420, 429, OdDxfCode::Integer32},
                              {430, 439, OdDxfCode::String},      {440, 459, OdDxfCode::Integer32},
                              {460, 469, OdDxfCode::Double},      {470, 479, OdDxfCode::String},
                              {480, 998, OdDxfCode::Unknown},     {999, 1009, OdDxfCode::String},
                              {1010, 1059, OdDxfCode::Double},    {1060, 1070, OdDxfCode::Integer16},
                              {1071, 1071, OdDxfCode::Integer32}, {1072, 5000, OdDxfCode::Unknown},
                              {5001, 5001, OdDxfCode::Double},    {5002, 5002, OdDxfCode::Unknown},
                              {5003, 5003, OdDxfCode::Integer16}, {5005, 5005, OdDxfCode::String},
                              {5010, 5010, OdDxfCode::Integer32}, {5011, 5011, OdDxfCode::Unknown}};

} // namespace

TEST(GroupCodes, HaveTheirClasses) {
    for (const CodeCase& each : codeCases) {
        EXPECT_EQ(OdDxfCode::_getType(each.first), each.type) << each.first;
        EXPECT_EQ(OdDxfCode::_getType(each.last), each.type) << each.last;
    }
    EXPECT_EQ(OdDxfCode::_getType(-1), OdDxfCode::Unknown);
}

TEST(TypedValues, ConvertAmongNumbersButNotBetweenNumbersAndTexts) {
    const OdResBufPtr value = OdResBuf::newRb(70);
    EXPECT_EQ(value->restype(), 70);
    EXPECT_EQ(value->getInt32(), 0) << "empty at first";
    EXPECT_TRUE(value->getString().isEmpty());
    value->setDouble(2.75);
    EXPECT_EQ(value->getInt16(), 2);
    EXPECT_EQ(value->getDouble(), 2.75);
    EXPECT_TRUE(value->getBool());
    EXPECT_TRUE(value->getString().isEmpty());
    value->setDouble(0.5);
    EXPECT_TRUE(value->getBool()) << "any number but 0";
    value->setInt32(-70000);
    EXPECT_EQ(value->getDouble(), -70000);
    EXPECT_EQ(value->getInt16(), static_cast<std::int16_t>(-70000));
    value->setString(L"7");
    EXPECT_EQ(value->getString(), OdString(L"7"));
    EXPECT_EQ(value->getInt32(), 0);
    EXPECT_EQ(value->getDouble(), 0);
    EXPECT_FALSE(value->getBool());
}

TEST(TypedValues, AreCopiedWithTheirType) {
    const OdResBufPtr value = OdResBuf::newRb(5005);
    value->setString(L"one");
    const OdResBufPtr copy = value->clone();
    value->setString(L"two");
    EXPECT_EQ(copy->restype(), 5005);
    EXPECT_EQ(copy->getString(), OdString(L"one"));
}

TEST(Palette, HasTheColoursOfItsNumbers) {
    const std::pair<int, std::uint32_t> colours[] = {
        {0, 0xFFFFFF},   {1, 0xFF0000},   {2, 0xFFFF00},   {3, 0x00FF00},   {4, 0x00FFFF},   {5, 0x0000FF},
        {6, 0xFF00FF},   {7, 0xFFFFFF},   {8, 0x808080},   {9, 0xC0C0C0},   {10, 0xFF0000},  {11, 0xFF7F7F},
        {12, 0xA50000},  {13, 0xA55252},  {14, 0x7F0000},  {15, 0x7F3F3F},  {16, 0x4C0000},  {17, 0x4C2626},
        {18, 0x260000},  {19, 0x261313},  {20, 0xFF3F00},  {30, 0xFF7F00},  {40, 0xFFBF00},  {50, 0xFFFF00},
        {60, 0xBFFF00},  {70, 0x7FFF00},  {80, 0x3FFF00},  {90, 0x00FF00},  {100, 0x00FF3F}, {130, 0x00FFFF},
        {150, 0x007FFF}, {170, 0x0000FF}, {190, 0x7F00FF}, {210, 0xFF00FF}, {230, 0xFF007F}, {240, 0xFF003F},
        {249, 0x261317}, {250, 0x333333}, {251, 0x5B5B5B}, {252, 0x848484}, {253, 0xADADAD}, {254, 0xD6D6D6},
        {255, 0xFFFFFF}};
    for (const auto& [number, colour] : colours)
        EXPECT_EQ(OdCmEntityColor::lookUpRGB(static_cast<std::uint8_t>(number)), colour) << number;
}

TEST(Palette, GivesTheNearestNumberAndOfEqualOnesTheLowest) {
    const auto nearest = [](int red, int green, int blue) {
        return int(OdCmEntityColor::lookUpACI(static_cast<std::uint8_t>(red),
                                              static_cast<std::uint8_t>(green),
                                              static_cast<std::uint8_t>(blue)));
    };
    EXPECT_EQ(nearest(255, 0, 0), 1) << "and not 10";
    EXPECT_EQ(nearest(255, 255, 255), 7) << "and neither 0 nor 255";
    EXPECT_EQ(nearest(250, 5, 5), 1);
    EXPECT_EQ(nearest(165, 0, 0), 12);
    EXPECT_EQ(nearest(0, 127, 255), 150);
    EXPECT_EQ(nearest(130, 132, 133), 252);
    EXPECT_EQ(nearest(128, 128, 128), 8);
    EXPECT_EQ(nearest(0, 0, 0), 18) << "the darkest there is, of which there are several";
}

TEST(Memory, IsCountedAndGrows) {
    const std::uint64_t taken = odrxAllocCount(), given = odrxFreeCount();
    auto* block = static_cast<char*>(odrxAlloc(4));
    std::memcpy(block, "abc", 4);
    block = static_cast<char*>(odrxRealloc(block, 4000, 4));
    EXPECT_STREQ(block, "abc");
    EXPECT_EQ(odrxAllocCount() - taken, 1u);
    odrxFailAllocations(true);
    EXPECT_EQ(odrxRealloc(block, 8000, 4000), nullptr);
    EXPECT_EQ(odrxAlloc(1), nullptr);
    odrxFailAllocations(false);
    EXPECT_STREQ(block, "abc") << "what can't grow stays";
    odrxFree(block);
    EXPECT_EQ(odrxFreeCount() - given, 1u);
}

TEST(SystemServices, OfferOnlyTheReadingOfFilesThatExist) {
    const OdString file(L"" TEST_DATA_DIR "/check_lists.py");
    EXPECT_FALSE(odSystemServices()->createFile(file).isNull());
    EXPECT_FALSE(
        odSystemServices()->createFile(file, Oda::kFileRead, Oda::kShareDenyNo, Oda::kOpenExisting).isNull());
    EXPECT_THROW(
        odSystemServices()->createFile(file, Oda::kFileRead + 1, Oda::kShareDenyNo, Oda::kOpenExisting),
        OdError);
    EXPECT_THROW(
        odSystemServices()->createFile(file, Oda::kFileRead, Oda::kShareDenyNo, Oda::kOpenExisting + 1),
        OdError);
}
