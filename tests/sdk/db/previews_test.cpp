// Bitmaps of previews of every depth become pictures with the same pixels; broken ones become none.
#include "sdk/db/bitmap_to_png.h"

#include "sdk/db/thumbnail.h"

#include <QImage>
#include <algorithm>
#include <gtest/gtest.h>

namespace {

struct Bitmap {
    int width = 2, height = 2, bits = 24, compression = 0, colors = 0, headerSize = 40;
    std::string behind; // the header

    std::string bytes() const {
        std::string text(static_cast<std::size_t>(std::max(headerSize, 40)), '\0');
        const auto put = [&text](std::size_t at, int value) {
            for (std::size_t byte = 0; byte < 4; ++byte)
                text[at + byte] = static_cast<char>(value >> (8 * byte));
        };
        put(0, headerSize);
        put(4, width);
        put(8, height);
        put(12, 1 | bits << 16);
        put(16, compression);
        put(32, colors);
        return text + behind;
    }
    // A line for each row, from above: "rrggbb" for each pixel.
    std::string picture() const {
        QImage image;
        const std::string png = odDbPngOfBitmap(bytes());
        if (!image.loadFromData(reinterpret_cast<const uchar*>(png.data()), static_cast<int>(png.size()),
                                "PNG"))
            return png.empty() ? "none" : "broken";
        QString text;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                text +=
                    image.pixelColor(x, y).name().mid(1) + QLatin1Char(x + 1 < image.width() ? ' ' : '\n');
        }
        return text.toStdString();
    }
};

std::string raw(std::initializer_list<int> bytes) {
    std::string text;
    for (const int byte : bytes)
        text += static_cast<char>(byte);
    return text;
}

Bitmap smallOne() {
    Bitmap bitmap;
    bitmap.behind = raw({1, 2, 3, 4, 5, 6, 0, 0, 7, 8, 9, 10, 11, 12, 0, 0});
    return bitmap;
}

} // namespace

TEST(PreviewBitmaps, OfFullColours) {
    Bitmap bitmap = smallOne();
    EXPECT_EQ(bitmap.picture(), "090807 0c0b0a\n030201 060504\n") << "rows begin at the bottom";
    bitmap.height = -2;
    EXPECT_EQ(bitmap.picture(), "030201 060504\n090807 0c0b0a\n") << "rows begin at the top";
}

TEST(PreviewBitmaps, OfFullColoursWithAFourthByte) {
    Bitmap bitmap;
    bitmap.bits = 32;
    bitmap.behind = raw({1, 2, 3, 99, 4, 5, 6, 99, 7, 8, 9, 99, 10, 11, 12, 99});
    EXPECT_EQ(bitmap.picture(), "090807 0c0b0a\n030201 060504\n");
}

TEST(PreviewBitmaps, OfAPalette) {
    const std::string palette = raw({1, 1, 1, 0, 2, 2, 2, 0, 3, 3, 3, 0});
    Bitmap bitmap;
    bitmap.colors = 3;
    bitmap.width = 3;
    bitmap.height = 1;
    bitmap.bits = 8;
    bitmap.behind = palette + raw({2, 1, 3, 0});
    EXPECT_EQ(bitmap.picture(), "030303 020202 010101\n") << "colours beyond the palette are its first one";
    bitmap.bits = 4;
    bitmap.behind = palette + raw({0x21, 0x03, 0, 0});
    EXPECT_EQ(bitmap.picture(), "030303 020202 010101\n");
    bitmap.bits = 1;
    bitmap.colors = 2;
    bitmap.width = 9;
    bitmap.behind = palette.substr(0, 8) + raw({0x65, 0x80, 0, 0});
    EXPECT_EQ(bitmap.picture(), "010101 020202 020202 010101 010101 020202 010101 020202 020202\n");
}

TEST(PreviewBitmaps, OfAWholePaletteBehindALongerHeader) {
    Bitmap bitmap;
    bitmap.width = 1;
    bitmap.height = 1;
    bitmap.headerSize = 44;
    for (const auto& [bits, count] : {std::pair(1, 2), {4, 16}, {8, 256}}) {
        std::string palette;
        for (int i = 0; i < count; ++i)
            palette += raw({i, 0, 7, 0});
        for (const int colors : {0, count == 256 ? 256 : 0, 257}) {
            bitmap.bits = bits;
            bitmap.colors = colors;
            bitmap.behind = palette + raw({0x80, 0, 0, 0});
            EXPECT_EQ(bitmap.picture(), bits == 1   ? "070001\n"
                                        : bits == 4 ? "070008\n"
                                                    : "070080\n")
                << bits << " bits, " << colors << " colours";
        }
    }
}

TEST(PreviewBitmaps, ThatAreBrokenAreNone) {
    const auto with = [](auto change) {
        Bitmap bitmap = smallOne();
        change(bitmap);
        return bitmap.picture();
    };
    EXPECT_EQ(with([](Bitmap& b) { b.behind.pop_back(); }), "none") << "a byte is missing";
    EXPECT_EQ(with([](Bitmap& b) { b.behind += "x"; }), "090807 0c0b0a\n030201 060504\n");
    EXPECT_EQ(with([](Bitmap& b) { b.width = 0; }), "none");
    EXPECT_EQ(with([](Bitmap& b) { b.width = -2; }), "none");
    EXPECT_EQ(with([](Bitmap& b) { b.height = 0; }), "none");
    EXPECT_EQ(with([](Bitmap& b) { b.compression = 1; }), "none");
    EXPECT_EQ(with([](Bitmap& b) { b.headerSize = 39; }), "none");
    for (const char size : {17, 56, 57}) {
        std::string bytes = smallOne().bytes();
        bytes[0] = size;
        EXPECT_EQ(odDbPngOfBitmap(bytes), "") << "the header claims " << int(size) << " of 56 bytes";
    }
    for (const int bits : {0, 2, 16, 23, 64})
        EXPECT_EQ(with([bits](Bitmap& b) { b.bits = bits; }), "none") << bits;
    EXPECT_EQ(odDbPngOfBitmap(smallOne().bytes().substr(0, 39)), "");
}

TEST(PreviewBitmaps, HaveNoMoreThan16384PixelsAcross) {
    Bitmap bitmap;
    bitmap.bits = 1;
    bitmap.colors = 1;
    for (const bool isWide : {true, false})
        for (const int side : {16384, 16385}) {
            bitmap.width = isWide ? side : 1;
            bitmap.height = isWide ? 1 : side;
            bitmap.behind.assign(4 + 4 * 16500, '\0');
            EXPECT_EQ(odDbPngOfBitmap(bitmap.bytes()).empty(), side > 16384) << side;
            bitmap.height = -bitmap.height;
            EXPECT_EQ(odDbPngOfBitmap(bitmap.bytes()).empty(), side > 16384) << side << " from the top";
        }
}

TEST(PreviewBitmaps, LoseColumnsAndRowsBeyond2048) {
    Bitmap bitmap;
    bitmap.bits = 8;
    bitmap.colors = 256;
    std::string palette;
    for (int i = 0; i < 256; ++i)
        palette += raw({i, i, i, 0});
    for (const auto& [width, shown] : {std::pair(2048, 2048), {2049, 1025}, {4096, 2048}, {4097, 1366}}) {
        bitmap.width = width;
        bitmap.height = 3;
        std::string row;
        for (int x = 0; x < (width + 3) / 4 * 4; ++x)
            row += static_cast<char>(x % 251);
        bitmap.behind = palette + row + row + row;
        QImage image;
        const std::string png = odDbPngOfBitmap(bitmap.bytes());
        ASSERT_TRUE(
            image.loadFromData(reinterpret_cast<const uchar*>(png.data()), static_cast<int>(png.size())));
        EXPECT_EQ(image.width(), shown);
        const int step = width <= 2048 ? 1 : width <= 4096 ? 2 : 3;
        EXPECT_EQ(image.height(), (3 + step - 1) / step);
        EXPECT_EQ(qRed(image.pixel(1000, 0)), 1000 * step % 251) << width;
    }
}

namespace {

OdThumbnailImage previewOf(const std::string& text) {
    OdThumbnailImage image;
    OdStreamBufPtr stream(new OdStreamBuf(text));
    odDbGetPreviewBitmap(stream.get(), &image);
    return image;
}

std::string withLines(const std::string& lines) {
    return "0\nSECTION\n2\nHEADER\n310\nFF\n0\nENDSEC\n0\nSECTION\n2\nthumbnailimage\n90\n9\n" + lines +
           "0\nENDSEC\n0\nSECTION\n2\nOTHER\n310\nFF\n0\nENDSEC\n0\nEOF\n";
}

} // namespace

TEST(PreviewsOfFiles, AreReadFromDigitsOfEitherCase) {
    EXPECT_EQ(previewOf(withLines("310\n09AFaf\n310\n10\n")).bmp, "\x09\xAF\xAF\x10");
    EXPECT_EQ(previewOf(withLines("310\n01/0\n310\n02\n")).bmp, "\x01\x02") << "a line ends at a wrong digit";
    for (const char* wrong : {"0:", "0@", "0G", "0`", "0g", "/0", ":0", "@0", "G0", "`0", "g0"})
        EXPECT_EQ(previewOf(withLines(std::string("310\n07") + wrong + "08\n")).bmp, "\x07") << wrong;
    EXPECT_EQ(previewOf(withLines("310\n010\n")).bmp, "\x01") << "half a byte is none";
    EXPECT_EQ(previewOf(withLines("310\n89504E47\n")).png, "\x89PNG");
    EXPECT_EQ(previewOf(withLines("310\n89504E47\n")).bmp, "");
    EXPECT_EQ(previewOf(withLines("310\n89504E\n")).bmp, "\x89PN");
}

TEST(PreviewsOfFiles, AreReadFromLinesThatEndWithAReturnAlone) {
    std::string text = withLines("310\n0102\n");
    std::replace(text.begin(), text.end(), '\n', '\r');
    EXPECT_EQ(previewOf(text).bmp, "\x01\x02");
}

TEST(PreviewsOfFiles, NeedAFileAndAPlaceForThePicture) {
    OdThumbnailImage image;
    OdStreamBufPtr stream(new OdStreamBuf(withLines("310\n01\n")));
    EXPECT_EQ(odDbGetPreviewBitmap(nullptr, &image), eInvalidInput);
    EXPECT_EQ(odDbGetPreviewBitmap(stream.get(), nullptr), eInvalidInput);
    EXPECT_EQ(odDbGetPreviewBitmap(stream.get(), &image), eOk);
}
