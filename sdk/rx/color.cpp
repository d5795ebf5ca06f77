// The palette is regular beyond its first nine colours: twenty-four hues, five brightnesses, each full and
// half saturated, and six greys; so it is computed and not listed.
#include "sdk/rx/color.h"

#include <array>
#include <cmath>

namespace {

using Palette = std::array<std::uint32_t, 256>;

std::uint32_t pack(int red, int green, int blue) {
    return (static_cast<std::uint32_t>(red) << 16) | (static_cast<std::uint32_t>(green) << 8) |
           static_cast<std::uint32_t>(blue);
}

// One channel of a hue given in steps of 15 degrees, 0 to 255.
int hueChannel(int step, int offset) {
    const int position = ((step - offset) % 24 + 24) % 24;
    const int distance = position > 12 ? 24 - position : position;
    if (distance <= 4)
        return 255;
    return distance >= 8 ? 0 : static_cast<int>(255 * (8 - distance) / 4.0);
}

int shade(int channel, bool pale, double brightness) {
    const double full = pale ? channel + (255 - channel) * 0.5 : channel;
    return static_cast<int>(std::floor(full * brightness));
}

std::uint32_t hueColor(int index) {
    static const double brightness[] = {1.0, 0.65, 0.5, 0.3, 0.15};
    const int step = index / 10 - 1;
    const bool pale = index % 2 != 0;
    const double bright = brightness[(index % 10) / 2];
    return pack(shade(hueChannel(step, 0), pale, bright), shade(hueChannel(step, 8), pale, bright),
                shade(hueChannel(step, 16), pale, bright));
}

Palette makePalette() {
    Palette palette{0xFFFFFF, 0xFF0000, 0xFFFF00, 0x00FF00, 0x00FFFF,
                    0x0000FF, 0xFF00FF, 0xFFFFFF, 0x808080, 0xC0C0C0};
    for (int index = 10; index < 250; ++index)
        palette[static_cast<std::size_t>(index)] = hueColor(index);
    static const int greys[] = {51, 91, 132, 173, 214, 255};
    for (int i = 0; i < 6; ++i)
        palette[static_cast<std::size_t>(250 + i)] = pack(greys[i], greys[i], greys[i]);
    return palette;
}

const Palette& palette() {
    static const Palette colors = makePalette();
    return colors;
}

int squared(int value) { return value * value; }

} // namespace

std::uint8_t OdCmEntityColor::lookUpACI(std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
    int best = 1;
    int bestDistance = 4 * 255 * 255;
    for (int index = 1; index < 256; ++index) {
        const std::uint32_t c = palette()[static_cast<std::size_t>(index)];
        const int distance = squared(static_cast<int>(c >> 16 & 255) - red) +
                             squared(static_cast<int>(c >> 8 & 255) - green) +
                             squared(static_cast<int>(c & 255) - blue);
        if (distance < bestDistance) {
            best = index;
            bestDistance = distance;
        }
    }
    return static_cast<std::uint8_t>(best);
}

std::uint32_t OdCmEntityColor::lookUpRGB(std::uint8_t index) { return palette()[index]; }
