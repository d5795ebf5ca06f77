// Contents of paragraph texts, taken apart piece by piece: the cases have the contents.
#include "sdk/db/mtext_codes.h"

#include "sdk/rx/od_string.h"
#include "tests/support/case_file.h"

#include <cmath>
#include <gtest/gtest.h>
#include <sstream>

namespace {

std::string narrow(const std::wstring& text) { return OdString(text).toUtf8(); }

std::string paragraphInWords(const OdDbParagraphFormat& paragraph) {
    std::ostringstream words;
    if (paragraph.firstIndent != 0 || paragraph.leftIndent != 0 || paragraph.rightIndent != 0)
        words << " indents " << paragraph.firstIndent << " " << paragraph.leftIndent << " "
              << paragraph.rightIndent;
    if (paragraph.alignment != OdDbParagraphFormat::kUsual)
        words << " aligned " << paragraph.alignment;
    for (const OdDbParagraphFormat::Tab& tab : paragraph.tabs)
        words << " tab " << tab.place << "/" << tab.alignment;
    return words.str();
}

// What differs from the usual format.
std::string formatInWords(const OdDbTextFormat& format) {
    const OdDbTextFormat usual;
    std::ostringstream words;
    const auto tell = [&words](const char* name, double value, double other) {
        if (value != other)
            words << " " << name << " " << value;
    };
    tell("height", format.height, usual.height);
    tell("width", format.widthFactor, usual.widthFactor);
    tell("apart", format.tracking, usual.tracking);
    tell("slant", std::round(format.oblique * 180 / M_PI * 1000) / 1000, 0);
    tell("palette", format.colorSource == OdDbTextFormat::kIndex ? format.color : -1.0, -1);
    tell("color", format.colorSource == OdDbTextFormat::kTrueColor ? format.color : -1.0, -1);
    tell("place", format.place, usual.place);
    for (const auto& [isOn, name] : {std::pair(format.isBold, " bold"),
                                     {format.isItalic, " italic"},
                                     {format.isOfSigns, " signs"},
                                     {format.isUnderlined, " underlined"},
                                     {format.isOverlined, " overlined"},
                                     {format.isStruck, " struck"}})
        words << (isOn ? name : "");
    return words.str() + paragraphInWords(format.paragraph);
}

std::string pieceInWords(const OdDbTextPiece& piece) {
    static const char* const names[] = {"text", "stack", "tab", "end", "column end"};
    std::string words = names[piece.kind];
    if (piece.kind == OdDbTextPiece::kText || piece.kind == OdDbTextPiece::kStack)
        words += " '" + narrow(piece.text) + "'";
    if (piece.kind == OdDbTextPiece::kStack)
        words += std::string(" ") + (piece.bar ? static_cast<char>(piece.bar) : '-') + " '" +
                 narrow(piece.lower) + "'";
    return words + formatInWords(piece.format) + "\n";
}

std::string piecesOf(const Case& given) {
    std::string contents = given.fields.at("contents")[0];
    for (std::size_t at = contents.find("<LF>"); at != std::string::npos; at = contents.find("<LF>"))
        contents.replace(at, 4, "\n");
    for (std::size_t at = contents.find("<CR>"); at != std::string::npos; at = contents.find("<CR>"))
        contents.replace(at, 4, "\r");
    std::string words;
    for (const OdDbTextPiece& piece : odDbTextPieces(OdString(contents.c_str(), CP_UTF8).wide(), {}))
        words += pieceInWords(piece);
    return words;
}

TEST(ParagraphCodes, AreReadAsTheReferenceSays) { checkCases(TEST_DATA_DIR "/mtext", "codes", piecesOf); }

} // namespace
