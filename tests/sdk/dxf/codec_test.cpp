// Texts in code pages and their escapes.
#include "sdk/dxf/codec.h"

#include <gtest/gtest.h>

TEST(Codec, CodePagesOfOldFiles) {
    EXPECT_EQ(DxfCodec::forCodePage("ANSI_1252")
                  .decode("K\xFC"
                          "che"),
              OdString(L"K\u00fcche"));
    EXPECT_EQ(DxfCodec::forCodePage("ansi_1251").decode("\xC4\xEE\xEC"), OdString(L"\u0414\u043e\u043c"));
    EXPECT_EQ(DxfCodec::forCodePage("ANSI_932").decode("\x93\xFA\x96{"), OdString(L"\u65e5\u672c"));
    EXPECT_EQ(DxfCodec::forCodePage("ANSI_936").decode("\xD6\xD0"), OdString(L"\u4e2d"));
    EXPECT_EQ(DxfCodec::forCodePage("ANSI_949").decode("\xC7\xD1"), OdString(L"\ud55c"));
    EXPECT_EQ(DxfCodec::forCodePage("ANSI_950").decode("\xA4\xA4"), OdString(L"\u4e2d"));
    EXPECT_EQ(DxfCodec::forCodePage("DOS850").decode("\x81"), OdString(L"\u00fc"));
}

TEST(Codec, UnknownPageIsReadAsWestern) {
    bool known = true;
    EXPECT_EQ(DxfCodec::forCodePage("ANSI_4711", &known).decode("\xFC"), OdString(L"\u00fc"));
    EXPECT_FALSE(known);
    DxfCodec::forCodePage("ANSI_1252", &known);
    EXPECT_TRUE(known);
}

TEST(Codec, CharactersThatThePageLacksAreEscaped) {
    const DxfCodec western = DxfCodec::forCodePage("ANSI_1252");
    EXPECT_EQ(western.encode(L"\u00fc\u4e16"), "\xFC\\U+4E16");
    EXPECT_EQ(western.encode(L"\U0001F600"), "\\U+D83D\\U+DE00");
    EXPECT_EQ(western.decode("\\U+D83D\\U+DE00"), OdString(L"\U0001F600"));
    EXPECT_EQ(DxfCodec().encode(L"\u4e16\U0001F600"), "\xE4\xB8\x96\xF0\x9F\x98\x80");
    EXPECT_EQ(DxfCodec().decode("\\U+4E16"), OdString(L"\u4e16"));
}

TEST(Codec, UnfinishedEscapesStayAsTheyStand) {
    EXPECT_EQ(DxfCodec().decode("\\U+4E1"), OdString(L"\\U+4E1"));
    EXPECT_EQ(DxfCodec().decode("\\U+4G16"), OdString(L"\\U+4G16"));
    EXPECT_EQ(DxfCodec().decode("a^"), OdString(L"a^"));
    EXPECT_EQ(DxfCodec().decode("2^8"), OdString(L"2^8"));
}

TEST(Codec, TextsOfAnyKindComeBackAsOneLine) {
    for (const DxfCodec& codec : {DxfCodec(), DxfCodec::forCodePage("ANSI_1252")}) {
        for (const wchar_t* text : {L"two\nlines", L"tab\there", L"2^8", L"^J is no line feed", L"a^ b",
                                    L"^^J", L"\\U+0041 typed", L"\r\n", L"\u00e4\u4e16", L""}) {
            const std::string bytes = codec.encode(text);
            EXPECT_EQ(bytes.find_first_of("\r\n"), std::string::npos);
            EXPECT_EQ(codec.decode(bytes), OdString(text));
        }
    }
    EXPECT_EQ(DxfCodec().encode(std::wstring(L"a\0b", 3)), "a b");
}
