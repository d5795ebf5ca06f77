// The contents of a paragraph text, taken apart: pieces of text with their format, by the codes between them.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

struct OdDbParagraphFormat {
    enum Alignment { kUsual, kLeft, kCenter, kRight, kJustified };
    struct Tab {
        double place = 0;
        Alignment alignment = kLeft; // of what follows it: left, centre or right
    };
    // In heights of the text's usual letters. The first line is moved beside the others.
    double firstIndent = 0, leftIndent = 0, rightIndent = 0;
    Alignment alignment = kUsual;
    std::vector<Tab> tabs;
};

struct OdDbTextFormat {
    enum ColorSource { kOfText, kIndex, kTrueColor };
    enum VerticalPlace { kBaseLine, kMiddle, kTop };
    double height = 1;      // of the letters, in drawing units
    double widthFactor = 1; // of each letter
    double tracking = 1;    // from one letter to the next
    double oblique = 0;     // radians
    ColorSource colorSource = kOfText;
    std::uint32_t color = 0; // an index of the palette, or 0x00RRGGBB
    bool isBold = false, isItalic = false;
    bool isOfSigns = false; // letters stand for the signs of tolerances, which the pieces have in their place
    bool isUnderlined = false, isOverlined = false, isStruck = false;
    VerticalPlace place = kBaseLine; // of stacks, and of letters beside larger ones
    OdDbParagraphFormat paragraph{};
};

struct OdDbTextPiece {
    enum Kind { kText, kStack, kTab, kParagraphEnd, kColumnEnd };
    Kind kind = kText;
    std::wstring text{};  // the upper part of a stack
    std::wstring lower{}; // of a stack
    wchar_t bar = 0;      // of a stack: '/' a line between, '#' a slash, '^' nothing
    OdDbTextFormat format{};
};

// `usual` is the format of letters that no code changes. Codes that nobody knows stand for themselves.
std::vector<OdDbTextPiece> odDbTextPieces(const std::wstring& contents, const OdDbTextFormat& usual);

// The sign that a code of the form %%x or %%nnn at `at` stands for, with `at` moved behind it; 0 when there
// is none there. %%u, %%o and %%k, which switch lines on and off, are none.
wchar_t odDbPercentSign(const std::wstring& text, std::size_t& at);
