// Texts in code pages and their escapes.
#include "sdk/dxf/codec.h"

#include "sdk/dxf/iconv_codec.h"

#include <QTextCodec>
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

TEST(Codec, PagesGoByAllTheirUsualNames) {
    struct Case {
        const char* name;
        std::string bytes;
        const wchar_t* text;
    };
    const Case cases[] = {
        {"gb2312", "\xD6\xD0", L"\u4e2d"},    {"GBK", "\xD6\xD0", L"\u4e2d"},
        {"gb18030", "\xD6\xD0", L"\u4e2d"},   {"big5", "\xA4\xA4", L"\u4e2d"},
        {"ksc5601", "\xC7\xD1", L"\ud55c"},   {"KS_C_5601-1987", "\xC7\xD1", L"\ud55c"},
        {"johab", "\xD0\x65", L"\ud55c"},     {"ANSI_1361", "\xD0\x65", L"\ud55c"},
        {"mac-roman", "\x9F", L"\u00fc"},     {"macintosh", "\x9F", L"\u00fc"},
        {"utf-8", "\xC3\xBC", L"\u00fc"},     {"UTF8", "\xC3\xBC", L"\u00fc"},
        {"dos437", "\x81", L"\u00fc"},        {"DOS_437", "\x81", L"\u00fc"},
        {"CP850", "\x81", L"\u00fc"},         {"dos852", "\x81", L"\u00fc"},
        {"dos855", "\xA1", L"\u0410"},        {"dos857", "\x81", L"\u00fc"},
        {"dos860", "\x84", L"\u00e3"},        {"dos861", "\x81", L"\u00fc"},
        {"dos863", "\x81", L"\u00fc"},        {"dos865", "\x81", L"\u00fc"},
        {"dos866", "\x84", L"\u0414"},        {"dos869", "\xA4", L"\u0391"},
        {"dos737", "\x80", L"\u0391"},        {"dos932", "\x93\xFA", L"\u65e5"},
        {"shift_jis", "\x93\xFA", L"\u65e5"}, {"iso8859-1", "\xFC", L"\u00fc"},
        {"8859_2", "\xB3", L"\u0142"},        {"ISO8859-5", "\xB4", L"\u0414"},
        {"iso_8859-7", "\xC1", L"\u0391"},    {"8859_9", "\xFD", L"\u0131"},
        {"ansi_874", "\xA1", L"\u0e01"},      {"windows-1253", "\xC1", L"\u0391"},
        {"ansi1250", "\xB3", L"\u0142"},      {"ascii", "a", L"a"},
        {"ANSI_1255", "\xE0", L"\u05d0"},     {"ANSI_1256", "\xC7", L"\u0627"},
        {"ANSI_1257", "\xE0", L"\u0105"},     {"ANSI_1258", "\xFC", L"\u00fc"},
    };
    for (const Case& one : cases) {
        bool known = false;
        const DxfCodec codec = DxfCodec::forCodePage(one.name, &known);
        EXPECT_TRUE(known) << one.name;
        EXPECT_EQ(codec.decode(one.bytes), OdString(one.text)) << one.name;
        EXPECT_EQ(codec.encode(one.text), one.bytes) << one.name;
    }
    for (const char* name : {"", "ANSI", "8859", "dos", "dos99999", "4711x", "ISO8859-77"}) {
        bool known = true;
        DxfCodec::forCodePage(name, &known);
        EXPECT_EQ(known, std::string(name) == "ANSI") << name;
    }
}

TEST(Codec, APageOfTheCLibraryEscapesWhatItLacks) {
    const DxfCodec johab = DxfCodec::forCodePage("johab");
    EXPECT_EQ(johab.encode(L"\ud55c\u0e01"), "\xD0\x65\\U+0E01");
    EXPECT_EQ(johab
                  .decode("a\xFF"
                          "b")
                  .wide(),
              L"a\ufffd"
              L"b");
    const std::wstring much(1000, L'\ud55c');
    EXPECT_EQ(johab.decode(johab.encode(much)), OdString(much));
}

TEST(Codec, APageOfTheCLibraryCountsWhatItCannotConvert) {
    QTextCodec* const johab = dxfIconvCodec("JOHAB");
    ASSERT_NE(johab, nullptr);
    EXPECT_EQ(dxfIconvCodec("JOHAB"), johab) << "it is made once";
    EXPECT_EQ(dxfIconvCodec("no such page"), nullptr);
    const auto faults = [johab](const QByteArray& bytes) {
        QTextCodec::ConverterState state;
        johab->toUnicode(bytes.constData(), bytes.size(), &state);
        return state.invalidChars;
    };
    EXPECT_EQ(faults("abc"), 0);
    EXPECT_EQ(faults("a\xFF"
                     "b\xFF"),
              2);
    const auto lacked = [johab](const QString& text) {
        QTextCodec::ConverterState state;
        johab->fromUnicode(text.constData(), text.size(), &state);
        return state.invalidChars;
    };
    EXPECT_EQ(lacked(QString::fromUtf8("\ud55c")), 0);
    EXPECT_EQ(lacked(QString::fromUtf8("\u0e01\ud55c\u0e02")), 2);
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
