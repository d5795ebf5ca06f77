// Turns the bitmap of a preview into a PNG, bounds checked: it comes from files of anybody.
#include "sdk/db/bitmap_to_png.h"

#include <QByteArray>
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace {

constexpr std::size_t kInfoHeader = 40;
constexpr int kLargestSide = 16384;
constexpr int kFullSide = 2048; // larger pictures lose whole rows and columns: a preview is small

template <class T> T littleEndian(std::string_view bytes, std::size_t at) {
    T value = 0;
    for (std::size_t i = 0; i < sizeof(T); ++i)
        value =
            static_cast<T>(value | (static_cast<T>(static_cast<unsigned char>(bytes[at + i])) << (8 * i)));
    return value;
}

std::string bigEndian(std::uint32_t value) {
    std::string text;
    for (int shift = 24; shift >= 0; shift -= 8)
        text += static_cast<char>(value >> shift);
    return text;
}

std::uint32_t checksum(std::string_view bytes) {
    std::uint32_t sum = 0xFFFFFFFFu;
    for (const char c : bytes) {
        sum ^= static_cast<unsigned char>(c);
        for (int bit = 0; bit < 8; ++bit)
            sum = (sum >> 1) ^ (sum & 1 ? 0xEDB88320u : 0u);
    }
    return ~sum;
}

std::string chunk(const std::string& kind, const std::string& data) {
    return bigEndian(static_cast<std::uint32_t>(data.size())) + kind + data +
           bigEndian(checksum(kind + data));
}

struct Bitmap {
    std::string_view bytes;
    int width = 0, height = 0, bits = 0;
    bool topDown = false;
    std::size_t palette = 0, paletteSize = 0, pixels = 0, rowSize = 0;

    bool parse(std::string_view source) {
        bytes = source;
        if (bytes.size() < kInfoHeader)
            return false;
        const auto headerSize = littleEndian<std::uint32_t>(bytes, 0);
        width = static_cast<std::int32_t>(littleEndian<std::uint32_t>(bytes, 4));
        const auto signedHeight = static_cast<std::int32_t>(littleEndian<std::uint32_t>(bytes, 8));
        if (width <= 0 || width > kLargestSide || signedHeight == 0 || signedHeight > kLargestSide ||
            signedHeight < -kLargestSide || headerSize < kInfoHeader || headerSize > bytes.size())
            return false;
        topDown = signedHeight < 0;
        height = std::abs(signedHeight);
        bits = littleEndian<std::uint16_t>(bytes, 14);
        const bool known = bits == 1 || bits == 4 || bits == 8 || bits == 24 || bits == 32;
        if (!known || littleEndian<std::uint32_t>(bytes, 16) != 0)
            return false;
        const std::uint32_t used = littleEndian<std::uint32_t>(bytes, 32);
        paletteSize = bits <= 8 ? (used != 0 && used <= 256 ? used : std::size_t{1} << bits) : 0;
        palette = headerSize;
        pixels = palette + paletteSize * 4;
        rowSize = (static_cast<std::size_t>(width) * static_cast<std::size_t>(bits) + 31) / 32 * 4;
        return bytes.size() >= pixels + rowSize * static_cast<std::size_t>(height);
    }

    void appendPixel(std::string& row, std::size_t start, int x) const {
        const auto column = static_cast<std::size_t>(x);
        std::size_t color = start + column * static_cast<std::size_t>(bits / 8);
        if (bits <= 8) {
            const std::size_t perByte = 8u / static_cast<unsigned>(bits);
            const auto byte = static_cast<unsigned char>(bytes[start + column / perByte]);
            const std::size_t shift = (perByte - 1 - column % perByte) * static_cast<std::size_t>(bits);
            const std::size_t index = (byte >> shift) & ((1u << bits) - 1);
            color = palette + (index < paletteSize ? index : 0) * 4;
        }
        for (const int channel : {2, 1, 0}) // stored as blue, green, red
            row += bytes[color + static_cast<std::size_t>(channel)];
    }
};

} // namespace

std::string odDbPngOfBitmap(std::string_view source) {
    Bitmap bitmap;
    if (!bitmap.parse(source))
        return {};
    const int step = (std::max(bitmap.width, bitmap.height) + kFullSide - 1) / kFullSide;
    std::string rows;
    for (int y = 0; y < bitmap.height; y += step) {
        const int line = bitmap.topDown ? y : bitmap.height - 1 - y;
        rows += '\0'; // rows are not filtered
        for (int x = 0; x < bitmap.width; x += step)
            bitmap.appendPixel(rows, bitmap.pixels + static_cast<std::size_t>(line) * bitmap.rowSize, x);
    }
    const QByteArray packed =
        qCompress(reinterpret_cast<const uchar*>(rows.data()), static_cast<int>(rows.size()));
    constexpr int lengthPrefix = 4; // put in front by qCompress
    const std::string data(packed.constData() + lengthPrefix,
                           static_cast<std::size_t>(packed.size() - lengthPrefix));
    const std::string kind("\x08\x02\x00\x00\x00", 5); // 8 bits a channel, true colour
    return std::string("\x89PNG\r\n\x1a\n") +
           chunk("IHDR", bigEndian(static_cast<std::uint32_t>((bitmap.width + step - 1) / step)) +
                             bigEndian(static_cast<std::uint32_t>((bitmap.height + step - 1) / step)) +
                             kind) +
           chunk("IDAT", data) + chunk("IEND", "");
}
