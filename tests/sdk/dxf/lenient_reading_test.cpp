// What other readers read is read here, too, with a notice that names the line.
#include "tests/sdk/dxf/drawing_texts.h"

#include "sdk/dxf/line_ends.h"
#include "tests/sdk/dxf/reading_contract.h"

#include "sdk/dxf/number_check.h"
#include "sdk/dxf/value_kinds.h"

namespace {

std::vector<std::string> noticesOf(const std::string& bytes) {
    std::vector<std::string> result;
    const OdDbDatabasePtr database = OdDbDatabase::readBytes(bytes);
    for (const OdString& notice : database->readWarnings())
        result.push_back(notice.toUtf8());
    return result;
}

using Notices = std::vector<std::string>;

std::string withLineEnds(const std::string& text, const std::string& lineEnd) {
    std::string result;
    for (const char c : text)
        result += c == '\n' ? lineEnd : std::string(1, c);
    return result;
}

// "line 12", behind the last line of the text.
std::string lineBehind(const std::string& text) {
    return "line " + std::to_string(std::count(text.begin(), text.end(), '\n') + 1);
}

std::string withoutEnd(const std::string& text) { return replaced(text, "  0\nEOF\n", ""); }

} // namespace

TEST(LenientReading, AFileMayLackItsEndMark) {
    const std::string text = withoutEnd(oldDrawing());
    for (const std::string& end : {std::string(), std::string("\n"), std::string(" \n\n\x1a", 4)}) {
        EXPECT_EQ(faultOfReading(text + end), "");
        EXPECT_EQ(noticesOf(text + end), Notices{lineBehind(text) + ": the file has no end mark"});
    }
    EXPECT_EQ(faultOfReading(text.substr(0, text.size() - 1)), "") << "the last line has no end";
    EXPECT_EQ(faultOfReading(withLineEnds(text, "\r\n")), "");
}

TEST(LenientReading, AFileThatEndsWithinASectionIsCutOff) {
    const std::string text = withoutEnd(oldDrawing());
    EXPECT_EQ(errorOf(replaced(text, "  0\nSEQEND\n  8\n0\n  0\nENDSEC\n", "")).code(), eDxfReadError);
}

TEST(LenientReading, BlanksMayStandAroundTheEndMark) {
    const std::string text = replaced(oldDrawing(), "  0\nEOF\n", "  0\n EOF  \n");
    EXPECT_EQ(faultOfReading(text), "");
    EXPECT_EQ(noticesOf(text),
              Notices{lineBehind(withoutEnd(oldDrawing())) + ": blanks around the end mark"});
}

TEST(LenientReading, LinesMayEndWithACarriageReturnAlone) {
    for (const std::string& text : {oldDrawing(), sampleDrawing(), withoutEnd(oldDrawing())}) {
        const std::string returns = withLineEnds(text, "\r");
        EXPECT_EQ(faultOfReading(returns), "");
        EXPECT_EQ(noticesOf(returns).front(), "line 1: the lines end with a carriage return alone");
        const OdDbDatabasePtr database = OdDbDatabase::readBytes(returns),
                              usual = OdDbDatabase::readBytes(text);
        for (const OdDbDatabasePtr& one : {database, usual}) {
            OdDbLinePtr line(new OdDbLine);
            modelSpaceOf(*one, OdDb::kForWrite)->appendOdDbEntity(line.get());
            modelSpaceEntities(*one)[0].safeOpenObject(OdDb::kForWrite)->edit().set("AcDbEntity", 62, "3");
        }
        EXPECT_EQ(database->writeBytes(), withLineEnds(usual->writeBytes(), "\r"));
    }
}

TEST(LenientReading, ACarriageReturnAloneAtTheFirstLineIsKnown) {
    EXPECT_FALSE(dxfHasLoneReturns(""));
    EXPECT_FALSE(dxfHasLoneReturns("a\nb\r\nc"));
    EXPECT_TRUE(dxfHasLoneReturns("\ra"));
    EXPECT_TRUE(dxfHasLoneReturns("a\rb"));
    EXPECT_TRUE(dxfHasLoneReturns("a\r"));
    EXPECT_TRUE(dxfHasLoneReturns(std::string_view("a\r\n", 2))) << "nothing behind the end is looked at";
}

TEST(LenientReading, OtherLineEndsAmongCarriageReturnsStay) {
    std::string text = withLineEnds(oldDrawing(), "\r");
    text = replaced(text, "SECTION\r  2\rTABLES\r", "SECTION\n  2\r\nTABLES\r");
    EXPECT_EQ(faultOfReading(text), "");
    EXPECT_EQ(modelSpaceEntities(*OdDbDatabase::readBytes(text)).size(), 4u);
}

TEST(LenientReading, NamesOfSectionsAndTablesMayBeInAnyCase) {
    std::string text = oldDrawing();
    for (const auto& [name, other] :
         {std::pair("\nHEADER\n", "\nHeader\n"), std::pair("\nTABLES\n", "\ntables\n"),
          std::pair("\nLAYER\n 70\n", "\nLayer\n 70\n"), std::pair("\nENTITIES\n", "\nEntities\n")})
        text = replaced(text, name, other);
    EXPECT_EQ(faultOfReading(text), "");
    EXPECT_EQ(
        noticesOf(text),
        (Notices{"line 4: a section name in small letters", "line 18: a section name in small letters",
                 "line 22: a table name in small letters", "line 76: a section name in small letters"}));
    const OdDbDatabasePtr database = OdDbDatabase::readBytes(text);
    EXPECT_EQ(modelSpaceEntities(*database).size(), 4u);
    EXPECT_EQ(database->getSysVar(L"DWGCODEPAGE")->getString(), OdString(L"ANSI_1252"));
    EXPECT_TRUE(odrxCast<OdDbLayerTable>(database->getLayerTableId().safeOpenObject())->has(L"WALLS"));
}

TEST(LenientReading, AnUnknownCodePageIsToldWithItsLine) {
    const std::string text = replaced(oldDrawing(), "ANSI_1252", "KLINGON");
    EXPECT_EQ(noticesOf(text),
              Notices{"line 12: the code page \"KLINGON\" is not known: texts are read as western"});
    EXPECT_EQ(faultOfReading(text), "");
}

TEST(LenientReading, AVersionThatIsNotSupportedIsToldWithItsLine) {
    for (const char* version : {"AC1099", "R14", "", "AC", "AC-5"}) {
        const OdError error = errorOf(replaced(oldDrawing(), "AC1009", version));
        EXPECT_EQ(error.code(), eUnsupportedFileFormat);
        EXPECT_EQ(error.description().toUtf8(), "test.dxf, line 8: drawings of the version \"" +
                                                    std::string(version) + "\" are not supported");
    }
}

TEST(LenientReading, ValuesThatAreNoNumbersAreToldWithLineAndValue) {
    for (const char* value :
         {"abc", "", "1,5", "NaN", "inf", "1.5 2.5", "1-2", "1.2.3", "--1", ".", "-", "+-1", "0x10",
          "12345678901234567,0", "this is not a number at all, whatever else it may be"}) {
        const std::string text = replaced(oldDrawing(), " 11\n3.0\n", " 11\n" + std::string(value) + "\n");
        EXPECT_EQ(noticesOf(text), Notices{"line 86: \"" + std::string(value).substr(0, 40) +
                                           "\" is no number for the group code 11"});
        EXPECT_EQ(faultOfReading(text), "");
    }
}

TEST(LenientReading, NumbersInAnySpellingAreNoneOfThese) {
    for (const char* value :
         {"3", " 3", "3 ", "-3", "  -3.", ".5", "+3", "1e5", "1E+05", "1e-400", "-0.0", "1e100",
          "12345678901234567890.123456789", "0.1234567890123456789012345678901234567890", "\t7"})
        EXPECT_EQ(noticesOf(replaced(oldDrawing(), " 11\n3.0\n", " 11\n" + std::string(value) + "\n")),
                  Notices())
            << value;
}

TEST(LenientReading, ValuesBeyondAllMeasureAreTold) {
    for (const char* value : {"1e101", "-2E308", "1e999"})
        EXPECT_EQ(noticesOf(replaced(oldDrawing(), " 11\n3.0\n", " 11\n" + std::string(value) + "\n")),
                  Notices{"line 86: \"" + std::string(value) + "\" is beyond 1e100 for the group code 11"});
}

TEST(LenientReading, ColoursAndHeaderValuesAreCheckedToo) {
    EXPECT_EQ(noticesOf(replaced(oldDrawing(), " 62\n-3\n", " 62\nred\n")),
              Notices{"line 32: \"red\" is no number for the group code 62"});
    EXPECT_EQ(noticesOf(replaced(oldDrawing(), "  9\n$DWGCODEPAGE\n",
                                 "  9\n$LTSCALE\n 40\nx\n  9\n$DWGCODEPAGE\n")),
              Notices{"line 12: \"x\" is no number for the group code 40"});
}

TEST(LenientReading, NoticesAreLimited) {
    std::string many;
    for (int i = 0; i < 300; ++i)
        many += "  0\nPOINT\n  8\n0\n 10\nx\n";
    const Notices notices = noticesOf(replaced(oldDrawing(), "  0\nLINE\n", many + "  0\nLINE\n"));
    ASSERT_EQ(notices.size(), 201u);
    EXPECT_EQ(notices[199],
              "line " + std::to_string(76 + 199 * 6 + 6) + ": \"x\" is no number for the group code 10");
    EXPECT_EQ(notices[200], "and 100 more");
}

// The quick check must never take what the exact one refuses.
TEST(NumberCheck, QuickAndExactAgree) {
    const std::string letters = "0127.-+ eE,x";
    std::uint64_t random = 1;
    for (int i = 0; i < 200000; ++i) {
        std::string value;
        random = random * 6364136223846793005u + 1442695040888963407u;
        std::uint64_t bits = random;
        const std::size_t size = (bits >> 59) + 1;
        for (std::size_t at = 0; at < size; ++at) {
            bits = bits * 6364136223846793005u + 1442695040888963407u;
            value += letters[(bits >> 40) % (i % 2 == 0 ? letters.size() : 7)];
        }
        const std::string readable = value + std::string(kDxfPlainNumber, '9');
        if (!dxfIsPlainNumber({readable.data(), value.size()}))
            continue;
        ASSERT_EQ(dxfNumberFault(value), DxfNumberFault::None) << "\"" << value << "\"";
    }
}

TEST(NumberCheck, TheQuickOneTakesWhatFilesHave) {
    for (const std::string& value :
         std::vector<std::string>{"0", "25", "0.0", "-12.5", " 70", "     1", "1234567.125",
                                  "-123456789.123456789012345", "12  "}) {
        const std::string readable = value + std::string(kDxfPlainNumber, ' ');
        EXPECT_TRUE(dxfIsPlainNumber({readable.data(), value.size()})) << value;
    }
}

TEST(ValueKinds, CodesHaveTheKindThatTheFormatGivesThem) {
    EXPECT_EQ(dxfValueKind(-5), DxfValueKind::None);
    EXPECT_EQ(dxfValueKind(80), DxfValueKind::None);
    EXPECT_EQ(dxfValueKind(9), DxfValueKind::Text);
    EXPECT_EQ(dxfValueKind(10), DxfValueKind::Real);
    EXPECT_EQ(dxfValueKind(1071), DxfValueKind::Int32);
    for (const int reference : {320, 330, 340, 350, 360, 369, 390, 399, 480, 481, 1005})
        EXPECT_TRUE(dxfIsReference(reference)) << reference;
    for (const int other : {5, 105, 310, 319, 370, 389, 400, 479, 482, 1004, 1006})
        EXPECT_FALSE(dxfIsReference(other)) << other;
}
