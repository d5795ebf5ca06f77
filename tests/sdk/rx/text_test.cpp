// Wide texts: comparing, trimming, formatting, and the way from and to bytes.
#include "sdk/rx/od_string.h"

#include "sdk/rx/wildcard.h"
#include "tests/support/comma_locale.h"
#include "tests/support/local_code_page.h"

#include <gtest/gtest.h>

TEST(OdStrings, ComeFromBytesInTheirCodePage) {
    EXPECT_EQ(OdString("Gr\xC3\xB6\xC3\x9F"
                       "e",
                       CP_UTF8),
              OdString(L"Größe"));
    const LocalCodePage western("ISO-8859-1");
    EXPECT_EQ(OdString("Gr\xF6\xDF"
                       "e"),
              OdString(L"Größe"));
    EXPECT_EQ(OdString("Gr\xF6\xDF"
                       "e",
                       OdCodePageId(46)),
              OdString(L"Größe"));
    EXPECT_EQ(OdString("Gr\xC3\xB6\xC3\x9F"
                       "e",
                       CP_UTF8),
              OdString(L"Größe"))
        << "whatever the locale";
    EXPECT_EQ(OdString(L"Größe").toLocal8Bit(), "Gr\xF6\xDF"
                                                "e");
    EXPECT_EQ(OdString(L"Größe").toUtf8(), "Gr\xC3\xB6\xC3\x9F"
                                           "e");
    EXPECT_TRUE(OdString(static_cast<const char*>(nullptr)).isEmpty());
    EXPECT_TRUE(OdString(static_cast<const wchar_t*>(nullptr)).isEmpty());
}

TEST(OdStrings, AreComparedWithAndWithoutTheCaseOfLetters) {
    EXPECT_EQ(OdString(L"ÄB").iCompare(L"äb"), 0);
    EXPECT_NE(OdString(L"ÄB").compare(L"äb"), 0);
    EXPECT_LT(OdString(L"a").iCompare(L"B"), 0);
    EXPECT_GT(OdString(L"C").iCompare(L"b"), 0);
    EXPECT_EQ(OdString(L"straße \u0436").makeUpper(), OdString(L"STRASSE \u0416"));
}

TEST(OdStrings, KeepAMarkOfTheByteOrderThatIsTheirFirstCharacter) {
    const OdString marked(L"\xFEFF"
                          L"a"),
        plain(L"a");
    EXPECT_NE(marked.iCompare(plain), 0);
    EXPECT_EQ(marked.makeUpper(), OdString(L"\xFEFF"
                                           L"A"));
    EXPECT_EQ(marked.toUtf8(), "\xEF\xBB\xBF"
                               "a");
}

TEST(OdStrings, FindCharactersFromAPlaceOn) {
    const OdString text(L"a;b;c");
    EXPECT_EQ(text.find(L';'), 1);
    EXPECT_EQ(text.find(L';', 1), 1);
    EXPECT_EQ(text.find(L';', 2), 3);
    EXPECT_EQ(text.find(L';', 4), -1);
    EXPECT_EQ(text.find(L'x'), -1);
}

TEST(OdStrings, AreTrimmedOnTheSideThatIsWanted) {
    const OdString text(L" \t\u00a0a b\n ");
    EXPECT_EQ(OdString(text).trimLeft(), OdString(L"a b\n "));
    EXPECT_EQ(OdString(text).trimRight(), OdString(L" \t\u00a0a b"));
    EXPECT_EQ(OdString(L" \t").trimLeft(), OdString());
    EXPECT_EQ(OdString(L" \t").trimRight(), OdString());
}

TEST(OdStrings, AreFormattedWithWideTexts) {
    OdString text;
    EXPECT_EQ(text.format(L"%s-%5s|%-4s|%ls", L"ä", L"b", L"c", L"d"), OdString(L"ä-    b|c   |d"));
    EXPECT_EQ(text.format(L"%d of %05.1f%%", 3, 2.25), OdString(L"3 of 002.2%"));
    EXPECT_EQ(text.format(L"100%"), OdString(L"100%")) << "a sign at the end";
}

TEST(OdStrings, FormatTextsOfAnyLength) {
    const std::wstring large(300000, L'x');
    OdString text;
    EXPECT_EQ(text.format(L"<%s>", large.c_str()).getLength(), 300002);
    EXPECT_EQ(text.getAt(300001), L'>');
}

TEST(OdStrings, FormatRealsWithAPointWhateverTheLocale) {
    const CommaLocale comma;
    OdString text;
    EXPECT_EQ(text.format(L"%.2f", 1.5), OdString(L"1.50"));
    EXPECT_EQ(*localeconv()->decimal_point, ',') << "the process's own locale stays";
}

namespace {

struct PatternCase {
    const wchar_t *name, *pattern;
    bool matches;
};

const PatternCase patternCases[] = {
    {L"A1B", L"@#@", true},     {L"AAB", L"@#@", false},     {L"11B", L"@#@", false},
    {L"A-B", L"A.B", true},     {L"A1B", L"A.B", false},     {L"AB", L"A?B", false},
    {L"A", L"A?", false},       {L"AB", L"A*?", true},       {L"A", L"A*?", false},
    {L"[", L"[", true},         {L"A", L"[", false},         {L"A[", L"A[", true},
    {L"X", L"[A-CX]", true},    {L"B", L"[A-CX]", true},     {L"D", L"[A-CX]", false},
    {L"-", L"[A-]", true},      {L"A", L"[A-]", true},       {L"B", L"[A-]", false},
    {L"A", L"[~B-D]", true},    {L"C", L"[~B-D]", false},    {L"D", L"[~B-D]", false},
    {L"A-B", L"A`-B", true},    {L"A*", L"A`*", true},       {L"AB", L"A`*", false},
    {L"`", L"`", true},         {L"A,B", L"A`,B", true},     {L"A", L"A`,B", false},
    {L"A", L"A,B", true},       {L"B", L"A,B", true},        {L"C", L"A,B", false},
    {L"A", L"~B", true},        {L"B", L"~B", false},        {L"B", L"~B,B", true},
    {L"", L"", true},           {L"A", L"", false},          {L"", L"~", false},
    {L"AXBXC", L"A*X*C", true}, {L"AXBXD", L"A*X*C", false}, {L"ABAB", L"*AB", true},
    {L"ABABC", L"*AB", false},  {L"AB", L"AB**", true},      {L"ABC", L"A*B", false},
};

} // namespace

TEST(NamePatterns, EachSignStandsForWhatItIs) {
    for (const PatternCase& each : patternCases)
        EXPECT_EQ(odutWcMatchNoCase(each.name, each.pattern), each.matches)
            << OdString(each.name).toUtf8() << " against " << OdString(each.pattern).toUtf8();
}
