// Paragraph texts: long ones are cut into pieces in the file, and the plain text is without format codes.
#include "sdk/db/text.h"

#include "sdk/db/mtext_codes.h"
#include "sdk/dxf/codec.h"

#include <algorithm>
#include <cmath>

ODRX_DEFINE_CLASS_WITH_MAKER(OdDbMText, OdDbEntity)

namespace {

constexpr std::string_view kMText = "AcDbMText";
constexpr double kLetterWidth = 0.7; // of the height
constexpr double kLineStep = 5.0 / 3.0;
constexpr int kMostColumns = 1000;
constexpr int kLastPiece = 1, kPieceBefore = 3; // of the contents

std::wstring plainPiece(const OdDbTextPiece& piece) {
    switch (piece.kind) {
    case OdDbTextPiece::kTab:
        return L"\t";
    case OdDbTextPiece::kParagraphEnd:
    case OdDbTextPiece::kColumnEnd:
        return L"\n";
    case OdDbTextPiece::kStack:
        return piece.bar ? piece.text + L"/" + piece.lower : piece.text;
    default:
        std::wstring text = piece.text;
        std::replace(text.begin(), text.end(), L'\xa0', L' ');
        return text;
    }
}

} // namespace

OdDbMText::OdDbMText() {
    startEntity("MTEXT", kMText);
    content.setPoint(kMText, 10, {});
    content.append(40, "2.5");
    content.append(71, "1");
    content.append(1, "");
}

OdString OdDbMText::contents() const {
    OdString text;
    const DxfTagList::Range part = content.subclass(kMText);
    const bool isInPart = content.find(kLastPiece, part) != DxfTagList::npos;
    const DxfTagList::Range range = isInPart ? part : content.own();
    for (std::size_t i = range.begin; i < range.end; ++i)
        if (content[i].code == kLastPiece || content[i].code == kPieceBefore)
            text += codec().decode(content[i].value());
    return text;
}

void OdDbMText::setContents(const OdString& text) {
    DxfTagList& tags = edit();
    for (std::size_t i = tags.size(); i-- > 0;)
        if (tags[i].code == kPieceBefore)
            tags.erase(i);
    if (tags.find(kMText, kLastPiece) == DxfTagList::npos)
        tags.set(kMText, kLastPiece, "");
    std::wstring rest = text.wide();
    std::replace(rest.begin(), rest.end(), L'\r', L' ');
    for (std::size_t feed = rest.find(L'\n'); feed != std::wstring::npos; feed = rest.find(L'\n'))
        rest.replace(feed, 1, L"\\P");
    constexpr std::size_t longestPiece = 250;
    while (rest.size() > longestPiece) {
        const std::size_t place = tags.find(kMText, kLastPiece);
        tags.insert(place, kPieceBefore, codec().encode(rest.substr(0, longestPiece)));
        rest.erase(0, longestPiece);
    }
    tags.set(kMText, kLastPiece, codec().encode(rest));
}

OdString OdDbMText::plainText() const {
    std::wstring plain;
    for (const OdDbTextPiece& piece : odDbTextPieces(contents().wide(), {}))
        plain += plainPiece(piece);
    return plain;
}

// The embedded object of a text with columns repeats the point and the direction, under other codes.
OdGePoint3d OdDbMText::location() const {
    const bool missing = content.find(kMText, 10) == DxfTagList::npos;
    return missing ? content.point(content.embedded(), 11) : content.point(kMText, 10);
}

void OdDbMText::setLocation(const OdGePoint3d& point) { edit().setPoint(kMText, 10, point); }
double OdDbMText::textHeight() const { return content.real(kMText, 40); }
double OdDbMText::width() const { return content.real(kMText, 41); }

int OdDbMText::attachment() const { return static_cast<int>(content.integer(kMText, 71, 1)); }

double OdDbMText::rotation() const {
    OdGePoint3d direction{1, 0, 0};
    if (content.find(kMText, 11) != DxfTagList::npos)
        direction = content.point(kMText, 11);
    else if (content.find(kMText, 50) != DxfTagList::npos)
        return content.real(kMText, 50) * M_PI / 180;
    else if (content.find(10, content.embedded()) != DxfTagList::npos)
        direction = content.point(content.embedded(), 10);
    return std::atan2(direction.y, direction.x);
}

OdDbMText::Columns OdDbMText::columns() const {
    const DxfTagList::Range range = content.embedded();
    Columns result;
    if (content.integer(range, 71) == 0)
        return result;
    result.width = content.real(range, 44);
    result.gutter = content.real(range, 45);
    result.height = content.real(range, 41);
    for (std::size_t i = range.begin; i < range.end; ++i)
        if (content[i].code == 46)
            result.heights.push_back(dxfReal(content[i].value()));
    // Columns that grow by themselves are not counted; their number follows from the width of all.
    const double step = result.width + result.gutter;
    const double fitting = step > 0 ? std::round((content.real(range, 42) + result.gutter) / step) : 1;
    const std::int64_t counted = content.integer(range, 72);
    const double count = counted > 0 ? static_cast<double>(counted) : fitting;
    result.count = static_cast<int>(std::clamp<double>(count, 1, kMostColumns));
    return result;
}

void OdDbMText::addExtents(OdGeExtents3d& extents, const OdGeMatrix3d& toWorld) const {
    const std::wstring text = plainText().wide();
    std::size_t lines = 1, longest = 0, current = 0;
    for (const wchar_t c : text) {
        current = c == L'\n' ? 0 : current + 1;
        lines += c == L'\n';
        longest = std::max(longest, current);
    }
    const double w = kLetterWidth * textHeight() * static_cast<double>(longest);
    const double h = textHeight() * (1 + kLineStep * static_cast<double>(lines - 1));
    const int column = (attachment() - 1) % 3, row = (attachment() - 1) / 3;
    const OdGeMatrix3d place = toWorld * OdGeMatrix3d::translation(location().asVector()) *
                               OdGeMatrix3d::rotation(rotation(), OdGeVector3d::kZAxis);
    for (const double x : {-w * column / 2, w - w * column / 2})
        for (const double y : {-h + h * row / 2, h * row / 2})
            extents.addPoint(place * OdGePoint3d(x, y, 0));
}
