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
    const DxfTagList::Range range = content.subclass(kMText);
    for (std::size_t i = range.begin; i < range.end; ++i)
        if (content[i].code == 1 || content[i].code == 3)
            text += codec().decode(content[i].value());
    return text;
}

void OdDbMText::setContents(const OdString& text) {
    DxfTagList& tags = edit();
    for (std::size_t i = tags.size(); i-- > 0;)
        if (tags[i].code == 3)
            tags.erase(i);
    std::wstring rest = text.wide();
    std::replace(rest.begin(), rest.end(), L'\r', L' ');
    for (std::size_t feed = rest.find(L'\n'); feed != std::wstring::npos; feed = rest.find(L'\n'))
        rest.replace(feed, 1, L"\\P");
    constexpr std::size_t longestPiece = 250;
    while (rest.size() > longestPiece) {
        const std::size_t place = tags.find(1, tags.subclass(kMText));
        tags.insert(place, 3, codec().encode(rest.substr(0, longestPiece)));
        rest.erase(0, longestPiece);
    }
    tags.set(kMText, 1, codec().encode(rest));
}

OdString OdDbMText::plainText() const {
    std::wstring plain;
    for (const OdDbTextPiece& piece : odDbTextPieces(contents().wide(), {}))
        plain += plainPiece(piece);
    return plain;
}

OdGePoint3d OdDbMText::location() const { return content.point(content.subclass(kMText), 10); }
void OdDbMText::setLocation(const OdGePoint3d& point) { edit().setPoint(kMText, 10, point); }
double OdDbMText::textHeight() const { return content.real(content.subclass(kMText), 40); }
double OdDbMText::width() const { return content.real(content.subclass(kMText), 41); }

int OdDbMText::attachment() const {
    return static_cast<int>(content.integer(content.subclass(kMText), 71, 1));
}

double OdDbMText::rotation() const {
    const DxfTagList::Range range = content.subclass(kMText);
    if (content.find(11, range) == DxfTagList::npos)
        return content.real(range, 50) * M_PI / 180;
    const OdGePoint3d direction = content.point(range, 11);
    return std::atan2(direction.y, direction.x);
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
