// The host's two string classes and the conversions between the texts of host, Qt and drawing.
#include "host/text.h"

#include "sdk/rx/alloc.h"

#include <gtest/gtest.h>

namespace {

TEST(CXStringTest, AnEmptyStringHasABuffer) {
    EXPECT_STREQ(CXString().c_str(), "");
    EXPECT_STREQ(CXString(static_cast<const char*>(nullptr)).c_str(), "");
    EXPECT_STREQ(CXStringW().c_str(), L"");
    EXPECT_STREQ(CXStringW(static_cast<const wchar_t*>(nullptr)).c_str(), L"");
}

TEST(CXStringTest, TheirBuffersComeFromTheDrawingAllocator) {
    const std::uint64_t taken = odrxAllocCount(), given = odrxFreeCount();
    { const CXString narrow("abc"), wide(L"abc"); }
    { const CXStringW narrow("abc"), wide(L"abc"); }
    EXPECT_EQ(odrxAllocCount() - taken, 4u);
    EXPECT_EQ(odrxFreeCount() - given, 4u);
    { const CXStringW empty(L""); }
    EXPECT_EQ(odrxAllocCount() - taken, 4u) << "an empty string takes no memory";
    odrxFailAllocations(true);
    EXPECT_THROW(CXString("abc"), std::bad_alloc);
    odrxFailAllocations(false);
}

template <class String> void changeInEveryWay(String text, String other) {
    text = other;
    text = other.c_str();
    text.AssignCopy(other.c_str(), 1);
    text.ConcatCopy(other.c_str(), 1);
    text.AddDirDelim();
    text += other;
    text = std::move(other);
}

TEST(CXStringTest, EveryChangeFreesTheFormerBuffer) {
    const std::uint64_t inUse = odrxAllocCount() - odrxFreeCount();
    changeInEveryWay(CXString("abc"), CXString("other"));
    EXPECT_EQ(odrxAllocCount() - odrxFreeCount(), inUse);
    changeInEveryWay(CXStringW(L"abc"), CXStringW(L"other"));
    EXPECT_EQ(odrxAllocCount() - odrxFreeCount(), inUse);
    {
        CXString narrow("abc");
        narrow.Format("%d", 5);
        CXStringW wide(L"abc");
        wide.Format(L"%d", 5);
        wide.Delete(0, 1);
    }
    EXPECT_EQ(odrxAllocCount() - odrxFreeCount(), inUse);
}

TEST(CXStringTest, WideAndNarrowConvertInTheLocalCodePage) {
    EXPECT_STREQ(CXString(L"Zürich").c_str(), "Z\u00fcrich");
    EXPECT_STREQ(CXStringW("Z\u00fcrich").c_str(), L"Zürich");
}

TEST(CXStringTest, AssignAndConcatTakeTheGivenLength) {
    CXString text;
    text.AssignCopy("abcdef", 3);
    text.ConcatCopy("xyz", 2);
    EXPECT_STREQ(text, "abcxy");
    CXStringW wide;
    wide.AssignCopy(L"abcdef", 3);
    wide.ConcatCopy(L"xyz", 2);
    EXPECT_STREQ(wide, L"abcxy");
}

TEST(CXStringTest, AssigningAStringToItselfKeepsIt) {
    CXString text("abc");
    const CXString& same = text;
    text = same;
    EXPECT_STREQ(text, "abc");
    text = text.c_str();
    EXPECT_STREQ(text, "abc");
}

TEST(CXStringTest, ComparingIsExactAndCompareIIgnoresCase) {
    EXPECT_EQ(CXString("Ab").Compare("Ab"), 0);
    EXPECT_NE(CXString("Ab").Compare("ab"), 0);
    EXPECT_EQ(CXString("Ab").CompareI("aB"), 0);
    EXPECT_EQ(CXStringW(L"ÄB").CompareI(L"äb"), 0);
    EXPECT_NE(CXStringW(L"ab").CompareI(L"abc"), 0);
}

TEST(CXStringTest, FormatFillsAndWidens) {
    CXString text;
    text.Format("Paper%08d", 12);
    EXPECT_STREQ(text, "Paper00000012");
    CXStringW wide;
    wide.Format(L"%s (%.2f x %.2f %s)", L"A4", 210.0, 297.0, L"mm");
    EXPECT_STREQ(wide, L"A4 (210.00 x 297.00 mm)");
}

TEST(CXStringTest, FormatMayUseTheStringItselfAndAnyLength) {
    CXString text("abc");
    text.Format("%s%s", text.c_str(), text.c_str());
    EXPECT_STREQ(text, "abcabc");
    const std::string large(100000, 'x');
    text.Format("<%s>", large.c_str());
    EXPECT_EQ(text.GetSize(), 100002u);
}

TEST(CXStringTest, FindAndDeleteStayWithinTheText) {
    CXStringW text(L"a;b;c");
    EXPECT_EQ(text.Find(L';'), 1);
    EXPECT_EQ(text.Find(L';', 2), 3);
    EXPECT_EQ(text.Find(L';', 4), -1);
    EXPECT_EQ(text.Find(L'x'), -1);
    EXPECT_EQ(text.Find(L';', 99), -1);
    EXPECT_EQ(text.Find(L';', -1), -1);
    EXPECT_EQ(text.Find(L'a', 0), 0);
    EXPECT_EQ(text.Find(L'\0'), -1) << "the end is no part of the text";
    for (const auto& [start, count] : {std::pair(-1, 1), {0, 0}, {1, -1}, {5, 1}}) {
        text.Delete(start, count);
        EXPECT_STREQ(text, L"a;b;c") << start;
    }
    text.Delete(1, 2);
    EXPECT_STREQ(text, L"a;c");
    text.Delete(1, 99);
    EXPECT_STREQ(text, L"a");
    text.Delete(5, 1);
    EXPECT_STREQ(text, L"a");
    text.Delete(0, 1);
    EXPECT_STREQ(text, L"");
}

TEST(CXStringTest, AddDirDelimAppendsTheDelimiter) {
    CXString text("StdDirsDescriptions");
    text.AddDirDelim();
    EXPECT_STREQ(text, "StdDirsDescriptions/");
    CXStringW wide(L"root");
    wide.AddDirDelim();
    EXPECT_STREQ(wide, L"root/");
}

TEST(CXStringTest, JoiningMakesANewString) {
    const CXString left("Formats\\"), right("png");
    EXPECT_STREQ((left + right).c_str(), "Formats\\png");
    EXPECT_STREQ(left, "Formats\\");
}

TEST(TextConversionTest, TheWideFormsConvertWithoutLoss) {
    const QString text = QString::fromUtf8("\u65e5\u672c \U0001F600 %1 <b>");
    const CXStringW wide = hostqt::cxStringW(text);
    EXPECT_EQ(wide.GetLength(), 11u) << "one unit for each character, also beyond the first plane";
    EXPECT_EQ(hostqt::qString(wide), text);
    EXPECT_EQ(hostqt::qString(hostqt::odString(wide)), text);
    EXPECT_EQ(hostqt::qString(hostqt::odString(text)), text);
    EXPECT_EQ(QString::fromStdWString(hostqt::stdWString(text)), text);
}

TEST(TextConversionTest, APointerIsReadToItsEndOrTheGivenLength) {
    EXPECT_EQ(hostqt::qString(L"abc"), QStringLiteral("abc"));
    EXPECT_EQ(hostqt::qString(L"abc", 2), QStringLiteral("ab"));
    EXPECT_EQ(hostqt::qString(L"abc", 1), QStringLiteral("a"));
    EXPECT_EQ(hostqt::qString(L"abc", 0), QString());
    EXPECT_EQ(hostqt::qString(static_cast<const wchar_t*>(nullptr)), QString());
}

TEST(TextConversionTest, EveryCharacterComesBackByItselfAndBesideOneOfTwoUnits) {
    for (int code = 1; code < 0x30000; ++code) {
        if (code >= 0xd800 && code <= 0xdfff)
            continue; // halves of characters
        const std::wstring alone(1, static_cast<wchar_t>(code));
        const std::wstring beside = L"a\U0001F3E0" + alone + L"z";
        ASSERT_EQ(hostqt::qString(alone.c_str()).toStdWString(), alone) << code;
        ASSERT_EQ(hostqt::qString(OdString(beside)).toStdWString(), beside) << code;
    }
}

// Qt's own conversion takes it for a mark of the byte order.
TEST(TextConversionTest, ALeadingZeroWidthSpaceStaysAlsoBeforeACharacterOfTwoUnits) {
    for (const wchar_t* const text : {L"\uFEFFa", L"\uFEFF\U0001F3E0", L"\uFEFF", L"\uFEFF\uFEFF\U0010FFFF"})
        EXPECT_EQ(hostqt::qString(OdString(text)).toStdWString(), text);
}

TEST(TextConversionTest, WhatIsNoCharacterIsHarmless) {
    for (const unsigned code : {0xd800U, 0xdfffU, 0x110000U, 0x80000000U, 0xffffffffU}) {
        const std::wstring odd = L"a" + std::wstring(1, static_cast<wchar_t>(code)) + L"z";
        EXPECT_TRUE(hostqt::qString(OdString(odd)).startsWith('a')) << code;
        EXPECT_TRUE(hostqt::qString(OdString(odd)).endsWith('z')) << code;
    }
    const std::wstring beyond(1, static_cast<wchar_t>(0x110000));
    EXPECT_EQ(hostqt::qString((L"a" + beyond + L"b").c_str()), QStringLiteral("a\uFFFDb"))
        << "its place stays to be seen";
}

} // namespace
