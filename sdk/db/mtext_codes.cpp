// Reads the codes of paragraph texts. Braces keep what changes within them to themselves.
#include "sdk/db/mtext_codes.h"

#include <algorithm>
#include <cmath>
#include <cwchar>
#include <cwctype>
#include <iterator>

namespace {

constexpr double kDegree = M_PI / 180;
constexpr wchar_t kNoBreakSpace = 0xa0;

bool isDigit(wchar_t c) { return c >= L'0' && c <= L'9'; }

bool isSignFont(const std::wstring& font) {
    std::wstring name = font.substr(0, 3);
    for (wchar_t& letter : name)
        letter = static_cast<wchar_t>(std::towlower(static_cast<std::wint_t>(letter)));
    return name == L"gdt";
}

// The letters of the font of tolerances, from a on.
wchar_t signOf(wchar_t letter) {
    static const wchar_t signs[] = L"\x2220\x27c2\x23e5\x2313\x25cb\x2225\x232d\x2197\x232f\x2316\x2312\x24c1"
                                   L"\x24c2\x2300o\x24c5q\x25ce\x24c8\x2330\x23e4";
    const int place = static_cast<int>(letter) - 'a';
    return place >= 0 && place < static_cast<int>(std::size(signs)) - 1 ? signs[place] : letter;
}

class CodeReader {
public:
    CodeReader(const std::wstring& contents, const OdDbTextFormat& usual) : text(contents), formats{usual} {}
    std::vector<OdDbTextPiece> read() {
        while (at < text.size())
            readNext();
        flush();
        return std::move(pieces);
    }

private:
    OdDbTextFormat& format() { return formats.back(); }

    void readNext() {
        const wchar_t c = text[at];
        if (c == L'\\' && at + 1 < text.size())
            return readCode();
        if (c == L'%')
            if (const wchar_t sign = odDbPercentSign(text, at)) {
                word += sign;
                return;
            }
        ++at;
        if (c == L'{')
            formats.push_back(OdDbTextFormat(format()));
        else if (c == L'}')
            leaveBraces();
        else if (c == L'\n')
            put(OdDbTextPiece::kParagraphEnd);
        else if (c == L'\t')
            put(OdDbTextPiece::kTab);
        else if (c != L'\r')
            word += format().isOfSigns ? signOf(c) : c;
    }

    void leaveBraces() {
        flush();
        const OdDbParagraphFormat paragraph = format().paragraph;
        if (formats.size() > 1)
            formats.pop_back();
        format().paragraph = paragraph; // it is of the whole paragraph
    }

    // Characters that a backslash makes plain, and codes without an argument.
    void readCode() {
        const wchar_t code = text[at + 1];
        const std::size_t start = at;
        at += 2;
        if (std::wcschr(L"\\{}", code))
            word += code;
        else if (code == L'~')
            word += kNoBreakSpace;
        else if (code == L'P' || code == L'X')
            put(OdDbTextPiece::kParagraphEnd);
        else if (code == L'N')
            put(OdDbTextPiece::kColumnEnd);
        else if (std::wcschr(L"LlOoKk", code))
            switchLine(code);
        else if (code == L'S')
            readStack();
        else if (std::wcschr(L"ACcHWTQfFp", code))
            readArgument(code);
        else
            word.append(text, start, 2);
    }

    void switchLine(wchar_t code) {
        flush();
        const bool on = std::iswupper(static_cast<std::wint_t>(code)) != 0;
        const wchar_t line = static_cast<wchar_t>(std::towupper(static_cast<std::wint_t>(code)));
        (line == L'L' ? format().isUnderlined : line == L'O' ? format().isOverlined : format().isStruck) = on;
    }

    // Up to the semicolon, which may be missing at the end.
    std::wstring argument() {
        const std::size_t end = std::min(text.find(L';', at), text.size());
        const std::wstring found = text.substr(at, end - at);
        at = std::min(end + 1, text.size());
        return found;
    }

    void readStack() {
        flush();
        OdDbTextPiece stack;
        stack.kind = OdDbTextPiece::kStack;
        stack.format = format();
        for (; at < text.size() && text[at] != L';'; ++at) {
            wchar_t c = text[at];
            const bool escaped = c == L'\\' && at + 1 < text.size();
            if (escaped)
                c = text[++at];
            if (!escaped && !stack.bar && std::wcschr(L"^/#", c))
                stack.bar = c;
            else
                addToStack(stack, c);
        }
        at = std::min(at + 1, text.size());
        pieces.push_back(std::move(stack));
    }

    void addToStack(OdDbTextPiece& stack, wchar_t c) {
        std::wstring& part = stack.bar ? stack.lower : stack.text;
        if (const wchar_t sign = c == L'%' ? odDbPercentSign(text, at) : 0) {
            part += sign;
            --at; // the loop goes on behind it
        } else {
            part += c;
        }
    }

    void readArgument(wchar_t code) {
        flush();
        const std::wstring value = argument();
        const double number = std::wcstod(value.c_str(), nullptr);
        switch (code) {
        case L'H':
            return scale(format().height, value);
        case L'W':
            return scale(format().widthFactor, value);
        case L'T':
            return scale(format().tracking, value);
        case L'Q':
            format().oblique = std::clamp(number, -85.0, 85.0) * kDegree;
            return;
        case L'A':
            format().place = static_cast<OdDbTextFormat::VerticalPlace>(std::clamp(number, 0.0, 2.0));
            return;
        case L'p':
            return readParagraph(value);
        case L'C':
        case L'c':
            return setColor(code, static_cast<std::uint32_t>(std::clamp(number, 0.0, 16777215.0)));
        default:
            return readFont(value);
        }
    }

    // "2x" is a factor, "2" a value.
    static void scale(double& value, const std::wstring& by) {
        const double number = std::fabs(std::wcstod(by.c_str(), nullptr));
        if (!(number > 0) || !std::isfinite(number))
            return;
        const bool isFactor = by.back() == L'x' || by.back() == L'X';
        value = isFactor ? value * number : number;
    }

    // True colours have blue in front.
    void setColor(wchar_t code, std::uint32_t number) {
        if (code == L'C' && number > 256)
            return;
        format().colorSource = code == L'c' ? OdDbTextFormat::kTrueColor : OdDbTextFormat::kIndex;
        format().color =
            code == L'C' ? number : (number & 0xff) << 16 | (number & 0xff00) | (number >> 16 & 0xff);
    }

    // A name, then its properties behind bars.
    void readFont(const std::wstring& font) {
        if (font.empty() || font.front() == L'|')
            return;
        format().isOfSigns = isSignFont(font);
        format().isBold = font.find(L"|b1") != std::wstring::npos;
        format().isItalic = font.find(L"|i1") != std::wstring::npos;
    }

    void readParagraph(const std::wstring& value) {
        OdDbParagraphFormat& paragraph = format().paragraph;
        for (std::size_t i = 0; i < value.size();) {
            const wchar_t code = value[i++];
            if (code == L't')
                return readTabs(value, i);
            if (code == L'q')
                paragraph.alignment = alignmentOf(i < value.size() ? value[i++] : L'*');
            else if (code == L'i')
                paragraph.firstIndent = numberAt(value, i);
            else if (code == L'l')
                paragraph.leftIndent = numberAt(value, i);
            else if (code == L'r')
                paragraph.rightIndent = numberAt(value, i);
        }
    }

    static OdDbParagraphFormat::Alignment alignmentOf(wchar_t letter) {
        switch (letter) {
        case L'l':
            return OdDbParagraphFormat::kLeft;
        case L'c':
            return OdDbParagraphFormat::kCenter;
        case L'r':
            return OdDbParagraphFormat::kRight;
        case L'j':
        case L'd':
            return OdDbParagraphFormat::kJustified;
        default:
            return OdDbParagraphFormat::kUsual;
        }
    }

    void readTabs(const std::wstring& value, std::size_t i) {
        std::vector<OdDbParagraphFormat::Tab>& tabs = format().paragraph.tabs;
        tabs.clear();
        while (i < value.size()) {
            OdDbParagraphFormat::Tab tab;
            if (value[i] == L'c' || value[i] == L'r')
                tab.alignment = alignmentOf(value[i++]);
            const std::size_t before = i;
            tab.place = numberAt(value, i);
            if (i == before)
                ++i;
            else if (std::isfinite(tab.place) && tab.place > 0)
                tabs.push_back(tab);
        }
    }

    // A star stands for the usual number.
    static double numberAt(const std::wstring& value, std::size_t& i) {
        const wchar_t* start = value.c_str() + i;
        wchar_t* end = nullptr;
        const double number = std::wcstod(start, &end);
        i += static_cast<std::size_t>(end - start);
        return std::isfinite(number) ? number : 0;
    }

    void flush() {
        if (word.empty())
            return;
        OdDbTextPiece piece;
        piece.text = std::move(word);
        piece.format = format();
        word.clear();
        pieces.push_back(std::move(piece));
    }

    void put(OdDbTextPiece::Kind kind) {
        flush();
        OdDbTextPiece piece;
        piece.kind = kind;
        piece.format = format();
        pieces.push_back(std::move(piece));
    }

    const std::wstring& text;
    std::size_t at = 0;
    std::wstring word; // not yet among the pieces
    std::vector<OdDbTextFormat> formats;
    std::vector<OdDbTextPiece> pieces;
};

} // namespace

std::vector<OdDbTextPiece> odDbTextPieces(const std::wstring& contents, const OdDbTextFormat& usual) {
    return CodeReader(contents, usual).read();
}

wchar_t odDbPercentSign(const std::wstring& text, std::size_t& at) {
    if (text.compare(at, 2, L"%%") != 0 || at + 2 >= text.size())
        return 0;
    const wchar_t code = static_cast<wchar_t>(std::towlower(static_cast<std::wint_t>(text[at + 2])));
    const wchar_t sign = code == L'd'   ? 0xb0
                         : code == L'p' ? 0xb1
                         : code == L'c' ? 0x2300
                         : code == L'%' ? L'%'
                                        : 0;
    if (sign) {
        at += 3;
        return sign;
    }
    std::size_t digits = 0;
    int number = 0;
    for (; digits < 3 && at + 2 + digits < text.size() && isDigit(text[at + 2 + digits]); ++digits)
        number = number * 10 + (text[at + 2 + digits] - L'0');
    if (digits < 3 || number < 32 || number > 255)
        return 0;
    at += 2 + digits;
    return static_cast<wchar_t>(number);
}
