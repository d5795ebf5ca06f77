// Finds the preview in a file without reading the drawing, and writes one into it.
#include "sdk/db/thumbnail.h"

#include "sdk/db/bitmap_to_png.h"
#include "sdk/db/database_impl.h"
#include "sdk/db/thumbnail_section.h"
#include "sdk/dxf/binary_text.h"
#include "sdk/dxf/line_ends.h"
#include "sdk/dxf/scanner.h"

namespace {

constexpr int kSize = 90;
constexpr int kBytes = 310;
constexpr std::string_view kPngStart = "\x89PNG";

int digit(char c) {
    if (c >= '0' && c <= '9')
        return c - '0';
    const char upper = static_cast<char>(c & ~0x20);
    return upper >= 'A' && upper <= 'F' ? upper - 'A' + 10 : -1;
}

void appendHex(std::string& bytes, std::string_view text) {
    for (std::size_t i = 0; i + 1 < text.size(); i += 2) {
        const int high = digit(text[i]), low = digit(text[i + 1]);
        if (high < 0 || low < 0)
            return;
        bytes += static_cast<char>(high * 16 + low);
    }
}

std::string picturePart(std::string_view text) {
    DxfScanner scanner(text);
    DxfTag tag;
    std::string picture;
    bool inSection = false;
    while (scanner.next(tag)) {
        if (tag.code == 0 && inSection)
            break;
        inSection = inSection || (tag.code == 2 && dxfUpperCase(dxfTrimmed(tag.value())) == "THUMBNAILIMAGE");
        if (inSection && tag.code == kBytes)
            appendHex(picture, tag.value());
    }
    return picture;
}

} // namespace

OdResult odDbGetPreviewBitmap(OdStreamBuf* stream, OdThumbnailImage* image) {
    if (!stream || !image)
        return eInvalidInput;
    std::string picture;
    try {
        const std::string_view bytes = stream->content();
        if (isBinaryDxf(bytes))
            picture = picturePart(textOfBinaryDxf(bytes));
        else if (dxfHasLoneReturns(bytes))
            picture = picturePart(dxfWithLineFeeds(std::string(bytes)));
        else
            picture = picturePart(bytes);
    } catch (const DxfFault&) {
        return eInvalidDrawing;
    }
    if (picture.empty())
        return eKeyNotFound;
    const bool isPng = picture.compare(0, kPngStart.size(), kPngStart) == 0;
    (isPng ? image->png : image->bmp) = picture;
    return eOk;
}

void odDbPutPreviewBitmap(OdDbDatabase* database, const OdThumbnailImage& image) {
    database->impl().newPreview = image.bmp;
    database->impl().headerModified = true;
}

bool OdThumbnailImage::convBmpToPng() {
    png = odDbPngOfBitmap(bmp);
    return hasPng();
}

std::string odDbThumbnailSectionText(std::string_view picture, bool carriageReturns, bool open) {
    constexpr std::size_t bytesPerLine = 127;
    const std::string_view lineEnd = carriageReturns ? "\r\n" : "\n";
    std::string text = dxfTagText(0, "SECTION", lineEnd) + dxfTagText(2, "THUMBNAILIMAGE", lineEnd) +
                       dxfTagText(kSize, std::to_string(picture.size()), lineEnd);
    for (std::size_t at = 0; at < picture.size(); at += bytesPerLine) {
        std::string line;
        for (const char c : picture.substr(at, bytesPerLine)) {
            line += "0123456789ABCDEF"[static_cast<unsigned char>(c) >> 4];
            line += "0123456789ABCDEF"[static_cast<unsigned char>(c) & 15];
        }
        text += dxfTagText(kBytes, line, lineEnd);
    }
    return open ? text : text + dxfTagText(0, "ENDSEC", lineEnd);
}
