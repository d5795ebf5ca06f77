// The libFuzzer target for the previews of drawings: whatever a file has in that place, what comes of it is a
// picture that can be read and is no larger than a preview may be, or none.
#include "sdk/db/thumbnail.h"
#include "tests/fuzz/fuzz_fault.h"

#include <QByteArray>
#include <QImage>

namespace {

const int largestSide = 2048;

void checkPicture(OdThumbnailImage image) {
    if (!image.hasBmp())
        return;
    const bool isMade = image.convBmpToPng();
    fuzz::expect(isMade == image.hasPng(), "a picture was made or not, and the other one is said");
    if (!isMade)
        return;
    const QImage picture = QImage::fromData(
        QByteArray::fromRawData(image.png.data(), static_cast<int>(image.png.size())), "PNG");
    fuzz::expect(!picture.isNull(), "a picture was made that can't be read");
    fuzz::expect(picture.width() <= largestSide && picture.height() <= largestSide,
                 "a picture was made that is larger than a preview may be");
}

} // namespace

// The bytes are a drawing, or the bitmap itself.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    OdThumbnailImage found;
    OdStreamBuf file(bytes);
    if (odDbGetPreviewBitmap(&file, &found) == eOk)
        checkPicture(found);
    OdThumbnailImage plain;
    plain.bmp = bytes;
    checkPicture(plain);
    return 0;
}
