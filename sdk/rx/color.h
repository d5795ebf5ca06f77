// Colours of the drawing SDK: a true colour, the 255-colour palette, and the search for the palette's nearest
// colour.
#pragma once

#include "sdk/rx/rx_object.h"

#include <cstdint>

namespace OdCm {
enum DialogTabs { kACITab = 1, kTrueColorTab = 2, kBooksTab = 4 };
}

class OdCmEntityColor {
public:
    // Palette index (1 to 255) of the colour nearest to r, g, b by squared distance; the lowest index wins a
    // tie.
    static std::uint8_t lookUpACI(std::uint8_t red, std::uint8_t green, std::uint8_t blue);
    // 0x00RRGGBB of a palette index; index 0 (by block) reads as the foreground white.
    static std::uint32_t lookUpRGB(std::uint8_t index);
};

class OdCmColor {
public:
    void setRGB(std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
        value = (std::uint32_t{red} << 16) | (std::uint32_t{green} << 8) | blue;
    }
    std::uint8_t red() const { return static_cast<std::uint8_t>(value >> 16); }
    std::uint8_t green() const { return static_cast<std::uint8_t>(value >> 8); }
    std::uint8_t blue() const { return static_cast<std::uint8_t>(value); }

private:
    std::uint32_t value = 0; // 0x00RRGGBB
};
